#include <hosts/console/ConsoleText.h>
#include <hosts/console/ControlIds.h>
#include <hosts/console/PageRegistry.h>

namespace
{

using namespace ids::pickers;

constexpr int kLeft = 12;
constexpr int kFieldLeft = 120;
constexpr int kFieldRight = 300;
constexpr int kRightLeft = 340;
constexpr int kRight = 700;
constexpr int kDragRow = 480;
constexpr int kFirstRow = 40;
constexpr int kRowHeight = 30;
constexpr int kDropHeight = 150;
constexpr LPCWSTR kKindKeys[] = {L"STR_CON_KIND1", L"STR_CON_KIND2", L"STR_CON_KIND3", L"STR_CON_KIND4"};
constexpr DWORD_PTR kFirstKind = 100; // item data of the kinds
constexpr DWORD_PTR kLastKind = std::size(kKindKeys) * kFirstKind;
constexpr DWORD kChild = WS_CHILD | WS_VISIBLE | WS_TABSTOP | WS_GROUP;
constexpr DWORD kList = kChild | WS_VSCROLL | WS_HSCROLL | LBS_NOTIFY | LBS_NOINTEGRALHEIGHT;

/** The pickers and the list boxes. */
class CPickersPage : public CConsolePage
{
  public:
    std::vector<PageState> States() override
    {
        return {{L"fresh", [this] { Show(kFirstKind, TRUE); }},
                {L"chosen", [this] { ShowChosen(); }},
                {L"disabled", [this] { Show(kFirstKind, FALSE); }}};
    }

    std::vector<PopupShot> Popups() override
    {
        Show(kFirstKind, TRUE);
        return {ListOf(L"pickers-combo", *m_kind), ListOf(L"pickers-search", *m_search)};
    }

  protected:
    bool Build() override { return BuildCombos() && BuildPickers() && BuildLists(); }

    void Draw(CDC& dc) override
    {
        DrawHeading(dc, ConText(L"STR_CON_PICKERS"), CRect(kLeft, 8, kFieldRight, 28));
        DrawHeading(dc, ConText(L"STR_CON_LISTBOXES"), CRect(kRightLeft, 8, kRight, 28));
    }

    afx_msg void OnKind()
    {
        CString text;
        text.Format(ConFormat(L"STR_CON_ITEM_DATA", L"%d"), static_cast<int>(m_kind->GetCurSelData(0)));
        SetDlgItemText(kKindData, text);
    }

    afx_msg void OnCheck()
    {
        int checked = 0;
        for (int i = 0; i < m_checks->GetCount(); ++i) {
            checked += m_checks->GetCheck(i) == BST_CHECKED;
        }
        CString text;
        text.Format(ConFormat(L"STR_CON_CHECK_COUNT", L"%d"), checked);
        SetDlgItemText(kChecked, text);
    }

    afx_msg void OnDragOn() { m_drag->EnableDrag(IsDlgButtonChecked(kDragOn) == BST_CHECKED); }

    afx_msg void OnUp() { MoveSelected(-1); }
    afx_msg void OnDown() { MoveSelected(1); }

    afx_msg void OnAdd()
    {
        CString text;
        GetDlgItemText(kSearch, text);
        m_texts->SetCurSel(m_texts->AddString(text));
    }

    afx_msg void OnDelete() { m_texts->DeleteString(m_texts->GetCurSel()); }
    DECLARE_MESSAGE_MAP()

  private:
    void Show(DWORD_PTR kind, BOOL enabled)
    {
        m_kind->SelectItem(kind);
        OnKind();
        for (CWnd* child = GetTopWindow(); child; child = child->GetNextWindow()) {
            child->EnableWindow(enabled && child != m_fixed);
        }
    }

    void ShowChosen()
    {
        Show(kLastKind, TRUE);
        m_texts->SetCurSel(1);
        m_checks->SetCurSel(0);
    }

    static PopupShot ListOf(LPCWSTR name, CComboBox& combo)
    {
        return {name,
                [&combo] {
                    combo.ShowDropDown(TRUE);
                    COMBOBOXINFO info = {};
                    info.cbSize = sizeof(info);
                    combo.GetComboBoxInfo(&info);
                    return info.hwndList;
                },
                [&combo] { combo.ShowDropDown(FALSE); }};
    }

    static CRect Row(int row, int left = kFieldLeft, int right = kFieldRight, int height = 21)
    {
        return CRect(CPoint(left, kFirstRow + row * kRowHeight), CSize(right - left, height));
    }

    /** Creates a control with the page's font, behind its caption. */
    template <class Control>
    Control* AddPicker(int row, LPCWSTR label, LPCWSTR className, UINT id, DWORD style, DWORD exStyle, int height = 21)
    {
        auto& control = Own<Control>();
        CWnd& wnd = control;
        const CRect place = Row(row, kFieldLeft, kFieldRight, height);
        if (!AddCaption(ConText(label), Row(row, kLeft, kFieldLeft - 8)) ||
            !wnd.CreateEx(exStyle, className, L"", kChild | style, place, this, id)) {
            return nullptr;
        }
        wnd.SetFont(PageFont());
        return &control;
    }

    CFlatCombo* AddCombo(int row, LPCWSTR label, UINT id, DWORD style)
    {
        CFlatCombo* combo =
            AddPicker<CFlatCombo>(row, label, WC_COMBOBOXW, id, style | CBS_AUTOHSCROLL | WS_VSCROLL, 0, kDropHeight);
        DWORD_PTR data = 0;
        for (const LPCWSTR key : kKindKeys) {
            if (combo) {
                combo->SetItemData(combo->AddString(ConText(key)), data += kFirstKind);
            }
        }
        return combo;
    }

    bool BuildCombos()
    {
        m_kind = AddCombo(0, L"STR_CON_KIND", kKind, CBS_DROPDOWNLIST);
        if (!m_kind || !AddLabel(L"", Row(1), kKindData)) {
            return false;
        }
        m_kind->SelectItem(kFirstKind);
        OnKind();
        m_fixed = AddCombo(2, L"STR_CON_FIXED", kFixed, CBS_DROPDOWNLIST);
        CFlatCombo* free = AddCombo(3, L"STR_CON_FREE", kFree, CBS_DROPDOWN);
        if (!m_fixed || !free) {
            return false;
        }
        m_fixed->SetCurSel(1);
        m_fixed->EnableWindow(FALSE);
        free->SetCurSel(2);
        return true;
    }

    bool BuildPickers()
    {
        auto* hotKey = AddPicker<CFlatHotKey>(5, L"STR_CON_HOTKEY", HOTKEY_CLASSW, kHotKey, 0, WS_EX_CLIENTEDGE);
        auto* date = AddPicker<CFlatDateTime>(6, L"STR_CON_DATE", DATETIMEPICK_CLASSW, kDate, DTS_SHORTDATEFORMAT,
                                              WS_EX_CLIENTEDGE);
        auto* time =
            AddPicker<CFlatDateTime>(7, L"STR_CON_TIME", DATETIMEPICK_CLASSW, kTime, DTS_TIMEFORMAT, WS_EX_CLIENTEDGE);
        auto* address = AddPicker<CFlatIPAddr>(8, L"STR_CON_ADDRESS", WC_IPADDRESSW, kAddress, 0, WS_EX_CLIENTEDGE);
        m_search = AddPicker<CSearchBox>(10, L"STR_CON_SEARCH", WC_COMBOBOXW, kSearch,
                                         CBS_DROPDOWN | CBS_AUTOHSCROLL | WS_VSCROLL, 0, kDropHeight);
        if (!hotKey || !date || !time || !address || !m_search) {
            return false;
        }
        hotKey->SendMessage(HKM_SETHOTKEY, MAKEWORD(VK_F5, HOTKEYF_CONTROL | HOTKEYF_SHIFT));
        const SYSTEMTIME moment = {2024, 5, 5, 17, 13, 30, 0, 0};
        date->SendMessage(DTM_SETSYSTEMTIME, GDT_VALID, reinterpret_cast<LPARAM>(&moment));
        time->SetFormat(L"HH:mm");
        time->SendMessage(DTM_SETSYSTEMTIME, GDT_VALID, reinterpret_cast<LPARAM>(&moment));
        address->SendMessage(IPM_SETADDRESS, 0, static_cast<LPARAM>(MAKEIPADDRESS(192, 0, 2, 17)));
        for (const LPCWSTR key : kKindKeys) {
            m_search->AddString(ConText(key));
        }
        m_search->SetWindowText(ConText(L"STR_CON_SEARCH_TEXT"));
        return AddPush(ConText(L"STR_CON_LIST_ADD"), Row(11, kFieldLeft, kFieldLeft + 86), kAdd) &&
               AddPush(ConText(L"STR_CON_LIST_DELETE"), Row(11, kFieldRight - 86, kFieldRight), kDelete);
    }

    template <class List>
    List* AddFlatList(LPCWSTR label, int top, UINT id, DWORD style)
    {
        auto& list = Own<List>();
        CWnd& wnd = list;
        if (!AddCaption(ConText(label), CRect(kRightLeft, top, kRight, top + 18)) ||
            !wnd.CreateEx(WS_EX_CLIENTEDGE, WC_LISTBOXW, L"", kList | style,
                          CRect(kRightLeft, top + 20, kRight, top + 130), this, id)) {
            return nullptr;
        }
        wnd.SetFont(PageFont());
        return &list;
    }

    bool BuildLists()
    {
        m_texts = AddFlatList<CFlatListBox>(L"STR_CON_LIST_WIDE", kFirstRow, kTexts, 0);
        m_checks = AddFlatList<CFlatChkList>(L"STR_CON_LIST_CHECK", kFirstRow + 145, kChecks,
                                             LBS_OWNERDRAWFIXED | LBS_HASSTRINGS);
        if (!m_texts || !m_checks ||
            !AddLabel(L"", CRect(kRightLeft, kFirstRow + 278, kRight, kFirstRow + 296), kChecked)) {
            return false;
        }
        m_drag = AddFlatList<CDragLB>(L"STR_CON_LIST_DRAG", kFirstRow + 305, kDrag, LBS_SORT);
        if (!m_drag ||
            !AddCheck(ConText(L"STR_CON_DRAG_ON"), CRect(kRightLeft, kDragRow + 2, 530, kDragRow + 20), kDragOn) ||
            !AddPush(ConText(L"STR_CON_ITEM_UP"), CRect(538, kDragRow, 615, kDragRow + 21), kUp) ||
            !AddPush(ConText(L"STR_CON_ITEM_DOWN"), CRect(623, kDragRow, kRight, kDragRow + 21), kDown)) {
            return false;
        }
        FillLists();
        return true;
    }

    void FillLists()
    {
        for (const LPCWSTR key : kKindKeys) {
            m_texts->AddString(ConText(key));
            m_checks->AddString(ConText(key));
            m_drag->AddString(ConText(key));
        }
        m_texts->AddString(CString(ConText(L"STR_CON_MSG_SAMPLE")) + L" " + ConText(L"STR_CON_LAYOUT_NOTE"));
        m_checks->SetCheckStyle(BS_AUTO3STATE);
        m_checks->SetCheck(1, BST_CHECKED);
        m_checks->SetCheck(2, BST_INDETERMINATE);
        m_checks->Enable(3, FALSE);
        OnCheck();
        CheckDlgButton(kDragOn, BST_CHECKED);
        OnDragOn();
    }

    /** What dragging the selected item does, by a number of rows. */
    void MoveSelected(int rows)
    {
        const int from = m_drag->GetCurSel();
        const int to = from + rows;
        if (from < 0 || to < 0 || to >= m_drag->GetCount()) {
            return;
        }
        CString text;
        m_drag->GetText(from, text);
        m_drag->DeleteString(from);
        m_drag->SetCurSel(m_drag->InsertString(to, text));
    }

    CFlatCombo* m_kind = nullptr;
    CFlatCombo* m_fixed = nullptr;
    CFlatListBox* m_texts = nullptr;
    CFlatChkList* m_checks = nullptr;
    CDragLB* m_drag = nullptr;
    CSearchBox* m_search = nullptr;
};

BEGIN_MESSAGE_MAP(CPickersPage, CConsolePage)
    ON_CBN_SELCHANGE(kKind, &CPickersPage::OnKind)
    ON_CLBN_CHKCHANGE(kChecks, &CPickersPage::OnCheck)
    ON_BN_CLICKED(kDragOn, &CPickersPage::OnDragOn)
    ON_BN_CLICKED(kUp, &CPickersPage::OnUp)
    ON_BN_CLICKED(kDown, &CPickersPage::OnDown)
    ON_BN_CLICKED(kAdd, &CPickersPage::OnAdd)
    ON_BN_CLICKED(kDelete, &CPickersPage::OnDelete)
END_MESSAGE_MAP()

} // namespace

std::unique_ptr<CConsolePage> MakePickersPage()
{
    return std::make_unique<CPickersPage>();
}
