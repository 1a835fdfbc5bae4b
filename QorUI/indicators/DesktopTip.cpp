#include "DesktopTip.h"

#include <common/Owner.h>
#include <QorUI/app/base/WndClass.h>
#include <QorUI/app/draw/GdiSavers.h>
#include <QorUI/app/look/Palette.h>
#include <QorUI/app/module/SystemVersion.h>

BEGIN_MESSAGE_MAP(CDesktopTip, CWnd)
    ON_WM_PAINT()
    ON_WM_SETTINGCHANGE()
    ON_WM_WINDOWPOSCHANGING()
END_MESSAGE_MAP()

namespace
{

constexpr DWORD kExStyle = WS_EX_NOACTIVATE | WS_EX_TOOLWINDOW;
constexpr int kWrapWidth = 160;
constexpr int kFirstHeight = 16;
constexpr int kMargin = 6;
constexpr int kDefaultRight = 1024;
constexpr int kDefaultBottom = 768;
constexpr COLORREF kText = QorLook::kWhite;
constexpr UINT kTextFormat = DT_WORDBREAK | DT_NOPREFIX | DT_EDITCONTROL;

CSize MeasureTip(const CString& text)
{
    const own::DisplayDc screen(::GetDC(nullptr));
    const SelectSaver font(screen.Get(), ::GetStockObject(DEFAULT_GUI_FONT));
    CRect rect(0, 0, kWrapWidth, kFirstHeight);
    ::DrawTextW(screen.Get(), text, text.GetLength(), &rect, DT_CALCRECT | kTextFormat);
    return rect.Size();
}

} // namespace

CDesktopTip::CDesktopTip() = default;

BOOL CDesktopTip::Create()
{
    const LPCWSTR className = QorRegisterWndClass(0);
    return className && CreateEx(kExStyle, className, nullptr, WS_POPUP, CRect(0, 0, 0, 0), nullptr, 0);
}

void CDesktopTip::SetTipText(LPCWSTR text)
{
    if (!::IsWindow(m_hWnd)) {
        return;
    }
    const CString shown(text);
    const CSize size = MeasureTip(shown);
    SetWindowText(shown);
    SetWindowPos(nullptr, 0, 0, size.cx, size.cy,
                 SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE | (shown.IsEmpty() ? SWP_HIDEWINDOW : SWP_SHOWWINDOW));
    AdjustPos();
}

void CDesktopTip::AdjustPos()
{
    if (!m_hWnd) {
        return;
    }
    CRect work(0, 0, 0, 0);
    if (!::SystemParametersInfoW(SPI_GETWORKAREA, 0, &work, 0)) {
        work.right = kDefaultRight;
        work.bottom = kDefaultBottom;
    }
    CRect rect;
    GetWindowRect(&rect);
    SetWindowPos(&wndBottom, work.right - rect.Width() - kMargin, work.top + kMargin, rect.Width(), rect.Height(),
                 SWP_NOACTIVATE);
    Invalidate(FALSE);
}

BOOL CDesktopTip::PaintDesktop(CDC* dc)
{
    const HWND shell = ::GetShellWindow();
    RECT rect = {};
    if (!dc || !dc->m_hDC || !shell || !::GetWindowRect(shell, &rect)) {
        return FALSE;
    }
    const own::DisplayDc screen(::GetDC(nullptr));
    const own::MemoryDc memory(::CreateCompatibleDC(screen.Get()));
    CBitmap bitmap;
    bitmap.Attach(::CreateCompatibleBitmap(screen.Get(), rect.right - rect.left, rect.bottom - rect.top));
    const SelectSaver select(memory.Get(), bitmap.GetSafeHandle());
    if (!memory || !select || !::PrintWindow(shell, memory.Get(), PW_CLIENTONLY)) {
        return FALSE;
    }
    CopyUnderTip(dc->m_hDC, memory.Get());
    return TRUE;
}

void CDesktopTip::CopyUnderTip(HDC target, HDC desktop) const
{
    CRect tip(0, 0, 0, 0);
    if (m_hWnd) {
        GetWindowRect(&tip);
    }
    ::BitBlt(target, 0, 0, tip.Width(), tip.Height(), desktop, tip.left, tip.top, SRCCOPY);
}

void CDesktopTip::OnPaint()
{
    CPaintDC dc(this);
    if (QorOsAtLeast(kSystemWindows8)) {
        PaintDesktop(&dc);
    } else {
        ::PaintDesktop(dc);
    }
    const DcStateSaver saver(dc);
    dc.SetBkMode(TRANSPARENT);
    dc.SetTextColor(kText);
    dc.SelectStockObject(DEFAULT_GUI_FONT);
    CString text;
    GetWindowText(text);
    CRect client;
    GetClientRect(&client);
    dc.DrawText(text, &client, kTextFormat);
}

void CDesktopTip::OnSettingChange(UINT setting, LPCTSTR section)
{
    CWnd::OnSettingChange(setting, section);
    if (setting == SPI_SETWORKAREA || setting == SPI_SETDESKWALLPAPER) {
        AdjustPos();
    }
}

void CDesktopTip::OnWindowPosChanging(WINDOWPOS* position)
{
    CWnd::OnWindowPosChanging(position);
    position->flags &= ~static_cast<UINT>(SWP_NOZORDER);
    position->hwndInsertAfter = HWND_BOTTOM;
}

LRESULT CDesktopTip::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == WM_DISPLAYCHANGE) {
        AdjustPos();
        return 0;
    }
    return CWnd::WindowProc(message, wParam, lParam);
}
