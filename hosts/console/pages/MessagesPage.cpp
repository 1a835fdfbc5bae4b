#include <hosts/console/ConsoleText.h>
#include <hosts/console/ControlIds.h>
#include <hosts/console/PageRegistry.h>

namespace
{

using namespace ids::messages;

constexpr BYTE kAutoCloseSeconds = 5;

constexpr LPCWSTR kKindKeys[kKinds] = {L"STR_CON_MSG_ERROR",   L"STR_CON_MSG_WARNING", L"STR_CON_MSG_INFO",
                                       L"STR_CON_MSG_CONFIRM", L"STR_CON_MSG_RETRY",   L"STR_CON_MSG_YESNO"};
constexpr LPCWSTR kShotNames[kKinds] = {L"messagebox-error",   L"messagebox-warning", L"messagebox-information",
                                        L"messagebox-confirm", L"messagebox-retry",   L"messagebox-yesno"};

class CMessagesPage : public CConsolePage
{
  public:
    std::vector<ModalShot> Modals() override
    {
        std::vector<ModalShot> shots;
        for (UINT kind = 0; kind < kKinds; ++kind) {
            shots.push_back({kShotNames[kind], [this, kind] { ShowBox(kind, 0); }});
        }
        shots.push_back({L"messagebox-code", [this] { ShowBox(QOR_MSG_ERROR, ERROR_ACCESS_DENIED); }});
        return shots;
    }

  protected:
    bool Build() override
    {
        if (!AddLabel(ConText(L"STR_CON_MSG_TEXT"), CRect(12, 40, 400, 56)) ||
            !AddEdit(CRect(12, 60, 420, 122), kText, ES_MULTILINE | ES_WANTRETURN | ES_AUTOVSCROLL)) {
            return false;
        }
        SetDlgItemText(kText, ConText(L"STR_CON_MSG_SAMPLE"));
        for (UINT kind = 0; kind < kKinds; ++kind) {
            const int top = 136 + static_cast<int>(kind) * 22;
            if (!AddRadio(ConText(kKindKeys[kind]), CRect(12, top, 420, top + 18), kKindFirst + kind, kind == 0)) {
                return false;
            }
        }
        SendDlgItemMessage(kKindFirst, BM_SETCHECK, BST_CHECKED);
        return BuildOptions();
    }

    void Draw(CDC& dc) override
    {
        CRect client;
        GetClientRect(client);
        DrawHeading(dc, ConText(L"STR_CON_MESSAGES"), CRect(12, 8, client.right - 16, 28));
    }

    afx_msg void OnShow()
    {
        UINT type = SelectedKind();
        if (IsChecked(kTopmost)) {
            type |= QOR_MSG_TOPMOST;
        }
        if (IsChecked(kAutoClose)) {
            type |= QorMsgAutoClose(kAutoCloseSeconds);
        }
        ShowBox(type, IsChecked(kErrorCode) ? ERROR_ACCESS_DENIED : 0);
    }
    DECLARE_MESSAGE_MAP()

  private:
    bool BuildOptions()
    {
        CCheckBox* first = AddCheck(ConText(L"STR_CON_MSG_TOPMOST"), CRect(12, 282, 420, 300), kTopmost);
        if (!first) {
            return false;
        }
        first->ModifyStyle(0, WS_GROUP); // ends the group of radio buttons
        return AddCheck(ConText(L"STR_CON_MSG_AUTOCLOSE"), CRect(12, 304, 420, 322), kAutoClose) &&
               AddCheck(ConText(L"STR_CON_MSG_CODE"), CRect(12, 326, 420, 344), kErrorCode) &&
               AddPush(ConText(L"STR_CON_SHOW"), CRect(12, 358, 132, 379), kShow) &&
               AddLabel(L"", CRect(150, 361, 640, 379), kResult);
    }

    bool IsChecked(UINT id) { return SendDlgItemMessage(static_cast<int>(id), BM_GETCHECK) == BST_CHECKED; }

    UINT SelectedKind()
    {
        for (UINT kind = 0; kind < kKinds; ++kind) {
            if (IsChecked(kKindFirst + kind)) {
                return kind;
            }
        }
        return QOR_MSG_INFO;
    }

    void ShowBox(UINT type, DWORD error)
    {
        CString text;
        GetDlgItemText(kText, text);
        const UINT result = QorMsgBox(text, type, error, this);
        CString shown;
        shown.Format(ConFormat(L"STR_CON_RESULT", L"%d"), static_cast<int>(result));
        SetDlgItemText(kResult, shown);
    }
};

BEGIN_MESSAGE_MAP(CMessagesPage, CConsolePage)
    ON_BN_CLICKED(kShow, &CMessagesPage::OnShow)
END_MESSAGE_MAP()

} // namespace

std::unique_ptr<CConsolePage> MakeMessagesPage()
{
    return std::make_unique<CMessagesPage>();
}
