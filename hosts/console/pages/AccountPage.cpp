#include <hosts/console/ConsoleText.h>
#include <hosts/console/ControlIds.h>
#include <hosts/console/PageRegistry.h>
#include <QorApi/QorApi.h>

namespace
{

using namespace ids::account;

constexpr UINT kMaxName = 31;
constexpr UINT kMaxPassword = 63;

/** Logs on to the store and tells who is logged on. */
class CAccountPage : public CConsolePage
{
  public:
    std::vector<PageState> States() override
    {
        return {{L"opened", [this] { ShowUser(); }}, {L"logged-on", [this] {
                                                          QorLogonUser(BuiltInName(), L"");
                                                          ShowUser();
                                                      }}};
    }

  protected:
    bool Build() override
    {
        if (!AddCaption(ConText(L"STR_CON_NAME"), CRect(12, 45, 110, 61)) || !AddEdit(CRect(120, 45, 320, 65), kName) ||
            !AddCaption(ConText(L"STR_CON_PASSWORD"), CRect(12, 73, 110, 89)) ||
            !AddEdit(CRect(120, 73, 320, 93), kPassword, ES_AUTOHSCROLL | ES_PASSWORD) ||
            !AddPush(ConText(L"STR_CON_LOGON"), CRect(120, 106, 220, 127), kLogon) ||
            !AddPush(ConText(L"STR_CON_LOGOFF"), CRect(230, 106, 330, 127), kLogoff) ||
            !AddLabel(L"", CRect(12, 146, 640, 200), kUser) || !AddLabel(L"", CRect(12, 210, 640, 240), kStore)) {
            return false;
        }
        SendDlgItemMessage(kName, EM_LIMITTEXT, kMaxName);
        SendDlgItemMessage(kPassword, EM_LIMITTEXT, kMaxPassword);
        CString last;
        SetDlgItemText(kName, QorGetLastLogonInfo(last) ? last : BuiltInName());
        ShowStore();
        ShowUser();
        return true;
    }

    void Draw(CDC& dc) override
    {
        CRect client;
        GetClientRect(client);
        DrawHeading(dc, ConText(L"STR_CON_ACCOUNT"), CRect(12, 8, client.right - 16, 28));
    }

    afx_msg void OnLogon()
    {
        CString name;
        CString password;
        QorGetText(*GetDlgItem(kName), name);
        GetDlgItemText(kPassword, password);
        const DWORD status = QorLogonUser(name, password);
        if (status != ERROR_SUCCESS) {
            QorMsgBox(ConText(L"STR_CON_LOGON_FAILED"), QOR_MSG_ERROR, status, this);
        } else {
            QorSetLastLogonInfo(TRUE, name);
            SetDlgItemText(kPassword, L"");
        }
        ShowUser();
    }

    afx_msg void OnLogoff()
    {
        QorLogoff();
        ShowUser();
    }

    /** Enter in the password field logs on, as in a dialog whose default button does. */
    BOOL PreTranslateMessage(MSG* message) override
    {
        if (message->message == WM_KEYDOWN && message->wParam == VK_RETURN &&
            message->hwnd == ::GetDlgItem(m_hWnd, kPassword)) {
            OnLogon();
            return TRUE;
        }
        return CConsolePage::PreTranslateMessage(message);
    }
    DECLARE_MESSAGE_MAP()

  private:
    static CString BuiltInName()
    {
        _QORVEX_USER user = {};
        return QorGetUserInfo(user) == ERROR_SUCCESS ? CString(user.szName) : CString();
    }

    void ShowUser()
    {
        _QORVEX_USER user = {};
        CString text(ConText(L"STR_CON_NOBODY"));
        if (QorGetLogonUser(user) == ERROR_SUCCESS) {
            text.Format(ConFormat(L"STR_CON_USER", L"%s (%s) %x"), user.szName, user.szDesc,
                        static_cast<int>(user.dwRights));
        }
        SetDlgItemText(kUser, text);
    }

    void ShowStore()
    {
        const DWORD status = QorOpen();
        CString text(ConText(L"STR_CON_STORE_OK"));
        if (status != ERROR_SUCCESS) {
            text.Format(ConFormat(L"STR_CON_STORE_BAD", L"%s"), QorFormatMsg(status).GetString());
        } else {
            QorClose();
        }
        SetDlgItemText(kStore, text);
    }
};

BEGIN_MESSAGE_MAP(CAccountPage, CConsolePage)
    ON_BN_CLICKED(kLogon, &CAccountPage::OnLogon)
    ON_BN_CLICKED(kLogoff, &CAccountPage::OnLogoff)
END_MESSAGE_MAP()

} // namespace

std::unique_ptr<CConsolePage> MakeAccountPage()
{
    return std::make_unique<CAccountPage>();
}
