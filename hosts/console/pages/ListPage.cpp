#include <hosts/console/ConsoleText.h>
#include <hosts/console/ControlIds.h>
#include <hosts/console/PageRegistry.h>

namespace
{

using namespace ids::list;

constexpr int kLeft = 12;
constexpr int kRight = 716;
constexpr int kColumns = 3;
constexpr int kRows = 100000;
constexpr int kShownRows = 12; // in the picture with check boxes

/** The records of the list: each is a row's item data. */
int SizeOf(int record)
{
    return static_cast<int>(record * 7919LL % kRows);
}

int DayOf(int record)
{
    return static_cast<int>(record * 104729LL % 365);
}

int Compare(int column, int one, int other)
{
    switch (column) {
    case 1:
        return SizeOf(one) - SizeOf(other);
    case 2:
        return DayOf(one) - DayOf(other);
    default:
        return one - other;
    }
}

/** The flat list with a hundred thousand rows, sorted by its owner after a click on the header. */
class CListPage : public CConsolePage
{
  public:
    std::vector<PageState> States() override
    {
        return {{L"full", [this] { ShowFull(); }}, {L"empty", [this] { ShowEmpty(); }}, {L"checks", [this] {
                                                                                             ShowChecked();
                                                                                         }}};
    }

  protected:
    bool Build() override
    {
        const DWORD style = WS_CHILD | WS_VISIBLE | WS_TABSTOP | LVS_REPORT | LVS_SHOWSELALWAYS;
        if (!m_list.CreateEx(WS_EX_CLIENTEDGE, style, CRect(kLeft, 44, kRight, 480), this, kList) || !BuildButtons()) {
            return false;
        }
        m_list.SetFont(PageFont());
        m_list.InsertColumn(0, ConText(L"STR_CON_ROW_NAME"), LVCFMT_LEFT, 300);
        m_list.InsertColumn(1, ConText(L"STR_CON_ROW_SIZE"), LVCFMT_RIGHT, 140);
        m_list.InsertColumn(2, ConText(L"STR_CON_ROW_DAY"), LVCFMT_CENTER, 120);
        m_list.SetEmptyText(ConText(L"STR_CON_ROWS_NONE"));
        Fill(kRows);
        Sort(0, 1);
        return true;
    }

    void Draw(CDC& dc) override { DrawHeading(dc, ConText(L"STR_CON_LIST_PAGE"), CRect(kLeft, 8, kRight, 28)); }

    afx_msg void OnChecks() { ShowChecks(IsDlgButtonChecked(kChecks) == BST_CHECKED); }

    afx_msg void OnFill()
    {
        int direction = 1;
        const int column = m_list.GetSortColumn(&direction);
        Fill(kRows);
        Sort(column, direction);
    }

    afx_msg void OnRemove()
    {
        m_list.DeleteAllItems();
        m_list.Invalidate();
        ShowCount();
    }

    afx_msg void OnColumn(NMHDR* header, LRESULT* result)
    {
        const int column = reinterpret_cast<NMLISTVIEW*>(header)->iSubItem;
        int direction = 0;
        const bool same = m_list.GetSortColumn(&direction) == column;
        Sort(column, same && direction ? 0 : 1);
        *result = 0;
    }

    /** What clicks on the header do, from the keyboard: the other direction, then the next column. */
    afx_msg void OnOrder()
    {
        int direction = 0;
        const int column = m_list.GetSortColumn(&direction);
        Sort(direction ? column : (column + 1) % kColumns, direction ? 0 : 1);
    }

    /** Gives the texts of the rows that are shown. */
    afx_msg void OnText(NMHDR* header, LRESULT* result)
    {
        LVITEMW& item = reinterpret_cast<NMLVDISPINFOW*>(header)->item;
        if (item.mask & LVIF_TEXT) {
            const int record = static_cast<int>(m_list.GetItemData(item.iItem));
            ::lstrcpynW(item.pszText, TextOf(record, item.iSubItem), item.cchTextMax);
        }
        *result = 0;
    }
    DECLARE_MESSAGE_MAP()

  private:
    void ShowFull()
    {
        ShowChecks(false);
        Fill(kRows);
        Sort(1, 0);
        m_list.SelectItem(2, TRUE);
    }

    void ShowEmpty()
    {
        ShowChecks(false);
        OnRemove();
    }

    void ShowChecked()
    {
        ShowChecks(true);
        Fill(kShownRows);
        Sort(1, 0);
        m_list.SetCheck(1);
        m_list.SetCheck(4);
        m_list.SelectItem(2, TRUE);
    }

    bool BuildButtons()
    {
        return AddCheck(ConText(L"STR_CON_ROW_CHECKS"), CRect(kLeft, 492, 232, 509), kChecks) &&
               AddPush(ConText(L"STR_CON_ROWS_FILL"), CRect(kLeft, 520, 152, 541), kFill) &&
               AddPush(ConText(L"STR_CON_ROWS_REMOVE"), CRect(162, 520, 302, 541), kRemove) &&
               AddPush(ConText(L"STR_CON_ROWS_ORDER"), CRect(312, 520, 452, 541), kOrder) &&
               AddLabel(L"", CRect(320, 494, kRight, 511), kState);
    }

    static CString TextOf(int record, int column)
    {
        CString text;
        if (column == 0) {
            text.Format(ConFormat(L"STR_CON_ROW", L"%d"), record);
        } else if (column == 1) {
            text.Format(L"%d KB", SizeOf(record));
        } else {
            const COleDateTime day = COleDateTime(2026, 1, 1, 0, 0, 0) + COleDateTimeSpan(DayOf(record), 0, 0, 0);
            text = day.Format(L"%Y-%m-%d");
        }
        return text;
    }

    void Fill(int rows)
    {
        m_list.SetRedraw(FALSE);
        m_list.DeleteAllItems();
        m_list.SetItemCount(rows);
        for (int i = 0; i < rows; ++i) {
            m_list.InsertItem(LVIF_TEXT | LVIF_PARAM, i, LPSTR_TEXTCALLBACKW, 0, 0, 0, i);
        }
        m_list.SetRedraw(TRUE);
        m_list.Invalidate();
        ShowCount();
    }

    void Sort(int column, int direction)
    {
        if (column < 0) {
            return;
        }
        const int order = (column << 1) | (direction ? 1 : 0);
        m_list.SetRedraw(FALSE);
        m_list.SortItems(&CListPage::CompareRows, static_cast<DWORD_PTR>(order));
        m_list.SetRedraw(TRUE);
        m_list.SetSortColumn(column, direction);
        m_list.Invalidate();
    }

    static int CALLBACK CompareRows(LPARAM one, LPARAM other, LPARAM order)
    {
        const int result = Compare(static_cast<int>(order >> 1), static_cast<int>(one), static_cast<int>(other));
        return order & 1 ? result : -result;
    }

    void ShowChecks(bool show)
    {
        CheckDlgButton(kChecks, show ? BST_CHECKED : BST_UNCHECKED);
        const DWORD style = m_list.GetExtendedStyle() & ~static_cast<DWORD>(LVS_EX_CHECKBOXES);
        m_list.SetExtendedStyle(style | (show ? LVS_EX_CHECKBOXES : 0));
    }

    void ShowCount()
    {
        CString text;
        text.Format(ConFormat(L"STR_CON_ROWS", L"%d"), m_list.GetItemCount());
        SetDlgItemText(kState, text);
    }

    CFlatList m_list;
};

BEGIN_MESSAGE_MAP(CListPage, CConsolePage)
    ON_BN_CLICKED(kChecks, &CListPage::OnChecks)
    ON_BN_CLICKED(kFill, &CListPage::OnFill)
    ON_BN_CLICKED(kRemove, &CListPage::OnRemove)
    ON_BN_CLICKED(kOrder, &CListPage::OnOrder)
    ON_NOTIFY(LVN_COLUMNCLICK, kList, &CListPage::OnColumn)
    ON_NOTIFY(LVN_GETDISPINFOW, kList, &CListPage::OnText)
END_MESSAGE_MAP()

} // namespace

std::unique_ptr<CConsolePage> MakeListPage()
{
    return std::make_unique<CListPage>();
}
