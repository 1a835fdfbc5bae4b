#pragma once

#include "res/DialogsTest.h"

#include <common/Owner.h>
#include <QorApi/QorApi.h>
#include <QorUI/QorUI.h>
#include <QorUI/res/resource.h>
#include <tests/support/Support.h>
#include <tests/support/ui/Control.h>

/** @file What the tests of dialogs and frame windows share. */

// The numbers that are stated; the tests call them by name.
static_assert(IDC_FRAME_MINIMIZE == 1000 && IDC_FRAME_MAXIMIZE == 1001 && IDC_FRAME_CLOSE == 1002);
static_assert(IDC_DLG_CLOSE == 1003 && IDC_BOX_ICON == 1100 && IDC_BOX_TEXT == 1101);
static_assert(IDB_FRAME_MINIMIZE == 220 && IDB_DLG_CLOSE == 223 && IDR_PNG_BANNER == 281 && IDR_PNG_BANNER2 == 282);
static_assert(CQorDialog::ButtonBand == 1 && CQorDialog::CloseDisabled == 2 && CQorDialog::Resizable == 4);

inline constexpr int kNoSuchId = 4242; ///< no control has it
inline constexpr DWORD kNoFlags = 0;
inline constexpr DWORD kBand = CQorDialog::ButtonBand;
inline constexpr DWORD kSizable = CQorDialog::Resizable;

/** A text that the library's dialogs share. */
inline LPCWSTR LibString(LPCWSTR key)
{
    return QorGetModuleLang(L"QorUI.dll", L"Strings")->GetChildData(key, 1);
}

/** Opens what is protected, for the tests. */
class CTestBaseDlg : public CQorBaseDlg
{
  public:
    explicit CTestBaseDlg(UINT idd = IDD_PLAIN, CWnd* parent = nullptr) : CQorBaseDlg(idd, parent) {}
    using CQorBaseDlg::GetDlgString;
    using CQorBaseDlg::OnCtlColor;
    using CQorBaseDlg::PreTranslateMessage;
    using CQorBaseDlg::SetDlgCtrlText;
    using CQorBaseDlg::SetDlgLang;
};

/** Adds what the tests ask dialogs and frame windows for. */
template <class Window>
class CProbed : public Window
{
  public:
    using Window::Window;

    /** Hit-test code of a point given from the window's top left corner. */
    LRESULT Hit(int x, int y)
    {
        CRect window;
        this->GetWindowRect(window);
        return this->SendMessage(WM_NCHITTEST, 0, MAKELPARAM(window.left + x, window.top + y));
    }

    /** Where a control stands in the window. */
    CRect CtrlRect(UINT id)
    {
        CRect rect;
        QorGetCtrlRect(this, id, rect);
        return rect;
    }
};

class CTestDialog : public CProbed<CQorDialog>
{
  public:
    CTestDialog(UINT idd, DWORD flags, CWnd* parent = nullptr) : CProbed(idd, parent, flags), m_idd(idd) {}
    using CQorDialog::AdjustBtnInArea;
    using CQorDialog::DisableClose;
    using CQorDialog::GetClientPos;
    using CQorDialog::Paint;

    /** Creates the dialog without running it, and shows it at a fixed place. */
    bool Open()
    {
        if (!Create(m_idd)) {
            return false;
        }
        SetWindowPos(nullptr, 100, 100, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
        ShowWindow(SW_SHOW);
        ts::Settle();
        return true;
    }

    CSize ClientSize() const
    {
        CRect client;
        GetClientRect(client);
        return client.Size();
    }

    int m_canceled = 0;

  protected:
    void OnCancel() override
    {
        ++m_canceled;
        CQorDialog::OnCancel();
    }

  private:
    UINT m_idd;
};

/** y of a button in the band of a dialog of that height, on a system of version 2 or later. */
inline int BandY(int height)
{
    constexpr int kBandFromBottom = 49;
    constexpr int kBandHeight = 40;
    constexpr int kButtonHeight = 21;
    return height - kBandFromBottom + (kBandHeight - kButtonHeight) / 2 + 1;
}

/** Whether the screen points inside the window's shape include this one, given from its top left corner. */
inline bool InShape(HWND wnd, int x, int y)
{
    CRgn shape;
    shape.CreateRectRgn(0, 0, 0, 0);
    return ::GetWindowRgn(wnd, shape) != ERROR && shape.PtInRegion(x, y);
}

/** Whether the window's shape is exactly this region. (EqualRgn compares how regions are cut into pieces.) */
inline bool HasShape(HWND wnd, const CRgn& expected)
{
    CRgn shape;
    shape.CreateRectRgn(0, 0, 0, 0);
    return ::GetWindowRgn(wnd, shape) != ERROR &&
           ::CombineRgn(shape, shape, static_cast<HRGN>(expected.GetSafeHandle()), RGN_XOR) == NULLREGION;
}

/** Looks at how the dialogs of the thread answer WM_INITDIALOG. */
class InitDialogAnswers
{
  public:
    InitDialogAnswers() : m_hook(::SetWindowsHookExW(WH_CALLWNDPROCRET, &Hook, nullptr, ::GetCurrentThreadId()))
    {
        Answers().clear();
    }

    static std::vector<LRESULT>& Answers()
    {
        static std::vector<LRESULT> answers;
        return answers;
    }

  private:
    static LRESULT CALLBACK Hook(int code, WPARAM wParam, LPARAM lParam)
    {
        const auto* call = reinterpret_cast<const CWPRETSTRUCT*>(lParam);
        if (code >= 0 && call->message == WM_INITDIALOG) {
            Answers().push_back(call->lResult);
        }
        return ::CallNextHookEx(nullptr, code, wParam, lParam);
    }

    own::Hook m_hook;
};
