#include <QorUI/QorUI.h>
#include <tests/support/Refusals.h>
#include <tests/support/Support.h>
#include <tests/support/ui/AfxHost.h>
#include <tests/support/ui/Control.h>
#include <tests/support/ui/Look.h>

#include <array>

namespace
{

constexpr COLORREF kBack = RGB(242, 242, 242);
constexpr COLORREF kLine = RGB(213, 213, 213);
constexpr COLORREF kOtherBack = RGB(200, 220, 255);
constexpr COLORREF kOtherLine = RGB(10, 80, 160);

class CTestHdr : public CFlatHdr
{
  public:
    using CFlatHdr::DrawItem;
};

/** A header with three items in a window of its own. */
class FlatHdr : public testing::Test
{
  protected:
    void SetUp() override
    {
        ASSERT_TRUE(m_header.CHeaderCtrl::Create(WS_CHILD | WS_VISIBLE | HDS_BUTTONS, CRect(0, 0, 300, 20), &m_host,
                                                 ts::kControlId));
        ::SendMessageW(m_header, WM_SETFONT, reinterpret_cast<WPARAM>(ts::GuiFont()), FALSE);
        Add(L"Name", 100, HDF_LEFT);
        Add(L"Size", 80, HDF_RIGHT);
        Add(L"Date", 60, HDF_CENTER);
        m_header.SetOwnerDraw();
        m_header.UpdateWindow();
    }

    void Add(const wchar_t* text, int width, int format)
    {
        HDITEMW item = {};
        item.mask = HDI_TEXT | HDI_WIDTH | HDI_FORMAT;
        item.pszText = const_cast<LPWSTR>(text);
        item.cxy = width;
        item.fmt = format | HDF_STRING;
        ASSERT_GE(m_header.InsertItem(m_header.GetItemCount(), &item), 0);
    }

    int Format(int index)
    {
        HDITEMW item = {};
        item.mask = HDI_FORMAT;
        EXPECT_TRUE(m_header.GetItem(index, &item));
        return item.fmt;
    }

    /** Item 0 as DrawItem draws it into a rectangle. */
    ts::Picture Item(const CRect& rect, UINT state = 0, UINT index = 0)
    {
        return ts::DrawTo(rect.right + 10, rect.bottom + 10, [&](HDC dc) {
            DRAWITEMSTRUCT draw = {};
            draw.itemID = index;
            draw.itemState = state;
            draw.hwndItem = m_header;
            draw.hDC = dc;
            draw.rcItem = rect;
            m_header.DrawItem(&draw);
        });
    }

    ts::AfxHost m_host{340, 100};
    CTestHdr m_header;
};

TEST_F(FlatHdr, BeginsUnsortedAscending)
{
    int direction = 7;
    EXPECT_EQ(-1, m_header.GetSortColumn(&direction));
    EXPECT_EQ(1, direction);
    EXPECT_EQ(-1, m_header.GetSortColumn(nullptr));
}

TEST_F(FlatHdr, SettingTheSortColumnGivesTheFormerOne)
{
    EXPECT_EQ(-1, m_header.SetSortColumn(1, 0));
    int direction = 7;
    EXPECT_EQ(1, m_header.GetSortColumn(&direction));
    EXPECT_EQ(0, direction);
    EXPECT_EQ(1, m_header.SetSortColumn(-1, 5));
    EXPECT_EQ(-1, m_header.GetSortColumn(&direction));
    EXPECT_EQ(5, direction);
}

TEST_F(FlatHdr, SettingTheSortColumnInvalidatesTheWholeHeader)
{
    ::ValidateRect(m_header, nullptr);
    m_header.SetSortColumn(0, 1);
    CRect update;
    ASSERT_TRUE(::GetUpdateRect(m_header, &update, FALSE));
    CRect client;
    m_header.GetClientRect(client);
    EXPECT_EQ(client, update);
}

TEST_F(FlatHdr, ChangesEraseBeforeTheyRepaint)
{
    m_header.UpdateWindow();
    ts::MessageRecorder log(m_header);
    log.RecordOnly({WM_ERASEBKGND});
    m_header.SetSortColumn(0, 1);
    m_header.UpdateWindow();
    EXPECT_EQ(1u, log.Messages().size());
    m_header.SetColor(kOtherBack, kOtherLine);
    m_header.UpdateWindow();
    EXPECT_EQ(2u, log.Messages().size());
}

TEST_F(FlatHdr, OwnerDrawIsAddedToTheFormats)
{
    EXPECT_EQ(HDF_OWNERDRAW | HDF_STRING | HDF_LEFT, Format(0));
    EXPECT_EQ(HDF_OWNERDRAW | HDF_STRING | HDF_RIGHT, Format(1));
    EXPECT_EQ(HDF_OWNERDRAW | HDF_STRING | HDF_CENTER, Format(2));
}

TEST_F(FlatHdr, OwnerDrawSkipsItemsThatCannotBeRead)
{
    ts::MessageRecorder log(m_header);
    log.RecordOnly({HDM_SETITEMW});
    log.Answer(HDM_GETITEMW, [](const ts::Message& message) -> std::optional<LRESULT> {
        return message.wParam == 1 ? std::optional<LRESULT>(FALSE) : std::nullopt;
    });
    m_header.SetOwnerDraw();
    EXPECT_TRUE(log.Is({ts::Msg(HDM_SETITEMW, 0), ts::Msg(HDM_SETITEMW, 2)}));
}

TEST_F(FlatHdr, ItemsKeepAValue)
{
    EXPECT_EQ(0u, m_header.GetItemData(1));
    EXPECT_TRUE(m_header.SetItemData(1, 0x123456789));
    EXPECT_EQ(0x123456789u, m_header.GetItemData(1));
    EXPECT_EQ(0u, m_header.GetItemData(0));
}

TEST_F(FlatHdr, ItemsThatAreNotThereHaveNoValue)
{
    EXPECT_FALSE(m_header.SetItemData(3, 1));
    EXPECT_EQ(0u, m_header.GetItemData(3));
    EXPECT_EQ(0u, m_header.GetItemData(-1));
}

TEST_F(FlatHdr, PaintsItemsWithSeparatorAndBottomLine)
{
    const ts::Picture look = ts::LookOf(m_header);
    EXPECT_TRUE(ts::PixelIs(look, 1, 1, kBack));
    EXPECT_TRUE(ts::AreaIs(look, CRect(0, 19, 300, 20), kLine));
    for (const int right : {100, 180, 240}) {
        EXPECT_TRUE(ts::AreaIs(look, CRect(right - 1, 0, right, 20), kLine)) << right;
    }
    EXPECT_GT(look.Crop(CRect(6, 2, 60, 18)).Count(RGB(0, 0, 0)), 5);
}

TEST_F(FlatHdr, FillsTheSpaceRightOfTheLastColumn)
{
    EXPECT_TRUE(ts::AreaIs(ts::LookOf(m_header), CRect(240, 0, 300, 19), kBack));
}

TEST_F(FlatHdr, PartialPaintsFillTheSpaceToo)
{
    ts::LookOf(m_header);
    const CRect part(250, 0, 290, 20);
    {
        CClientDC dc(&m_header);
        dc.FillSolidRect(part, RGB(255, 0, 0));
    }
    for (int i = 0; i < 2; ++i) {
        ::RedrawWindow(m_header, part, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
    }
    EXPECT_TRUE(ts::AreaIs(ts::CaptureWindow(m_header), CRect(240, 0, 300, 19), kBack));
}

/** What an item should look like, drawn by GDI: without an arrow, its text in a rectangle. */
ts::Picture ExpectedItem(const CRect& item, const wchar_t* text, CRect place, UINT align)
{
    return ts::DrawTo(item.right + 10, item.bottom + 10, [&](HDC dc) {
        CDC* const to = CDC::FromHandle(dc);
        to->FillSolidRect(&item, kBack);
        ::SelectObject(dc, ts::GuiFont());
        ::SetBkMode(dc, TRANSPARENT);
        ::DrawTextW(dc, text, -1, &place,
                    align | DT_VCENTER | DT_SINGLELINE | DT_NOCLIP | DT_NOPREFIX | DT_END_ELLIPSIS);
        to->FillSolidRect(item.right - 1, item.top, 1, item.Height(), kLine);
        to->FillSolidRect(item.left, item.bottom - 1, item.Width(), 1, kLine);
    });
}

TEST_F(FlatHdr, ItemsLookAsTheyShould)
{
    const CRect item(20, 5, 120, 25);
    const CRect text(26, 5, 114, 25);
    EXPECT_TRUE(ts::SamePicture(ExpectedItem(item, L"Name", text, DT_LEFT), Item(item, 0, 0)));
    EXPECT_TRUE(ts::SamePicture(ExpectedItem(item, L"Size", text, DT_RIGHT), Item(item, 0, 1)));
    EXPECT_TRUE(ts::SamePicture(ExpectedItem(item, L"Date", text, DT_CENTER), Item(item, 0, 2)));
    const CRect pressed(27, 7, 115, 25);
    EXPECT_TRUE(ts::SamePicture(ExpectedItem(item, L"Size", pressed, DT_RIGHT), Item(item, ODS_SELECTED, 1)));
}

TEST_F(FlatHdr, TextEndsBeforeTheArrow)
{
    Add(L"A & wide one", 60, HDF_LEFT);
    m_header.SetSortColumn(3, 0);
    const CRect item(0, 0, 70, 20);
    const CRect beside(0, 0, 58, 20); // the arrow stands right of it
    EXPECT_TRUE(ts::SamePicture(ExpectedItem(item, L"A & wide one", CRect(6, 0, 46, 20), DT_LEFT).Crop(beside),
                                Item(item, 0, 3).Crop(beside)));
    EXPECT_TRUE(ts::AreaIs(Item(item, 0, 3), CRect(59, 8, 64, 9), kLine));
}

TEST_F(FlatHdr, TextHasTwoHundredAndSixtyCharactersAtMost)
{
    const CString shown(L'i', 259); // and the character that ends it
    Add(shown + CString(L'M', 40), 60, HDF_LEFT);
    const CRect item(0, 0, 1500, 20);
    EXPECT_TRUE(ts::SamePicture(ExpectedItem(item, shown, CRect(6, 0, 1494, 20), DT_LEFT), Item(item, 0, 3)));
}

TEST_F(FlatHdr, TextIsReadWhereTheControlSaysThatItIs)
{
    const CRect item(0, 0, 100, 20);
    const CRect place(6, 0, 94, 20);
    for (const wchar_t* text : {L"Elsewhere", static_cast<const wchar_t*>(nullptr)}) {
        ts::MessageRecorder log(m_header);
        log.Answer(HDM_GETITEMW, [text](const ts::Message& message) -> std::optional<LRESULT> {
            auto* const asked = reinterpret_cast<HDITEMW*>(message.lParam);
            asked->pszText = const_cast<LPWSTR>(text);
            asked->fmt = HDF_LEFT;
            return TRUE;
        });
        EXPECT_TRUE(ts::SamePicture(ExpectedItem(item, text ? text : L"", place, DT_LEFT), Item(item)));
    }
}

TEST_F(FlatHdr, TallTextIsNotClipped)
{
    CFont tall;
    ASSERT_TRUE(tall.CreatePointFont(300, L"Tahoma"));
    ::SendMessageW(m_header, WM_SETFONT, reinterpret_cast<WPARAM>(tall.m_hObject), FALSE);
    const CRect item(20, 20, 220, 40);
    const ts::Picture look = Item(item);
    const CRect ink = look.BoundsOf(RGB(0, 0, 0));
    EXPECT_LT(ink.top, item.top);
    EXPECT_EQ(0, look.Crop(CRect(0, 0, 230, 20)).Count(kBack)); // the text has no background
    ::SendMessageW(m_header, WM_SETFONT, reinterpret_cast<WPARAM>(ts::GuiFont()), FALSE);
}

TEST_F(FlatHdr, RepaintTouchesTheScreenOnce)
{
    m_header.SetSortColumn(0, 1);
    m_header.UpdateWindow();
    const ts::ScreenDraws draws;
    ts::PaintNow(m_header);
    EXPECT_EQ(1, draws.Count());
}

TEST_F(FlatHdr, IsPaintedWithoutMemoryForItToo)
{
    m_header.SetSortColumn(0, 1);
    const ts::Picture look = ts::LookOf(m_header);
    {
        CClientDC dc(&m_header);
        dc.FillSolidRect(0, 0, 300, 20, RGB(255, 0, 0));
        const ts::ImportRedirection failing(
            {ts::ImportRedirection::Of(&::CreateCompatibleBitmap, &ts::NoCompatibleBitmap)});
        ts::PaintNow(m_header);
    }
    EXPECT_TRUE(ts::SamePicture(look, ts::CaptureWindow(m_header)));
}

TEST_F(FlatHdr, WithoutItemsIsFilledAsAWhole)
{
    while (m_header.GetItemCount() > 0) {
        m_header.DeleteItem(0);
    }
    const ts::Picture look = ts::LookOf(m_header);
    EXPECT_TRUE(ts::AreaIs(look, CRect(0, 0, 300, 19), kBack));
    EXPECT_TRUE(ts::AreaIs(look, CRect(0, 19, 300, 20), kLine));
    CTestHdr fresh;
    ASSERT_TRUE(fresh.CHeaderCtrl::Create(WS_CHILD | WS_VISIBLE, CRect(0, 40, 300, 60), &m_host, ts::kOtherId));
    EXPECT_TRUE(ts::SamePicture(look, ts::LookOf(fresh)));
    fresh.DestroyWindow();
}

TEST_F(FlatHdr, WithoutAColumnThatHasWidthIsFilledAsAWhole)
{
    ts::LookOf(m_header);
    HDITEMW narrow = {};
    narrow.mask = HDI_WIDTH;
    for (int i = 0; i < m_header.GetItemCount(); ++i) {
        m_header.SetItem(i, &narrow);
    }
    CTestHdr fresh;
    ASSERT_TRUE(fresh.CHeaderCtrl::Create(WS_CHILD | WS_VISIBLE, CRect(0, 40, 300, 60), &m_host, ts::kOtherId));
    narrow.mask = HDI_WIDTH | HDI_FORMAT;
    narrow.fmt = HDF_OWNERDRAW;
    fresh.InsertItem(0, &narrow);
    for (const CTestHdr* header : {&m_header, &fresh}) {
        CClientDC(const_cast<CTestHdr*>(header)).FillSolidRect(0, 0, 300, 20, RGB(255, 0, 0));
        const ts::Picture look = ts::LookOf(*header);
        EXPECT_TRUE(ts::AreaIs(look, CRect(0, 0, 300, 19), kBack));
        EXPECT_TRUE(ts::AreaIs(look, CRect(0, 19, 300, 20), kLine));
    }
    fresh.DestroyWindow();
}

TEST_F(FlatHdr, SpaceFollowsTheColumnsThatAreShown)
{
    ts::LookOf(m_header);
    m_header.DeleteItem(2);
    EXPECT_TRUE(ts::AreaIs(ts::LookOf(m_header), CRect(180, 0, 300, 19), kBack));
    std::array<int, 2> order = {1, 0};
    ASSERT_TRUE(m_header.SetOrderArray(2, order.data()));
    const ts::Picture look = ts::LookOf(m_header);
    EXPECT_TRUE(ts::AreaIs(look, CRect(180, 0, 300, 19), kBack));
    EXPECT_TRUE(ts::AreaIs(look, CRect(79, 0, 80, 20), kLine));
}

TEST_F(FlatHdr, SurvivesTheEndOfTheGdiObjects)
{
    m_header.SetSortColumn(0, 1);
    EXPECT_TRUE(ts::SurvivesGdiShortage(m_header));
}

TEST_F(FlatHdr, LinesNeedNoNewGdiObject)
{
    const CRect rect(0, 0, 100, 20);
    const ts::Picture look = Item(rect);
    const ts::Picture inNeed = ts::DrawTo(110, 30, [&](HDC dc) {
        const ts::GdiShortage shortage;
        DRAWITEMSTRUCT draw = {};
        draw.hDC = dc;
        draw.rcItem = rect;
        m_header.DrawItem(&draw);
    });
    EXPECT_TRUE(ts::SamePicture(look, inNeed));
}

TEST_F(FlatHdr, OtherColoursRepaintAtOnce)
{
    ::ValidateRect(m_header, nullptr);
    m_header.SetColor(kOtherBack, kOtherLine);
    EXPECT_TRUE(::GetUpdateRect(m_header, nullptr, FALSE));
    m_header.SetSortColumn(0, 1);
    const ts::Picture look = ts::LookOf(m_header);
    EXPECT_TRUE(ts::PixelIs(look, 1, 1, kOtherBack));
    EXPECT_TRUE(ts::AreaIs(look, CRect(0, 19, 300, 20), kOtherLine));
    EXPECT_TRUE(ts::AreaIs(look, CRect(240, 0, 300, 19), kOtherBack));
    EXPECT_GT(look.Crop(CRect(88, 8, 94, 11)).Count(kOtherLine), 5);
}

TEST_F(FlatHdr, ArrowShowsTheDirection)
{
    for (const int direction : {1, 0, 7}) {
        m_header.SetSortColumn(0, direction);
        const ts::Picture arrow = Item(CRect(0, 0, 100, 20)).Crop(CRect(86, 7, 97, 13));
        const auto row = [&arrow](int y) { return arrow.Crop(CRect(0, y, arrow.Width(), y + 1)).Count(kLine); };
        EXPECT_GT(arrow.Count(kLine), 5) << direction;
        EXPECT_EQ(direction != 0, row(1) < row(3)) << direction;
    }
}

TEST_F(FlatHdr, OnlyTheSortColumnHasAnArrow)
{
    m_header.SetSortColumn(0, 1);
    EXPECT_EQ(0, Item(CRect(0, 0, 100, 20), 0, 1).Crop(CRect(80, 4, 98, 16)).Count(kLine));
    m_header.SetSortColumn(-1, 1);
    EXPECT_EQ(0, Item(CRect(0, 0, 100, 20), 0, 0).Crop(CRect(80, 4, 98, 16)).Count(kLine));
}

TEST_F(FlatHdr, PressedTextIsOffsetAndTheArrowIsNot)
{
    m_header.SetSortColumn(0, 1);
    const CRect rect(0, 0, 100, 20);
    const ts::Picture up = Item(rect);
    const ts::Picture down = Item(rect, ODS_SELECTED);
    const CRect was = up.BoundsOf(RGB(0, 0, 0));
    const CRect is = down.BoundsOf(RGB(0, 0, 0));
    EXPECT_EQ(was.left + 1, is.left);
    EXPECT_EQ(was.top + 1, is.top); // the rectangle's bottom stays, so its centre goes down by one
    const CRect arrow(80, 4, 98, 16);
    EXPECT_TRUE(ts::SamePicture(up.Crop(arrow), down.Crop(arrow)));
}

TEST_F(FlatHdr, OnlyThePressedStateAloneMovesTheText)
{
    const CRect rect(0, 0, 100, 20);
    EXPECT_TRUE(ts::SamePicture(Item(rect), Item(rect, ODS_SELECTED | ODS_FOCUS)));
    EXPECT_FALSE(ts::SamePicture(Item(rect), Item(rect, ODS_SELECTED)));
}

TEST_F(FlatHdr, NarrowColumnHasNoTextButItsLinesAndArrow)
{
    m_header.SetSortColumn(0, 1);
    const ts::Picture look = Item(CRect(0, 0, 30, 20));
    EXPECT_EQ(0, look.Count(RGB(0, 0, 0)));
    EXPECT_TRUE(ts::PixelIs(look, 3, 3, kBack));
    EXPECT_TRUE(ts::AreaIs(look, CRect(29, 0, 30, 20), kLine));
    EXPECT_TRUE(ts::AreaIs(look, CRect(0, 19, 30, 20), kLine));
    EXPECT_GT(look.Crop(CRect(17, 8, 25, 12)).Count(kLine), 5);
    EXPECT_GT(Item(CRect(0, 0, 31, 20)).Count(RGB(0, 0, 0)), 0);
}

TEST_F(FlatHdr, DrawingLeavesTheDeviceContextAsItWas)
{
    ts::DrawTo(120, 30, [this](HDC dc) {
        ::SetBkMode(dc, OPAQUE);
        ::SetTextColor(dc, RGB(1, 2, 3));
        ::SetBkColor(dc, RGB(4, 5, 6));
        const HGDIOBJ font = ::GetCurrentObject(dc, OBJ_FONT);
        DRAWITEMSTRUCT draw = {};
        draw.hDC = dc;
        draw.rcItem = CRect(0, 0, 100, 20);
        m_header.DrawItem(&draw);
        EXPECT_EQ(OPAQUE, ::GetBkMode(dc));
        EXPECT_EQ(RGB(1, 2, 3), ::GetTextColor(dc));
        EXPECT_EQ(RGB(4, 5, 6), ::GetBkColor(dc));
        EXPECT_EQ(font, ::GetCurrentObject(dc, OBJ_FONT));
    });
}

TEST_F(FlatHdr, LongTextIsCutWithoutHarm)
{
    Add(CString(L'x', 1000), 50, HDF_LEFT);
    m_header.SetOwnerDraw();
    EXPECT_TRUE(ts::PixelIs(ts::LookOf(m_header), 241, 1, kBack));
}

TEST_F(FlatHdr, MissingDrawingDataIsIgnored)
{
    EXPECT_NO_THROW(m_header.DrawItem(nullptr));
    DRAWITEMSTRUCT draw = {};
    EXPECT_NO_THROW(m_header.DrawItem(&draw));
}

TEST(FlatHdrAlone, WorksWithoutAWindow)
{
    CFlatHdr header;
    header.SetOwnerDraw();
    header.SetColor(0, 0);
    EXPECT_EQ(-1, header.SetSortColumn(4, 0));
    EXPECT_EQ(4, header.GetSortColumn(nullptr));
    EXPECT_EQ(0u, header.GetItemData(0));
    EXPECT_FALSE(header.SetItemData(0, 1));
}

TEST_F(FlatHdr, LeavesNothingBehind)
{
    EXPECT_TRUE(ts::NoLeak([this] {
        CFlatHdr header;
        static_cast<CHeaderCtrl&>(header).Create(WS_CHILD | WS_VISIBLE, CRect(0, 30, 300, 50), &m_host, ts::kOtherId);
        HDITEMW item = {};
        item.mask = HDI_WIDTH | HDI_FORMAT;
        item.cxy = 50;
        item.fmt = HDF_OWNERDRAW;
        header.InsertItem(0, &item);
        header.SetSortColumn(0, 1);
        header.UpdateWindow();
        header.DestroyWindow();
    }));
}

} // namespace
