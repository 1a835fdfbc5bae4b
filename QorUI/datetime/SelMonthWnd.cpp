#include "SelMonthWnd.h"

#include "QorCalendar.h"

#include <QorUI/app/base/WndClass.h>
#include <QorUI/app/draw/GdiSavers.h>
#include <QorUI/app/draw/MemDC.h>
#include <QorUI/app/look/Palette.h>

#include <windowsx.h>

BEGIN_MESSAGE_MAP(CSelMonthWnd, CWnd)
    ON_WM_PAINT()
    ON_WM_ERASEBKGND()
END_MESSAGE_MAP()

namespace
{

constexpr UINT kClassStyle = CS_VREDRAW | CS_HREDRAW | CS_DBLCLKS | CS_BYTEALIGNCLIENT;
constexpr DWORD kLowBits = 0x108; ///< for the window class to define: this one gives them no meaning
constexpr DWORD kStyle = WS_POPUP | WS_BORDER | kLowBits;
constexpr LPCWSTR kHeightSample = L"abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789";
constexpr int kTextLeft = 10;
constexpr int kSideRoom = 2 * kTextLeft; ///< beside the longest name
constexpr int kUnderRows = 3;            ///< below the last row
constexpr int kSampleYear = 2000;
constexpr COLORREF kBack = QorLook::kWhite;
constexpr COLORREF kText = QorLook::kBlack;

} // namespace

CSelMonthWnd::CSelMonthWnd() : m_nUpCount(0), m_nDownCount(0), m_pCalendar(nullptr)
{
    const COleDateTime today = COleDateTime::GetCurrentTime();
    m_nYear = m_nSelYear = today.GetYear();
    m_nMonth = m_nSelMonth = today.GetMonth();
}

BOOL CSelMonthWnd::Create(int month, int year, CQorCalendar* calendar)
{
    if (!calendar || !calendar->m_hWnd) {
        return FALSE;
    }
    m_pCalendar = calendar;
    if (month >= 1 && month <= QorMonth::kMonths) {
        m_nMonth = m_nSelMonth = month;
    }
    if (year >= QorMonth::kFirstListYear && year <= QorMonth::kLastYear) {
        m_nYear = m_nSelYear = year;
    }
    const LPCWSTR className = QorRegisterWndClass(kClassStyle);
    if (!className || !CreateEx(0, className, L"", kStyle, CRect(0, 0, 0, 0), calendar, 0)) {
        return FALSE;
    }
    CSize size;
    try {
        size = WindowSize();
    } catch (CException* exception) { // there is no device context
        exception->Delete();
        return FALSE;
    }
    const DWORD mouse = ::GetMessagePos();
    // Activation may delete this object: nothing of it is used after this.
    return SetWindowPos(nullptr, GET_X_LPARAM(mouse) - size.cx / 2, GET_Y_LPARAM(mouse) - size.cy / 2, size.cx, size.cy,
                        SWP_SHOWWINDOW);
}

int CSelMonthWnd::LineHeight(CDC& dc)
{
    return dc.GetTextExtent(kHeightSample, static_cast<int>(wcslen(kHeightSample))).cy;
}

CSize CSelMonthWnd::WindowSize()
{
    CClientDC dc(this);
    const SelectSaver font(dc, m_pCalendar->m_fontNormal);
    int width = 0;
    for (int month = 1; month <= QorMonth::kMonths; ++month) {
        const int cx = dc.GetTextExtent(m_pCalendar->GetMonthName(month, kSampleYear)).cx;
        width = (std::max)(width, cx);
    }
    const int height = QorMonth::kListRows * LineHeight(dc);
    return {(width + kSideRoom) / 2 * 2, (height + kUnderRows) / 2 * 2}; // even: the mouse is in the middle
}

int CSelMonthWnd::RowUnderMouse(int lineHeight)
{
    CPoint mouse;
    ::GetCursorPos(&mouse);
    ScreenToClient(&mouse);
    return QorMonth::ListRow(mouse.y, lineHeight);
}

void CSelMonthWnd::OnPaint()
{
    CPaintDC paintDc(this);
    CMemDC dc(&paintDc);
    CRect client;
    GetClientRect(client);
    dc.FillSolidRect(client, kBack);
    dc.SetBkMode(TRANSPARENT);
    const SelectSaver font(dc, m_pCalendar->m_fontNormal);
    const int lineHeight = LineHeight(dc);
    if (lineHeight <= 0) {
        return; // no row is shown that could be chosen
    }
    const int chosen = RowUnderMouse(lineHeight);
    for (int row = 0; row < QorMonth::kListRows; ++row) {
        const QorMonth::Month month = QorMonth::AddMonths({m_nYear, m_nMonth}, row - QorMonth::kListMiddle);
        if (row == chosen) {
            m_nSelYear = month.year;
            m_nSelMonth = month.month;
        }
        DrawRow(dc, CRect(0, row * lineHeight, client.right, (row + 1) * lineHeight), month, row == chosen);
    }
}

void CSelMonthWnd::DrawRow(CDC& dc, const CRect& row, QorMonth::Month month, bool chosen)
{
    if (chosen) {
        dc.FillSolidRect(row, kText);
    }
    dc.SetTextColor(chosen ? kBack : kText);
    CRect text(row);
    text.left += kTextLeft;
    dc.DrawText(m_pCalendar->GetMonthName(month.month, month.year), text, DT_SINGLELINE);
}

BOOL CSelMonthWnd::OnEraseBkgnd(CDC* /*dc*/)
{
    return FALSE;
}

void CSelMonthWnd::TrackMessage(const MSG& msg)
{
    if (msg.message != WM_MOUSEMOVE || !m_hWnd) {
        return;
    }
    CPoint mouse;
    ::GetCursorPos(&mouse);
    CRect window;
    GetWindowRect(window);
    QorMonth::ScrollCount count = {m_nUpCount, m_nDownCount};
    const int step = QorMonth::CountMove(count, mouse.y, window.top, window.bottom);
    m_nUpCount = count.up;
    m_nDownCount = count.down;
    const QorMonth::Month middle = QorMonth::ScrollMonths({m_nYear, m_nMonth}, step);
    m_nYear = middle.year;
    m_nMonth = middle.month;
    RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW);
}
