#pragma once

#include "Checks.h"

#include <QorUI/QorUI.h>

namespace host
{

/** A control of the host that stands on one of the library. */
class DerivedButton : public CQorBtn
{
  public:
    int m_draws = 0;

    void DrawItem(LPDRAWITEMSTRUCT item) override
    {
        ++m_draws;
        CQorBtn::DrawItem(item);
    }

  protected:
    afx_msg LRESULT OnOwnMessage(WPARAM value, LPARAM) { return static_cast<LRESULT>(value) + 1; }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(DerivedButton, CQorBtn)
    ON_MESSAGE(WM_USER + 9, &DerivedButton::OnOwnMessage)
END_MESSAGE_MAP()

/** A derived control gets the library's messages and its own. */
inline void CheckDerivedControl()
{
    CWnd parent;
    HOST_CHECK(
        parent.CreateEx(0, AfxRegisterWndClass(0), L"", WS_POPUP | WS_VISIBLE, CRect(0, 0, 200, 100), nullptr, 0));
    const HWND plain = ::CreateWindowW(L"BUTTON", L"Text", WS_CHILD | WS_VISIBLE, 10, 10, 80, 30, parent.m_hWnd,
                                       reinterpret_cast<HMENU>(5), nullptr, nullptr);
    DerivedButton button;
    HOST_CHECK(button.SubclassWindow(plain));
    CRect rect;
    button.GetWindowRect(&rect);
    HOST_CHECK(rect.Height() == 21);
    HOST_CHECK(button.SendMessage(WM_USER + 9, 41) == 42);
    button.RedrawWindow();
    HOST_CHECK(button.m_draws > 0);
    parent.DestroyWindow();
}

/** Everything that holds in a host which links the library. */
inline void CheckLinked()
{
    CheckResourceSearch();
    CheckBrush(QorGetDlgBkBrush());
    CheckDerivedControl();
    CheckResourceRule([] { return QorMsgBox(L"Text", 2 | 1 << 8, 0, nullptr); });
    CheckResourceSearch();
    RunThread();
}

} // namespace host
