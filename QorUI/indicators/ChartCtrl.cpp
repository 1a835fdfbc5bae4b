#include "ChartCtrl.h"

#include <QorUI/app/base/Invalidate.h>
#include <QorUI/app/base/OwnStatic.h>
#include <QorUI/app/draw/GdiPlusFlat.h>
#include <QorUI/app/look/Palette.h>

#include <algorithm>
#include <array>

BEGIN_MESSAGE_MAP(CChartCtrl, CStatic)
    ON_WM_PAINT()
    ON_WM_ERASEBKGND()
END_MESSAGE_MAP()

using namespace Gdiplus::DllExports;

namespace
{

constexpr std::array<COLORREF, 5> kSeries = {RGB(47, 162, 244), RGB(250, 160, 90), RGB(248, 194, 57), RGB(247, 101, 43),
                                             RGB(130, 205, 195)};
constexpr Gdiplus::ARGB kWhite = QorGdip::Opaque(QorLook::kWhite);
constexpr Gdiplus::ARGB kBlack = QorGdip::Opaque(QorLook::kBlack);
constexpr int kTitlePoints = 10;
constexpr int kTitleLeft = 8;
constexpr int kTitleHeight = 30;
constexpr int kLineWidth = 8;
constexpr int kChartLeft = 13;
constexpr int kRingTop = 30;
constexpr int kChartSize = 90; // diameter of the ring, length of the longest bar
constexpr int kFirstRow = 33;
constexpr int kRowHeight = 20;
constexpr int kSwatchLeft = 118;
constexpr int kSwatchRise = 3;
constexpr int kSwatchSize = 8;
constexpr int kTextLeft = 134;
constexpr int kTextRise = 6;

using QorGdip::Family;
using QorGdip::Font;
using QorGdip::StringFormat;

Font FontOf(HDC dc, const LOGFONTW& logFont)
{
    Gdiplus::GpFont* font = nullptr;
    GdipCreateFontFromLogfontW(dc, &logFont, &font);
    return Font(font);
}

/** The title's typeface; the system chooses a similar one where it is not installed. */
Family TitleFamily(HDC dc)
{
    LOGFONTW logFont = {};
    logFont.lfHeight = -::MulDiv(kTitlePoints, ::GetDeviceCaps(dc, LOGPIXELSY), 72);
    logFont.lfWeight = FW_NORMAL;
    logFont.lfCharSet = DEFAULT_CHARSET;
    ::lstrcpynW(&logFont.lfFaceName[0], L"Arial", LF_FACESIZE);
    Gdiplus::GpFontFamily* family = nullptr;
    if (const Font font = FontOf(dc, logFont)) {
        GdipGetFamily(font.Get(), &family);
    }
    return Family(family);
}

Font TitleFont(HDC dc)
{
    Gdiplus::GpFont* font = nullptr;
    if (const Family family = TitleFamily(dc)) {
        GdipCreateFont(family.Get(), kTitlePoints, Gdiplus::FontStyleRegular, Gdiplus::UnitPoint, &font);
    }
    return Font(font);
}

/** The control's font, or the device context's one, or, when GDI+ can use neither, the title's. */
Font LegendFont(HDC dc, HFONT own)
{
    LOGFONTW logFont = {};
    if (own && ::GetObjectW(own, sizeof(logFont), &logFont)) {
        if (Font font = FontOf(dc, logFont)) {
            return font;
        }
    }
    Gdiplus::GpFont* font = nullptr;
    GdipCreateFontFromDC(dc, &font);
    return font ? Font(font) : TitleFont(dc);
}

void DrawTitle(HDC dc, Gdiplus::GpGraphics* graphics, const CRect& client, const CString& title)
{
    Gdiplus::GpStringFormat* made = nullptr;
    GdipCreateStringFormat(0, LANG_NEUTRAL, &made);
    const StringFormat format(made);
    const Font font = TitleFont(dc);
    const QorGdip::SolidBrush brush = QorGdip::Solid(kBlack);
    if (!format || !font || !brush) {
        return;
    }
    GdipSetStringFormatLineAlign(format.Get(), Gdiplus::StringAlignmentCenter);
    const Gdiplus::RectF place(static_cast<float>(client.left + kTitleLeft), static_cast<float>(client.top),
                               static_cast<float>(client.Width() - kTitleLeft), static_cast<float>(kTitleHeight));
    GdipDrawString(graphics, title, title.GetLength(), font.Get(), &place, format.Get(), brush.Get());
}

/** What all rows of a chart share. */
struct Chart
{
    Gdiplus::GpGraphics* graphics;
    Gdiplus::GpPen* pen;
    Gdiplus::GpFont* font;
    ULONGLONG sum;
    ULONGLONG max;
};

void DrawDot(const Chart& chart, Gdiplus::ARGB colour, int y)
{
    const int radius = kLineWidth / 2;
    if (const QorGdip::SolidBrush brush = QorGdip::Solid(colour)) {
        GdipFillEllipseI(chart.graphics, brush.Get(), kChartLeft - radius, y - radius, kLineWidth, kLineWidth);
    }
}

void DrawBar(const Chart& chart, UINT value, Gdiplus::ARGB colour, int y)
{
    const int length = static_cast<int>(static_cast<ULONGLONG>(value) * kChartSize / chart.max);
    if (length == 0) {
        DrawDot(chart, colour, y); // lines without length do not get their caps everywhere
    } else {
        GdipDrawLineI(chart.graphics, chart.pen, kChartLeft, y, kChartLeft + length, y);
    }
}

/** @param angle where the arc begins; becomes where it ends. */
void DrawArc(const Chart& chart, UINT value, float& angle)
{
    const auto sweep = static_cast<float>(static_cast<double>(value) * 360 / static_cast<double>(chart.sum));
    GdipDrawArcI(chart.graphics, chart.pen, kChartLeft, kRingTop, kChartSize, kChartSize, angle, sweep);
    angle += sweep;
}

void DrawLegend(const Chart& chart, const UITEM& item, Gdiplus::ARGB colour, int y)
{
    const QorGdip::SolidBrush brush = QorGdip::Solid(colour);
    if (!brush) {
        return;
    }
    GdipFillRectangleI(chart.graphics, brush.Get(), kSwatchLeft, y - kSwatchRise, kSwatchSize, kSwatchSize);
    CString text;
    text.Format(L"%s (%u)", item.strName.GetString(), item.nValue);
    const Gdiplus::RectF place(static_cast<float>(kTextLeft), static_cast<float>(y - kTextRise), 0, 0);
    if (chart.font) {
        GdipDrawString(chart.graphics, text, text.GetLength(), chart.font, &place, nullptr, brush.Get());
    }
}

void DrawItems(const Chart& chart, const CArray<UITEM, UITEM&>& items, int type)
{
    float angle = 0;
    for (INT_PTR i = 0; i < items.GetCount(); ++i) {
        const int y = kFirstRow + kRowHeight * static_cast<int>(i);
        const Gdiplus::ARGB colour = QorGdip::Opaque(kSeries.at(static_cast<size_t>(i) % kSeries.size()));
        GdipSetPenColor(chart.pen, colour);
        if (type == QOR_CHART_BARS) {
            DrawBar(chart, items[i].nValue, colour, y);
        } else {
            DrawArc(chart, items[i].nValue, angle);
        }
        DrawLegend(chart, items[i], colour, y);
    }
}

void DrawChart(HDC dc, Gdiplus::GpGraphics* graphics, HFONT own, const CArray<UITEM, UITEM&>& items, int type)
{
    Chart chart = {graphics, nullptr, nullptr, 0, 0};
    for (INT_PTR i = 0; i < items.GetCount(); ++i) {
        chart.sum += items[i].nValue;
        chart.max = (std::max)(chart.max, static_cast<ULONGLONG>(items[i].nValue));
    }
    const QorGdip::Pen pen = QorGdip::SolidPen(kBlack, static_cast<float>(kLineWidth));
    if (chart.sum == 0 || !pen) {
        return;
    }
    GdipSetPenStartCap(pen.Get(), Gdiplus::LineCapRound);
    GdipSetPenEndCap(pen.Get(), Gdiplus::LineCapRound);
    const Font font = LegendFont(dc, own);
    chart.pen = pen.Get();
    chart.font = font.Get();
    DrawItems(chart, items, type);
}

} // namespace

CChartCtrl::CChartCtrl() : m_nType(QOR_CHART_RING) {}

void CChartCtrl::AddItem(LPCWSTR name, UINT value)
{
    UITEM item;
    item.strName = name;
    item.nValue = value;
    m_arrItems.Add(item);
    QorInvalidate(*this);
}

void CChartCtrl::RemoveAll()
{
    m_arrItems.RemoveAll();
    QorInvalidate(*this);
}

BOOL CChartCtrl::SetType(int type)
{
    if (type != QOR_CHART_BARS && type != QOR_CHART_RING) {
        return FALSE;
    }
    m_nType = type;
    QorInvalidate(*this);
    return TRUE;
}

LRESULT CChartCtrl::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    const HWND wnd = m_hWnd;
    const LRESULT result = CStatic::WindowProc(message, wParam, lParam);
    QorRepaintStatic(wnd, message);
    return result;
}

BOOL CChartCtrl::OnEraseBkgnd(CDC* /*dc*/)
{
    return TRUE;
}

void CChartCtrl::OnPaint()
{
    CPaintDC dc(this);
    const QorGdip::Graphics graphics = QorGdip::GraphicsOn(dc);
    const QorGdip::SolidBrush white = QorGdip::Solid(kWhite);
    if (!graphics || !white) {
        return;
    }
    CRect client;
    GetClientRect(&client);
    GdipSetSmoothingMode(graphics.Get(), Gdiplus::SmoothingModeHighQuality);
    GdipFillRectangleI(graphics.Get(), white.Get(), client.left, client.top, client.Width() - 1, client.Height() - 1);
    CString title;
    GetWindowText(title);
    title.Trim();
    if (!title.IsEmpty()) {
        DrawTitle(dc, graphics.Get(), client, title);
    }
    const auto own = reinterpret_cast<HFONT>(::SendMessageW(m_hWnd, WM_GETFONT, 0, 0));
    DrawChart(dc, graphics.Get(), own, m_arrItems, m_nType);
}
