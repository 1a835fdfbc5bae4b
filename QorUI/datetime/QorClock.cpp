#include "QorClock.h"

#include "ClockHands.h"

#include <QorUI/app/base/Invalidate.h>
#include <QorUI/app/base/NotifyParent.h>
#include <QorUI/app/base/WndClass.h>
#include <QorUI/app/draw/BitmapPart.h>
#include <QorUI/app/draw/GdiSavers.h>
#include <QorUI/app/look/Palette.h>

BEGIN_MESSAGE_MAP(CQorClock, CWnd)
    ON_WM_TIMER()
    ON_WM_PAINT()
    ON_WM_ERASEBKGND()
    ON_WM_LBUTTONDOWN()
    ON_WM_LBUTTONUP()
    ON_WM_MOUSEMOVE()
END_MESSAGE_MAP()

namespace
{

constexpr COLORREF kInk = RGB(58, 58, 58);
constexpr int kHandWidth = 2;
constexpr int kTextPos = 4;
constexpr UINT_PTR kTimer = 1;
constexpr UINT kPeriod = 50;
constexpr UINT kNoon = 12;
constexpr UINT kHours = 24;
constexpr UINT kMinutes = 60;

void ShowCursorOf(LPCWSTR cursor)
{
    ::SetCursor(::LoadCursorW(nullptr, cursor));
}

} // namespace

CQorClock::CQorClock()
    : m_crBk(QorLook::kWhite),
      m_ptCenter(0, 0),
      m_nHour(1),
      m_nMinute(30),
      m_nLastMinute(30),
      m_bInFinger(FALSE),
      m_bPM(FALSE),
      m_nStep(0),
      m_nTarget(0),
      m_bWrap(FALSE)
{
}

CQorClock::~CQorClock()
{
    if (m_hWnd) {
        DestroyWindow();
    }
}

BOOL CQorClock::Create(UINT bitmapId, CWnd* parent, UINT id, COLORREF background)
{
    CSize size;
    if (m_hWnd || !parent || !LoadDial(bitmapId, size)) {
        return FALSE;
    }
    if (!CWnd::Create(nullptr, L"", WS_CHILD | WS_VISIBLE, CRect(CPoint(0, 0), size), parent, id)) {
        return FALSE;
    }
    m_crBk = background;
    m_ptCenter = CPoint(size.cx / 2, size.cy / 2);
    return TRUE;
}

BOOL CQorClock::LoadDial(UINT bitmapId, CSize& size)
{
    m_bmpDial.DeleteObject();
    BITMAP bitmap = {};
    if (!m_bmpDial.LoadBitmap(bitmapId) || !m_bmpDial.GetBitmap(&bitmap)) {
        return FALSE;
    }
    size = CSize(bitmap.bmWidth, bitmap.bmHeight);
    return TRUE;
}

BOOL CQorClock::PreCreateWindow(CREATESTRUCT& cs)
{
    cs.lpszClass = QorRegisterWndClass(0);
    return cs.lpszClass && CWnd::PreCreateWindow(cs);
}

void CQorClock::PostNcDestroy()
{
    m_bInFinger = FALSE;
    m_nStep = 0;
    CWnd::PostNcDestroy();
}

UINT CQorClock::GetHour()
{
    return m_nHour % kNoon + (m_bPM ? kNoon : 0);
}

UINT CQorClock::GetMinute()
{
    return m_nMinute % kMinutes;
}

int CQorClock::MinutesOfDay()
{
    return static_cast<int>(GetHour() * kMinutes + GetMinute());
}

void CQorClock::UpdateTime(UINT hour, UINT minute)
{
    const BOOL pm = hour % kHours >= kNoon;
    hour = hour % kHours % kNoon;
    minute %= kMinutes;
    if (pm == m_bPM && hour == m_nHour && minute == m_nMinute) {
        return;
    }
    m_bPM = pm;
    m_nHour = hour;
    m_nMinute = minute;
    QorInvalidate(*this);
}

// Animation

void CQorClock::StopTimer()
{
    if (m_hWnd) {
        KillTimer(kTimer);
    }
}

void CQorClock::SetTime(UINT hour, UINT minute)
{
    m_nStep = 0;
    StopTimer();
    UpdateTime(hour, minute);
}

void CQorClock::SetTimeAnimate(UINT hour, UINT minute, BOOL forward)
{
    QorHands::HandRun run = {m_nTarget, m_nStep, m_bWrap};
    const int target = static_cast<int>(hour % kHours * kMinutes + minute % kMinutes);
    const bool moves = QorHands::BeginRun(run, MinutesOfDay(), target, forward != FALSE);
    m_nTarget = run.target;
    m_nStep = run.step;
    m_bWrap = run.wrap;
    if (moves && (!m_hWnd || !SetTimer(kTimer, kPeriod, nullptr))) {
        m_nStep = 0;
        UpdateTime(hour, minute);
    }
}

void CQorClock::OnTimer(UINT_PTR timer)
{
    if (timer != kTimer) {
        CWnd::OnTimer(timer);
        return;
    }
    if (m_nStep == 0) {
        StopTimer();
        return;
    }
    QorHands::HandRun run = {m_nTarget, m_nStep, m_bWrap};
    const UINT next = static_cast<UINT>(QorHands::NextTime(run, MinutesOfDay()));
    m_nStep = run.step;
    m_bWrap = run.wrap;
    UpdateTime(next / kMinutes, next % kMinutes);
    if (m_nStep == 0) {
        StopTimer();
    }
}

// Painting

BOOL CQorClock::OnEraseBkgnd(CDC* dc)
{
    const HDC target = dc ? dc->m_hDC : nullptr;
    BITMAP bitmap = {};
    if (m_bmpDial.GetBitmap(&bitmap)) {
        QorDrawBitmapPart(target, CRect(0, 0, bitmap.bmWidth, bitmap.bmHeight), m_bmpDial.GetSafeHandle(), {0, 0});
    }
    return TRUE;
}

void CQorClock::OnPaint()
{
    CPaintDC dc(this);
    dc.SetBkColor(m_crBk);
    dc.SetTextColor(kInk);
    dc.SelectStockObject(DEFAULT_GUI_FONT);
    dc.TextOut(kTextPos, kTextPos, m_bPM ? L"PM" : L"AM", 2);
    CPen pen;
    pen.CreatePen(PS_SOLID, kHandWidth, kInk);
    const SelectSaver selectPen(dc, pen);
    DrawHand(dc, QorHands::kHourRatio, QorHands::HourAngle(m_nHour, m_nMinute));
    DrawHand(dc, QorHands::kMinuteRatio, QorHands::MinuteAngle(m_nMinute));
}

void CQorClock::DrawHand(CDC& dc, double ratio, double angle)
{
    dc.MoveTo(m_ptCenter);
    dc.LineTo(GetFingerEndPt(ratio, angle));
}

CPoint CQorClock::GetFingerEndPt(double ratio, double angle)
{
    return QorHands::EndPoint(m_ptCenter, ratio, angle);
}

// Dragging

BOOL CQorClock::IsInMinuteFinger(CPoint point)
{
    return QorHands::OnMinuteHand(m_ptCenter, m_nMinute, point);
}

void CQorClock::OnMouseMove(UINT flags, CPoint point)
{
    if (!(flags & MK_LBUTTON)) {
        m_bInFinger = IsInMinuteFinger(point);
        ShowCursorOf(m_bInFinger ? IDC_HAND : IDC_ARROW);
    } else if (m_bInFinger) {
        ShowCursorOf(IDC_HAND);
        RedrawMinuteFinger(point);
    }
    CWnd::OnMouseMove(flags, point);
}

void CQorClock::OnLButtonDown(UINT flags, CPoint point)
{
    const HWND wnd = m_hWnd;
    if (m_bInFinger) {
        SetCapture();
        SendNotify(static_cast<UINT>(QCN_BEGINDRAG));
        if (!::IsWindow(wnd)) {
            return;
        }
        ShowCursorOf(IDC_HAND);
    }
    CWnd::OnLButtonDown(flags, point);
}

void CQorClock::OnLButtonUp(UINT flags, CPoint point)
{
    const HWND wnd = m_hWnd;
    if (m_bInFinger) {
        ::ReleaseCapture();
        SendNotify(static_cast<UINT>(QCN_ENDDRAG));
        if (!::IsWindow(wnd)) {
            return;
        }
    }
    CWnd::OnLButtonUp(flags, point);
}

void CQorClock::RedrawMinuteFinger(CPoint point)
{
    m_nMinute = QorHands::MinuteAt(m_ptCenter, point);
    if (const int carry = QorHands::HourCarry(m_nMinute, m_nLastMinute); carry != 0) {
        m_nHour += static_cast<UINT>(carry);
        AdjustAmPmFlag(carry > 0);
        QorInvalidate(*this);
    }
    if (m_nMinute != m_nLastMinute) {
        m_nLastMinute = m_nMinute;
        QorInvalidate(*this);
    }
}

/** Brings the hour onto the dial after a step by one hour. */
void CQorClock::AdjustAmPmFlag(BOOL up)
{
    m_nHour = (m_nHour + kNoon) % kNoon;
    const bool flips = m_nHour == (up ? 0 : kNoon - 1);
    if (!flips) {
        return;
    }
    if (up) {
        m_nHour = kNoon;
    }
    m_bPM = !m_bPM;
    QorInvalidate(*this);
}

void CQorClock::SendNotify(UINT code)
{
    QorNotifyParent(*this, code);
}
