#include "ProgressBar.h"

#include "ClippedText.h"
#include "ProgressParts.h"

#include <QorUI/app/draw/GdiSavers.h>
#include <QorUI/app/look/Palette.h>
#include <QorUI/app/module/QorUIApp.h>
#include <QorUI/res/resource.h>

BEGIN_MESSAGE_MAP(CProgressBar, CProgressCtrl)
    ON_WM_PAINT()
    ON_WM_DESTROY()
    ON_WM_NCPAINT()
    ON_WM_ERASEBKGND()
END_MESSAGE_MAP()

namespace
{

constexpr int kDefaultHeight = 18;
constexpr int kFrames = 2; // above and below the pattern together
constexpr COLORREF kInnerFrame = QorLook::kWhite;

} // namespace

CProgressBar::CProgressBar() : m_lpszFormat(nullptr) {}

void CProgressBar::SetFormat(LPCWSTR format)
{
    m_lpszFormat = format;
}

int CProgressBar::SetPos(int position)
{
    if (!m_hWnd) {
        return 0;
    }
    if (CalcFraction(position) >= 1.0) {
        Invalidate(TRUE);
    }
    return CProgressCtrl::SetPos(position);
}

double CProgressBar::CalcFraction(int position) const
{
    int lower = 0;
    int upper = 0;
    if (m_hWnd) {
        GetRange(lower, upper);
    }
    return QorProgress::Fraction(position, lower, upper);
}

/** Makes the pattern. @return its height in pixels, 18 when there is none. */
int CProgressBar::LoadFill()
{
    CBitmap pattern;
    if (!pattern.Attach(::LoadBitmapW(g_QorUIApp.m_hInstance, MAKEINTRESOURCEW(IDB_PROGRESS)))) {
        return kDefaultHeight;
    }
    if (!m_brFill.GetSafeHandle()) {
        m_brFill.CreatePatternBrush(&pattern);
    }
    BITMAP header = {};
    return pattern.GetBitmap(&header) ? header.bmHeight : kDefaultHeight;
}

void CProgressBar::SetUp()
{
    CRect rect;
    GetWindowRect(&rect);
    SetWindowPos(nullptr, 0, 0, rect.Width(), LoadFill() + kFrames, SWP_NOMOVE | SWP_NOZORDER);
}

void CProgressBar::PreSubclassWindow()
{
    SetUp();
    CProgressCtrl::PreSubclassWindow();
}

LRESULT CProgressBar::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    const LRESULT result = CProgressCtrl::WindowProc(message, wParam, lParam);
    if (message == WM_CREATE && result != -1) {
        SetUp(); // a window that is being created has no size before
    }
    if (message == PBM_SETPOS || message == PBM_DELTAPOS || message == PBM_STEPIT) {
        Invalidate(FALSE); // some versions invalidate only what the fill has passed, but the text changes too
    }
    return result;
}

void CProgressBar::OnDestroy()
{
    CProgressCtrl::OnDestroy();
    m_brFill.DeleteObject();
}

void CProgressBar::OnNcPaint() {}

BOOL CProgressBar::OnEraseBkgnd(CDC* /*dc*/)
{
    return TRUE;
}

void CProgressBar::OnPaint()
{
    CPaintDC dc(this);
    if (GetStyle() & PBS_VERTICAL) {
        return;
    }
    const CRect area = DrawFrames(dc);
    if (area.IsRectEmpty()) {
        return; // GDI would turn the rectangle round and draw over the frames
    }
    const CWnd* parent = GetParent();
    const SelectSaver font(dc, parent ? reinterpret_cast<HGDIOBJ>(parent->SendMessage(WM_GETFONT)) : nullptr);
    DrawBar(dc, area);
}

/** @return what is inside the frames. */
CRect CProgressBar::DrawFrames(CDC& dc) const
{
    CRect rect;
    GetClientRect(&rect);
    dc.Draw3dRect(&rect, QorLook::kFlatBorder, QorLook::kFlatBorder);
    rect.DeflateRect(1, 1);
    dc.Draw3dRect(&rect, kInnerFrame, kInnerFrame);
    rect.DeflateRect(1, 1);
    return rect;
}

void CProgressBar::DrawBar(CDC& dc, const CRect& area) const
{
    const int position = GetPos();
    const double fraction = CalcFraction(position);
    const CRect filled = QorProgress::Filled(area, fraction);
    const CRect empty = QorProgress::Empty(area, filled);
    const auto pattern = static_cast<HBRUSH>(m_brFill.GetSafeHandle());
    ::FillRect(dc, &filled, pattern ? pattern : ::GetSysColorBrush(COLOR_HIGHLIGHT));
    ::FillRect(dc, &empty, ::GetSysColorBrush(COLOR_WINDOW));
    const CString text = TextFor(position, fraction);
    if (!text.IsEmpty()) {
        QorDrawClippedText(dc, text, filled, area, ::GetSysColor(COLOR_WINDOW));
        QorDrawClippedText(dc, text, empty, area, ::GetSysColor(COLOR_HIGHLIGHT));
    }
}

CString CProgressBar::TextFor(int position, double fraction) const
{
    CString text;
    if (!m_lpszFormat) {
        text.Format(L"%d%%", static_cast<int>(fraction * 100));
    } else if (*m_lpszFormat) {
        text.Format(m_lpszFormat, position);
    }
    return text;
}
