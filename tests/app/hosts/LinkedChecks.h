#pragma once

#include "EveryClass.h"
#include "OtherDll.h"

namespace host
{

/** A control of the program on top of one that another DLL derives from the library's. */
class DerivedButton : public COtherButton
{
  public:
    int m_moves = 0;

  protected:
    afx_msg void OnMouseMove(UINT flags, CPoint point)
    {
        ++m_moves;
        COtherButton::OnMouseMove(flags, point);
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(DerivedButton, COtherButton)
    ON_WM_MOUSEMOVE()
END_MESSAGE_MAP()

/** The control gets the messages of the library, of the other DLL and of the program. */
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
    HOST_CHECK(button.SendMessage(kOwnMessage, 41) == 42);
    button.SendMessage(WM_MOUSEMOVE, 0, MAKELPARAM(4, 4));
    HOST_CHECK(button.m_moves == 1);
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
    UseEveryClass();
    HOST_CHECK(UseEveryClassInOtherDll() == 0);
    CheckResourceRule([] { return QorMsgBox(L"Text", 2 | 1 << 8, 0, nullptr); });
    CheckResourceSearch();
    RunThread();
}

} // namespace host
