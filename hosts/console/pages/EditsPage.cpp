#include <hosts/console/ConsoleLook.h>
#include <hosts/console/ConsoleText.h>
#include <hosts/console/ControlIds.h>
#include <hosts/console/PageRegistry.h>

#include <array>

namespace
{

using namespace ids::edits;

constexpr LPCWSTR kRefused = L"\\/:*?\"<>|";
constexpr int kLeft = 12;
constexpr int kFieldLeft = 170;
constexpr int kFieldRight = 400;
constexpr int kNumberRight = 240;
constexpr int kRowHeight = 28;
constexpr int kFirstRow = 40;
constexpr int kLogTop = 250;
constexpr long kLineHeight = 12;
constexpr long kTitleHeight = 16;
constexpr COLORREF kText = QorLook::kBlack;
constexpr COLORREF kWarning = RGB(192, 0, 0);
constexpr DWORD kChild = WS_CHILD | WS_VISIBLE | WS_TABSTOP | WS_GROUP;

/** A rich edit that finds URLs by itself. */
class CLogEdit : public CFlatRichEdit
{
  public:
    void FindUrls() { AutoURLDetect(TRUE); }
};

/** The edit controls: texts, refused characters, numbers, formatted lines. */
class CEditsPage : public CConsolePage
{
  public:
    std::vector<PageState> States() override
    {
        return {{L"valid", [this] { Show(L"report", 8, TRUE); }},
                {L"refused", [this] { Show(L"report: 1/2", INT_MAX, TRUE); }},
                {L"disabled", [this] { Show(L"report", 8, FALSE); }}};
    }

  protected:
    bool Build() override { return BuildTexts() && BuildNumbers() && BuildLog(); }

    void Draw(CDC& dc) override
    {
        CRect client;
        GetClientRect(client);
        DrawHeading(dc, ConText(L"STR_CON_EDITS"), CRect(kLeft, 8, client.right - 16, 28));
        DrawHeading(dc, ConText(L"STR_CON_RICH"), CRect(kLeft, kLogTop - 34, client.right - 16, kLogTop - 14));
    }

    afx_msg void OnNameChange() { ShowNameState(); }
    afx_msg void OnNumberChange() { ShowNumbers(); }

    afx_msg void OnNumberEnter()
    {
        m_log->SetFormat(kLineHeight, kText, 0);
        m_log->InsertText(-2, ConFormat(L"STR_CON_ENTERED", L"%d"), m_number->GetValue());
    }

    afx_msg void OnAddLine()
    {
        m_log->SetFormat(kLineHeight, kText, 0);
        m_log->InsertText(-2, ConFormat(L"STR_CON_LINE", L"%d"), ++m_lines);
    }

    afx_msg void OnAddWarning()
    {
        m_log->SetFormat(kLineHeight, kWarning, CFE_BOLD);
        m_log->InsertText(-2, ConFormat(L"STR_CON_LINE_WARNING", L"%d"), ++m_lines);
    }

    afx_msg void OnAddLink()
    {
        m_log->SetFormat(kLineHeight, kText, 0);
        m_log->InsertText(-2, L"%s ", kSite);
    }

    afx_msg void OnClear()
    {
        m_log->ClearText();
        m_lines = 0;
    }
    DECLARE_MESSAGE_MAP()

  private:
    void Show(LPCWSTR name, int hours, BOOL enabled)
    {
        m_name->SetWindowText(name);
        m_hours->SetValue(hours);
        for (CWnd* child = GetTopWindow(); child; child = child->GetNextWindow()) {
            child->EnableWindow(enabled);
        }
        ShowNameState();
        ShowNumbers();
    }

    static CRect Row(int row, int left, int right)
    {
        const int top = kFirstRow + row * kRowHeight;
        return CRect(left, top, right, top + 21);
    }

    /** Place of a text beside a field, on the line of the field's own text. */
    static CRect Note(int row, int left)
    {
        const int top = kFirstRow + row * kRowHeight;
        return CRect(left, top + 4, 700, top + 21);
    }

    template <class Edit>
    Edit* AddFlat(int row, LPCWSTR label, UINT id, int right, DWORD style)
    {
        const CRect text = Row(row, kLeft, kFieldLeft - 8);
        auto& edit = Own<Edit>();
        if (!AddCaption(ConText(label), text) ||
            !edit.CreateEx(WS_EX_CLIENTEDGE, WC_EDITW, L"", kChild | style, Row(row, kFieldLeft, right), this, id)) {
            return nullptr;
        }
        edit.SetFont(PageFont());
        return &edit;
    }

    bool BuildTexts()
    {
        CFlatEdit* plain = AddFlat<CFlatEdit>(0, L"STR_CON_PLAIN", kPlain, kFieldRight, ES_AUTOHSCROLL);
        m_name = AddFlat<CFlatEditEx>(1, L"STR_CON_FILE", kName, kFieldRight, ES_AUTOHSCROLL);
        if (!plain || !m_name || !AddLabel(L"", Note(1, kFieldRight + 12), kNameState)) {
            return false;
        }
        const DWORD hidden = ES_AUTOHSCROLL | ES_PASSWORD;
        CFlatEdit* secret = AddFlat<CFlatEdit>(2, L"STR_CON_SECRET", kSecret, kFieldRight, hidden);
        if (!secret) {
            return false;
        }
        secret->SetWindowText(L"secret");
        plain->SetWindowText(ConText(L"STR_CON_CMD_NOTE"));
        m_name->SetIllegalChars(kRefused);
        m_name->SetWindowText(L"report");
        ShowNameState();
        return true;
    }

    bool BuildNumbers()
    {
        m_hours = AddFlat<CIntEdit>(3, L"STR_CON_HOURS", kHours, kNumberRight, ES_MULTILINE);
        m_days = AddFlat<CIntEdit>(4, L"STR_CON_DAYS", kDays, kNumberRight, ES_MULTILINE);
        m_number = AddFlat<CIntEdit>(5, L"STR_CON_NUMBER", kNumber, kNumberRight, ES_WANTRETURN);
        if (!m_hours || !m_days || !m_number || !AddLabel(L"", Note(4, kNumberRight + 16), kNumbers)) {
            return false;
        }
        m_hours->AddSpin();
        m_days->AddSpin();
        m_hours->SetRange(0, 23, 8);
        m_days->SetRange(1, 120, 7);
        m_number->SetRange(-50, 50, 0);
        ShowNumbers();
        return true;
    }

    bool BuildLog()
    {
        auto& log = Own<CLogEdit>();
        const DWORD style = kChild | WS_VSCROLL | ES_MULTILINE | ES_AUTOVSCROLL | ES_READONLY;
        if (!log.CreateEx(WS_EX_CLIENTEDGE, style, CRect(kLeft, kLogTop, 700, 500), this, kLog)) {
            return false;
        }
        m_log = &log;
        m_log->FindUrls();
        m_log->SetFormat(kTitleHeight, kAccent, CFE_BOLD);
        m_log->InsertText(-2, L"%s", ConText(L"STR_CON_RICH_TITLE"));
        OnAddLine();
        OnAddWarning();
        OnAddLink();
        return AddPush(ConText(L"STR_CON_ADD_LINE"), CRect(12, 512, 152, 533), kAddLine) &&
               AddPush(ConText(L"STR_CON_ADD_WARNING"), CRect(162, 512, 302, 533), kAddWarning) &&
               AddPush(ConText(L"STR_CON_ADD_LINK"), CRect(312, 512, 452, 533), kAddLink) &&
               AddPush(ConText(L"STR_CON_CLEAR"), CRect(462, 512, 602, 533), kClear);
    }

    void ShowNameState()
    {
        static constexpr std::array<LPCWSTR, 3> kKeys = {L"STR_CON_REFUSED", L"STR_CON_EMPTY", L"STR_CON_VALID"};
        const int state = m_name->IsValidText() + 1;
        SetDlgItemText(kNameState, ConText(kKeys.at(static_cast<size_t>(state))));
    }

    void ShowNumbers()
    {
        if (!m_hours || !m_days || !m_number) {
            return; // the first of them reports while the others do not exist
        }
        CString text;
        text.Format(ConFormat(L"STR_CON_NUMBERS", L"%d, %d, %d"), m_hours->GetValue(), m_days->GetValue(),
                    m_number->GetValue());
        SetDlgItemText(kNumbers, text);
    }

    CFlatEditEx* m_name = nullptr;
    CIntEdit* m_hours = nullptr;
    CIntEdit* m_days = nullptr;
    CIntEdit* m_number = nullptr;
    CLogEdit* m_log = nullptr;
    int m_lines = 0;
};

BEGIN_MESSAGE_MAP(CEditsPage, CConsolePage)
    ON_EN_CHANGE(kName, &CEditsPage::OnNameChange)
    ON_EN_CHANGE(kHours, &CEditsPage::OnNumberChange)
    ON_EN_CHANGE(kDays, &CEditsPage::OnNumberChange)
    ON_EN_CHANGE(kNumber, &CEditsPage::OnNumberChange)
    ON_COMMAND(kNumber, &CEditsPage::OnNumberEnter)
    ON_BN_CLICKED(kAddLine, &CEditsPage::OnAddLine)
    ON_BN_CLICKED(kAddWarning, &CEditsPage::OnAddWarning)
    ON_BN_CLICKED(kAddLink, &CEditsPage::OnAddLink)
    ON_BN_CLICKED(kClear, &CEditsPage::OnClear)
END_MESSAGE_MAP()

} // namespace

std::unique_ptr<CConsolePage> MakeEditsPage()
{
    return std::make_unique<CEditsPage>();
}
