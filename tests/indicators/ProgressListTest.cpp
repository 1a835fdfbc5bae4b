#include "TextPart.h"

#include <QorUI/app/look/SysLook.h>
#include <QorUI/QorUI.h>
#include <tests/support/OtherColours.h>
#include <tests/support/Support.h>
#include <tests/support/ui/AfxHost.h>
#include <tests/support/ui/Control.h>
#include <tests/support/ui/Look.h>

namespace
{

constexpr COLORREF kGreen = RGB(6, 177, 36);

class CTestList : public CProgressList
{
  public:
    using CProgressList::DrawSubItem;
    using CProgressList::OnCustomDraw;
};

class ProgressList : public testing::Test
{
  protected:
    void SetUp() override
    {
        ASSERT_TRUE(m_list.Create(WS_CHILD | WS_VISIBLE | LVS_REPORT, CRect(0, 0, 300, 120), &m_host, ts::kControlId));
        ::SendMessageW(m_list, WM_SETFONT, reinterpret_cast<WPARAM>(ts::GuiFont()), FALSE);
        m_list.InsertColumn(0, L"Name", LVCFMT_LEFT, 100);
        m_list.InsertColumn(1, L"Progress", LVCFMT_LEFT, 150);
        m_list.InsertItem(0, L"A file");
    }

    /** The cell of row 0 in column 1, painted by the list. */
    ts::Picture Cell(const wchar_t* text)
    {
        m_list.SetItemText(0, 1, text);
        CRect rect;
        m_list.GetSubItemRect(0, 1, LVIR_BOUNDS, rect);
        return ts::LookOf(m_list).Crop(rect);
    }

    /** What the cell should look like, drawn by GDI. @param filled width of the fill in pixels. */
    static ts::Picture Expected(const CSize& size, int filled, const wchar_t* label)
    {
        return ts::DrawTo(
            size.cx, size.cy,
            [&](HDC dc) {
                CDC* const to = CDC::FromHandle(dc);
                ::SelectObject(dc, ts::GuiFont());
                ::Rectangle(dc, 2, 1, size.cx - 2, size.cy - 1);
                const CRect whole(3, 2, size.cx - 3, size.cy - 2);
                const CRect fill(3, 2, 3 + filled, size.cy - 2);
                const CRect rest(3 + filled, 2, size.cx - 3, size.cy - 2);
                to->FillSolidRect(&fill, kGreen);
                to->FillSolidRect(&rest, ::GetSysColor(COLOR_BTNFACE));
                ::SetBkMode(dc, TRANSPARENT);
                DrawTextPart(dc, fill, whole, label, ::GetSysColor(COLOR_WINDOW));
                DrawTextPart(dc, rest, whole, label, ::GetSysColor(COLOR_WINDOWTEXT));
            },
            RGB(236, 245, 250));
    }

    LRESULT Stage(DWORD stage)
    {
        NMLVCUSTOMDRAW draw = {};
        draw.nmcd.dwDrawStage = stage;
        LRESULT result = 77;
        m_list.OnCustomDraw(&draw.nmcd.hdr, &result);
        return result;
    }

    ts::AfxHost m_host{320, 140};
    CTestList m_list;
};

TEST_F(ProgressList, AsksForEveryCell)
{
    EXPECT_EQ(0x20, Stage(CDDS_PREPAINT));
    EXPECT_EQ(0x20, Stage(CDDS_ITEMPREPAINT));
    EXPECT_EQ(0, Stage(CDDS_POSTPAINT));
    EXPECT_EQ(0, Stage(CDDS_ITEMPOSTPAINT));
}

TEST_F(ProgressList, DrawsTheFillAndTheRest)
{
    const ts::Picture cell = Cell(L"50|");
    const int right = 150 - 3;
    const int middle = 3 + (150 - 6) / 2;
    EXPECT_TRUE(ts::AreaIs(cell, CRect(3, 2, middle, cell.Height() - 2), kGreen));
    EXPECT_TRUE(ts::AreaIs(cell, CRect(middle, 2, right, cell.Height() - 2), ::GetSysColor(COLOR_BTNFACE)));
    EXPECT_TRUE(ts::FrameIs(cell, CRect(2, 1, 148, cell.Height() - 1), RGB(0, 0, 0)));
}

TEST_F(ProgressList, LooksAsItShould)
{
    const ts::Picture half = Cell(L"50|Copying");
    const CSize size(half.Width(), half.Height());
    EXPECT_EQ(150, size.cx);
    EXPECT_TRUE(ts::SamePicture(Expected(size, 72, L"Copying"), half));
    EXPECT_TRUE(ts::SamePicture(Expected(size, 48, L"Copying"), Cell(L"33|Copying"))); // 47.52 is rounded
    EXPECT_TRUE(ts::SamePicture(Expected(size, 0, L"Copying"), Cell(L"-5|Copying")));
    EXPECT_TRUE(ts::SamePicture(Expected(size, 144, L"a | b"), Cell(L"100|a | b")));
}

TEST_F(ProgressList, HasTheColoursOfTheLook)
{
    const COLORREF face = RGB(1, 200, 200);
    const COLORREF window = RGB(255, 0, 255);
    const COLORREF text = RGB(0, 0, 200);
    const ts::OtherColours colours(
        {{&QorSysLook.m_clrBtnFace, face}, {&QorSysLook.m_clrWindow, window}, {&QorSysLook.m_clrWindowText, text}});
    const ts::Picture cell = Cell(L"50|Copying");
    const CRect filled(3, 2, 75, cell.Height() - 2);
    const CRect empty(75, 2, 147, cell.Height() - 2);
    EXPECT_TRUE(ts::PixelIs(cell, 146, 3, face));
    EXPECT_GT(cell.Crop(filled).Count(window), 5);
    EXPECT_GT(cell.Crop(empty).Count(text), 5);
    EXPECT_EQ(filled.Width() * filled.Height(), cell.Crop(filled).Count(window) + cell.Crop(filled).Count(kGreen));
    EXPECT_EQ(empty.Width() * empty.Height(), cell.Crop(empty).Count(text) + cell.Crop(empty).Count(face));
}

TEST_F(ProgressList, NarrowCellLeavesItsNeighboursAlone)
{
    const COLORREF paper = RGB(9, 8, 7);
    m_list.SetItemText(0, 1, L"50|Copying");
    for (int width = 0; width < 8; ++width) {
        m_list.SetColumnWidth(1, width);
        const ts::Picture look = ts::DrawTo(
            300, 120,
            [this](HDC dc) {
                NMLVCUSTOMDRAW draw = {};
                draw.nmcd.hdc = dc;
                draw.iSubItem = 1;
                EXPECT_EQ(CDRF_SKIPDEFAULT, m_list.DrawSubItem(&draw));
            },
            paper);
        CRect cell;
        m_list.GetSubItemRect(0, 1, LVIR_BOUNDS, cell);
        EXPECT_EQ(width, cell.Width());
        cell.DeflateRect(2, 1);
        const CRect drawn = look.BoundsOfOthers(paper);
        EXPECT_EQ(cell.IsRectEmpty() ? CRect(0, 0, 0, 0) : cell, drawn) << width;
    }
}

TEST_F(ProgressList, FrameHasPenAndBrushOfTheDeviceContext)
{
    m_list.SetItemText(0, 1, L"50|");
    CRect cell;
    m_list.GetSubItemRect(0, 1, LVIR_BOUNDS, cell);
    const ts::Picture look = ts::DrawTo(300, 120, [this](HDC dc) {
        ::SelectObject(dc, ::GetStockObject(DC_PEN));
        ::SetDCPenColor(dc, RGB(10, 20, 30));
        NMLVCUSTOMDRAW draw = {};
        draw.nmcd.hdc = dc;
        draw.iSubItem = 1;
        m_list.DrawSubItem(&draw);
    });
    cell.DeflateRect(2, 1);
    EXPECT_TRUE(ts::FrameIs(look, cell, RGB(10, 20, 30)));
}

TEST_F(ProgressList, DrawsTheRowItIsAskedFor)
{
    m_list.InsertItem(1, L"Another");
    m_list.SetItemText(1, 1, L"100|");
    CRect cell;
    m_list.GetSubItemRect(1, 1, LVIR_BOUNDS, cell);
    cell.DeflateRect(3, 2);
    EXPECT_EQ(cell, CRect(ts::LookOf(m_list).BoundsOf(kGreen)));
}

TEST_F(ProgressList, HugeLabelIsCutAtTheFrame)
{
    const CString huge(L'W', 1000);
    const ts::Picture cell = Cell(L"50|" + huge);
    EXPECT_TRUE(ts::FrameIs(cell, CRect(2, 1, 148, cell.Height() - 1), RGB(0, 0, 0)));
}

TEST_F(ProgressList, SurvivesTheEndOfTheGdiObjects)
{
    m_list.SetItemText(0, 1, L"50|Copying");
    EXPECT_TRUE(ts::SurvivesGdiShortage(m_list));
}

TEST_F(ProgressList, DrawingKeepsTheColoursOfTheDeviceContext)
{
    m_list.SetItemText(0, 1, L"50|Copying");
    ts::DrawTo(300, 120, [this](HDC dc) {
        ::SetBkColor(dc, RGB(1, 2, 3));
        ::SetTextColor(dc, RGB(4, 5, 6));
        ::SetBkMode(dc, OPAQUE);
        NMLVCUSTOMDRAW draw = {};
        draw.nmcd.hdc = dc;
        draw.iSubItem = 1;
        m_list.DrawSubItem(&draw);
        EXPECT_EQ(RGB(1, 2, 3), ::GetBkColor(dc));
        EXPECT_EQ(RGB(4, 5, 6), ::GetTextColor(dc));
        EXPECT_EQ(OPAQUE, ::GetBkMode(dc));
    });
}

TEST_F(ProgressList, TooMuchIsAFullBar)
{
    EXPECT_TRUE(ts::AreaIs(Cell(L"150|"), CRect(3, 2, 147, 10), kGreen));
    EXPECT_TRUE(ts::SamePicture(Cell(L"150|Done"), Cell(L"100|Done")));
}

TEST_F(ProgressList, LabelHasTwoColours)
{
    const ts::Picture empty = Cell(L"0|Label");
    EXPECT_GT(empty.Crop(CRect(4, 3, 146, empty.Height() - 3)).Count(::GetSysColor(COLOR_WINDOWTEXT)), 5);
    const ts::Picture full = Cell(L"100|Label");
    EXPECT_GT(full.Count(::GetSysColor(COLOR_WINDOW)), 5);
    EXPECT_EQ(0, full.Crop(CRect(4, 3, 146, full.Height() - 3)).Count(::GetSysColor(COLOR_WINDOWTEXT)));
}

TEST_F(ProgressList, OtherTextsAreDrawnAsTheyAre)
{
    for (const wchar_t* text : {L"1234|x", L"|x", L"plain"}) {
        EXPECT_EQ(0, Cell(text).Count(kGreen)) << ts::ToUtf8(text);
        EXPECT_GT(Cell(text).Count(::GetSysColor(COLOR_WINDOWTEXT)), 0) << ts::ToUtf8(text);
    }
}

TEST_F(ProgressList, FirstColumnTakesTheWholeRow)
{
    m_list.SetItemText(0, 0, L"100|");
    const ts::Picture look = ts::DrawTo(300, 120, [this](HDC dc) {
        NMLVCUSTOMDRAW draw = {};
        draw.nmcd.hdc = dc;
        EXPECT_EQ(CDRF_SKIPDEFAULT, m_list.DrawSubItem(&draw));
    });
    CRect row;
    m_list.GetItemRect(0, row, LVIR_BOUNDS);
    row.DeflateRect(3, 2);
    EXPECT_EQ(row, look.BoundsOf(kGreen));
}

TEST_F(ProgressList, DrawingLeavesNoClipRegion)
{
    m_list.SetItemText(0, 1, L"50|Label");
    ts::DrawTo(300, 120, [this](HDC dc) {
        NMLVCUSTOMDRAW draw = {};
        draw.nmcd.hdc = dc;
        draw.iSubItem = 1;
        EXPECT_EQ(CDRF_SKIPDEFAULT, m_list.DrawSubItem(&draw));
        CRgn region;
        region.CreateRectRgn(0, 0, 0, 0);
        EXPECT_EQ(0, ::GetClipRgn(dc, region));
    });
}

TEST_F(ProgressList, MissingCellsAreLeftToTheControl)
{
    EXPECT_EQ(CDRF_DODEFAULT, m_list.DrawSubItem(nullptr));
    ts::DrawTo(10, 10, [this](HDC dc) {
        NMLVCUSTOMDRAW draw = {};
        draw.nmcd.hdc = dc;
        draw.nmcd.dwItemSpec = 99;
        EXPECT_EQ(CDRF_DODEFAULT, m_list.DrawSubItem(&draw));
    });
}

TEST_F(ProgressList, LeavesNothingBehind)
{
    EXPECT_TRUE(ts::NoLeak([this] {
        CProgressList list;
        list.Create(WS_CHILD | WS_VISIBLE | LVS_REPORT, CRect(0, 0, 300, 120), &m_host, ts::kOtherId);
        list.InsertColumn(0, L"Progress", LVCFMT_LEFT, 150);
        list.InsertItem(0, L"45|Copying");
        list.UpdateWindow();
        list.DestroyWindow();
    }));
}

} // namespace
