#include "Buttons.h"

#include <QorUI/buttons/CmdBtn.h>
#include <tests/support/ui/Control.h>
#include <tests/support/ui/Drawn.h>
#include <tests/support/ui/Look.h>

#include <algorithm>

namespace
{

constexpr COLORREF kHotBorder = RGB(182, 230, 251);
constexpr COLORREF kHotFill = RGB(229, 244, 252);
constexpr COLORREF kBrush = RGB(250, 240, 230);
constexpr COLORREF kRed = RGB(255, 0, 0);
constexpr COLORREF kGreen = RGB(0, 255, 0);
constexpr int kWidth = 200;
constexpr int kHeight = 60;

/** A button of 200 x 60 with an icon that is red, white and black. */
class CmdBtn : public testing::Test
{
  protected:
    void SetUp() override
    {
        Make();
        ts::ParkMouse();
    }

    void Make()
    {
        ASSERT_TRUE(m_button.Create(IDI_SQUARE, L"What it does", CRect(20, 10, 220, 70), &m_host, ts::kControlId));
        m_button.SetWindowText(L"Title");
        m_button.SetFont(CFont::FromHandle(static_cast<HFONT>(ts::GuiFont())), FALSE);
    }

    /** What the button draws with a brush, the dialog font and a transparent background in the device context. */
    ts::Picture Draw(UINT state, UINT action = ODA_DRAWENTIRE)
    {
        return OnPaper([&](CDC& dc) {
            DRAWITEMSTRUCT request = DrawRequest(m_button, dc, CRect(0, 0, kWidth, kHeight), state, action);
            m_button.DrawItem(&request);
        });
    }

    static ts::Picture OnPaper(const std::function<void(CDC&)>& draw)
    {
        return ts::Drawn(kWidth, kHeight, [&](CDC& dc) {
            CBrush brush(kBrush);
            const HGDIOBJ oldBrush = ::SelectObject(dc, brush);
            const HGDIOBJ oldFont = ::SelectObject(dc, ts::GuiFont());
            ::SetBkMode(dc, TRANSPARENT);
            draw(dc);
            ::SelectObject(dc, oldFont);
            ::SelectObject(dc, oldBrush);
        });
    }

    ts::AfxHost m_host{300, 120};
    CCmdBtn m_button;
};

TEST_F(CmdBtn, IsCreatedVisibleAndOwnerDrawn)
{
    const auto style = static_cast<DWORD>(::GetWindowLongPtrW(m_button, GWL_STYLE));
    EXPECT_EQ(DWORD{WS_CHILD | WS_VISIBLE | BS_OWNERDRAW}, style);
    EXPECT_EQ(int{ts::kControlId}, ::GetDlgCtrlID(m_button));
    EXPECT_EQ(CRect(20, 10, 220, 70), ts::PlaceIn(m_host, m_button));
}

TEST_F(CmdBtn, IsCreatedWithoutText)
{
    CCmdBtn button;
    ASSERT_TRUE(button.Create(IDI_SQUARE, L"", CRect(0, 0, 9, 9), &m_host, ts::kOtherId));
    EXPECT_EQ(0, button.GetWindowTextLength());
}

TEST_F(CmdBtn, CreateWithMissingIconFails)
{
    CCmdBtn button;
    EXPECT_FALSE(button.Create(IDI_MISSING, L"", CRect(0, 0, 9, 9), &m_host, ts::kOtherId));
    button.DestroyWindow();
}

TEST_F(CmdBtn, SubclassingMakesItOwnerDrawnAndKeepsItsSize)
{
    CCmdBtn button;
    ASSERT_TRUE(button.SubclassWindow(AddButton(m_host, L"", CRect(1, 2, 101, 52), ts::kOtherId)));
    EXPECT_EQ(UINT{BS_OWNERDRAW}, TypeOf(button));
    EXPECT_EQ(CRect(1, 2, 101, 52), ts::PlaceIn(m_host, button));
}

TEST_F(CmdBtn, FillsWithTheBrushOfTheDeviceContext)
{
    const ts::Picture picture = Draw(0);
    EXPECT_TRUE(ts::AreaIs(picture, CRect(0, 0, kWidth, 5), kBrush));
    EXPECT_TRUE(ts::AreaIs(picture, CRect(0, 40, kWidth, kHeight), kBrush));
    EXPECT_EQ(0, picture.Count(ts::kPaper));
}

TEST_F(CmdBtn, IconStandsAt6In32By32)
{
    const ts::Picture picture = Draw(0);
    EXPECT_TRUE(ts::AreaIs(picture, CRect(6, 6, 22, 22), kRed));
    EXPECT_TRUE(ts::AreaIs(picture, CRect(22, 6, 38, 22), RGB(255, 255, 255)));
    EXPECT_TRUE(ts::AreaIs(picture, CRect(6, 22, 38, 38), 0));
    EXPECT_TRUE(ts::AreaIs(picture, CRect(0, 0, 6, kHeight), kBrush));
    EXPECT_TRUE(ts::AreaIs(picture, CRect(38, 6, 42, 38), kBrush));
}

/** Title and description as they should stand: 5 in on every side, 38 further to the right. */
void DrawExpectedTexts(CDC& dc, COLORREF colour, const wchar_t* title = L"Title",
                       const wchar_t* description = L"What it does")
{
    const COLORREF old = ::SetTextColor(dc, colour);
    RECT first = {43, 5, kWidth - 5, kHeight - 5};
    ::DrawTextW(dc, title, -1, &first, DT_CALCRECT | DT_SINGLELINE);
    ::DrawTextW(dc, title, -1, &first, DT_SINGLELINE);
    RECT second = {43, first.bottom, kWidth - 5, kHeight - 5};
    ::DrawTextW(dc, description, -1, &second, DT_WORDBREAK | DT_EDITCONTROL | DT_HIDEPREFIX);
    ::SetTextColor(dc, old);
}

TEST_F(CmdBtn, TitleAndDescriptionStandBesideTheIcon)
{
    const ts::Picture picture = Draw(0);
    const ts::Picture expected = OnPaper([](CDC& dc) {
        dc.PatBlt(0, 0, kWidth, kHeight, PATCOPY);
        DrawExpectedTexts(dc, ::GetSysColor(COLOR_BTNTEXT));
    });
    const CRect texts(42, 0, kWidth, kHeight);
    EXPECT_TRUE(ts::SamePicture(expected.Crop(texts), picture.Crop(texts)));
    EXPECT_NE(0, picture.Crop(texts).Count(::GetSysColor(COLOR_BTNTEXT)));
}

TEST_F(CmdBtn, DisabledTextsAreGrey)
{
    const ts::Picture picture = Draw(ODS_DISABLED);
    const ts::Picture expected = OnPaper([](CDC& dc) {
        dc.PatBlt(0, 0, kWidth, kHeight, PATCOPY);
        DrawExpectedTexts(dc, ::GetSysColor(COLOR_GRAYTEXT));
    });
    const CRect texts(42, 0, kWidth, kHeight);
    EXPECT_TRUE(ts::SamePicture(expected.Crop(texts), picture.Crop(texts)));
}

TEST_F(CmdBtn, LongDescriptionIsWrappedAndTitleIsNot)
{
    ASSERT_TRUE(m_button.SetBtn(0x10000, L"one two three four five six seven eight nine ten eleven twelve"));
    const ts::Picture wrapped = Draw(0);
    ASSERT_TRUE(m_button.SetBtn(0x10000, L"one"));
    const ts::Picture single = Draw(0);
    const auto ink = [](COLORREF pixel) { return pixel == ::GetSysColor(COLOR_BTNTEXT); };
    const CRect texts(42, 0, kWidth, kHeight);
    EXPECT_GT(wrapped.Crop(texts).Bounds(ink).bottom, single.Crop(texts).Bounds(ink).bottom + 8);
}

TEST_F(CmdBtn, AmpersandUnderlinesInTheTitleAndIsHiddenInTheDescription)
{
    ASSERT_TRUE(m_button.SetBtn(0x10000, L"What it && what &else it does"));
    m_button.SetWindowText(L"Ti&tle");
    const ts::Picture expected = OnPaper([](CDC& dc) {
        dc.PatBlt(0, 0, kWidth, kHeight, PATCOPY);
        DrawExpectedTexts(dc, ::GetSysColor(COLOR_BTNTEXT), L"Ti&tle", L"What it && what &else it does");
    });
    const CRect texts(42, 0, kWidth, kHeight);
    EXPECT_TRUE(ts::SamePicture(expected.Crop(texts), Draw(0).Crop(texts)));
}

TEST_F(CmdBtn, DescriptionIsBrokenInsideLongWordsAndCutAtWholeLines)
{
    const wchar_t* const text = L"An_endless_word_that_is_wider_than_the_button_itself and four more lines of text "
                                L"that do not find room in the button at all";
    ASSERT_TRUE(m_button.SetBtn(0x10000, text));
    const ts::Picture expected = OnPaper([=](CDC& dc) {
        dc.PatBlt(0, 0, kWidth, kHeight, PATCOPY);
        DrawExpectedTexts(dc, ::GetSysColor(COLOR_BTNTEXT), L"Title", text);
    });
    const CRect texts(42, 0, kWidth, kHeight);
    EXPECT_TRUE(ts::SamePicture(expected.Crop(texts), Draw(0).Crop(texts)));
}

TEST_F(CmdBtn, TextColourIsRestored)
{
    OnPaper([this](CDC& dc) {
        dc.SetTextColor(RGB(9, 9, 9));
        DRAWITEMSTRUCT request = DrawRequest(m_button, dc, CRect(0, 0, kWidth, kHeight), ODS_DISABLED);
        m_button.DrawItem(&request);
        EXPECT_EQ(RGB(9, 9, 9), dc.GetTextColor());
    });
}

TEST_F(CmdBtn, DisabledIconIsGrey)
{
    const ts::Picture picture = Draw(ODS_DISABLED);
    EXPECT_TRUE(ts::PixelIs(picture, 10, 10, RGB(76, 76, 76)));
    EXPECT_TRUE(ts::PixelIs(picture, 30, 10, RGB(255, 255, 255)));
    EXPECT_TRUE(ts::PixelIs(picture, 10, 30, 0));
}

int Icons()
{
    ts::HandleCounts counts = ts::CountHandles();
    return counts[ts::OnWine() ? "icon" : "USER objects"];
}

TEST_F(CmdBtn, GreyIconIsMadeOnce)
{
    const int before = Icons();
    Draw(ODS_DISABLED);
    EXPECT_EQ(before + 1, Icons());
    Draw(ODS_DISABLED);
    EXPECT_EQ(before + 1, Icons());
}

TEST_F(CmdBtn, NewIconDestroysTheGreyOne)
{
    ASSERT_TRUE(m_button.SetBtn(IDI_OTHER, nullptr));
    ASSERT_TRUE(m_button.SetBtn(IDI_SQUARE, nullptr)); // both are loaded now
    const int before = Icons();
    Draw(ODS_DISABLED);
    ASSERT_TRUE(m_button.SetBtn(IDI_OTHER, nullptr));
    EXPECT_EQ(before, Icons());
    EXPECT_TRUE(ts::PixelIs(Draw(ODS_DISABLED), 10, 10, RGB(149, 149, 149)));
}

TEST_F(CmdBtn, DestroyingTheWindowDestroysTheGreyIcon)
{
    const int before = Icons();
    Draw(ODS_DISABLED);
    m_button.DestroyWindow();
    EXPECT_LE(Icons(), before);
}

TEST_F(CmdBtn, MissingIconKeepsIconAndDescription)
{
    const ts::Picture before = Draw(0);
    EXPECT_EQ(FALSE, m_button.SetBtn(IDI_MISSING, L"Another"));
    EXPECT_TRUE(ts::SamePicture(before, Draw(0)));
}

TEST_F(CmdBtn, MissingIconKeepsTheGreyIcon)
{
    Draw(ODS_DISABLED);
    const int before = Icons();
    EXPECT_EQ(FALSE, m_button.SetBtn(IDI_MISSING, nullptr));
    EXPECT_EQ(before, Icons());
}

TEST_F(CmdBtn, IdFrom0x10000OnKeepsTheIcon)
{
    const ts::Picture before = Draw(0);
    EXPECT_EQ(TRUE, m_button.SetBtn(0x10000, L"Another"));
    const ts::Picture after = Draw(0);
    const CRect icon(6, 6, 38, 38);
    EXPECT_TRUE(ts::SamePicture(before.Crop(icon), after.Crop(icon)));
    EXPECT_TRUE(ts::FirstDifference(before, after).has_value()) << "the description is another one";
}

TEST_F(CmdBtn, NullDescriptionKeepsTheDescription)
{
    const ts::Picture before = Draw(0);
    EXPECT_EQ(TRUE, m_button.SetBtn(IDI_OTHER, nullptr));
    const ts::Picture after = Draw(0);
    const CRect texts(42, 0, kWidth, kHeight);
    EXPECT_TRUE(ts::SamePicture(before.Crop(texts), after.Crop(texts)));
    EXPECT_TRUE(ts::AreaIs(after, CRect(6, 6, 38, 38), kGreen));
}

TEST_F(CmdBtn, SetBtnInvalidatesWithErase)
{
    ts::Validate(m_button);
    m_button.SetBtn(0x10000, nullptr);
    EXPECT_EQ(CRect(0, 0, kWidth, kHeight), ts::Dirty(m_button));
    EXPECT_TRUE(ts::IsErasedByUpdate(m_button));
    EXPECT_FALSE(m_button.SetBtn(IDI_MISSING, L"Another"));
    EXPECT_EQ(CRect(0, 0, 0, 0), ts::Dirty(m_button)) << "refused";
}

TEST_F(CmdBtn, SetBtnWorksBeforeTheWindow)
{
    CCmdBtn button;
    EXPECT_TRUE(button.SetBtn(IDI_SQUARE, L"Text"));
    EXPECT_FALSE(button.SetBtn(IDI_MISSING, L"Text"));
}

/** Where two pictures differ. */
CRect Changed(const ts::Picture& one, const ts::Picture& other)
{
    CRect changed(kWidth, kHeight, 0, 0);
    for (int y = 0; y < kHeight; ++y) {
        for (int x = 0; x < kWidth; ++x) {
            if (one.At(x, y) != other.At(x, y)) {
                changed = CRect((std::min)(changed.left, LONG{x}), (std::min)(changed.top, LONG{y}),
                                (std::max)(changed.right, LONG{x + 1}), (std::max)(changed.bottom, LONG{y + 1}));
            }
        }
    }
    return changed;
}

/** The focus rectangle: the measured title, one pixel larger on every side. */
CRect FocusPlace()
{
    RECT title = {43, 5, kWidth - 5, kHeight - 5};
    ts::Drawn(1, 1, [&](CDC& dc) {
        const HGDIOBJ old = ::SelectObject(dc, ts::GuiFont());
        ::DrawTextW(dc, L"Title", -1, &title, DT_CALCRECT | DT_SINGLELINE);
        ::SelectObject(dc, old);
    });
    return CRect(title.left - 1, title.top - 1, title.right + 1, title.bottom + 1);
}

TEST_F(CmdBtn, FocusedButtonHasARectangleAroundTheTitle)
{
    EXPECT_EQ(FocusPlace(), Changed(Draw(0), Draw(ODS_FOCUS)));
}

TEST_F(CmdBtn, FocusChangeDrawsTheRectangleAndNothingElse)
{
    const CRect inside(FocusPlace().left + 1, FocusPlace().top + 1, FocusPlace().right - 1, FocusPlace().bottom - 1);
    for (const UINT also : {0, ODA_SELECT, ODA_DRAWENTIRE}) {
        const ts::Picture picture = Draw(ODS_FOCUS, ODA_FOCUS | also);
        EXPECT_EQ(FocusPlace(), CRect(picture.BoundsOfOthers(ts::kPaper))) << also;
        EXPECT_EQ(0, picture.Count(kBrush)) << also;
        EXPECT_TRUE(ts::AreaIs(picture, inside, ts::kPaper)) << also;
    }
}

TEST_F(CmdBtn, FocusRectangleDrawnTwiceIsGone)
{
    const ts::Picture picture = OnPaper([this](CDC& dc) {
        DRAWITEMSTRUCT request = DrawRequest(m_button, dc, CRect(0, 0, kWidth, kHeight), 0, ODA_FOCUS);
        m_button.DrawItem(&request);
        m_button.DrawItem(&request);
    });
    EXPECT_EQ(kWidth * kHeight, picture.Count(ts::kPaper));
}

TEST_F(CmdBtn, HotButtonHasARoundedHighlight)
{
    ts::MoveMouse(m_button);
    const ts::Picture picture = Draw(0);
    for (const CPoint at : {CPoint(100, 0), CPoint(100, kHeight - 1), CPoint(0, 30), CPoint(kWidth - 1, 30)}) {
        EXPECT_TRUE(ts::PixelIs(picture, at.x, at.y, kHotBorder));
    }
    EXPECT_TRUE(ts::AreaIs(picture, CRect(4, 1, kWidth - 4, 5), kHotFill));
    EXPECT_TRUE(ts::PixelIs(picture, 0, 0, ts::kPaper)) << "round corner";
    EXPECT_TRUE(ts::PixelIs(picture, 10, 10, kRed)) << "icon on top";
    EXPECT_EQ(0, picture.Count(kBrush));
}

TEST_F(CmdBtn, IsHotWhileTheMouseIsOverIt)
{
    EXPECT_EQ(0, Look(m_button).Count(kHotFill));
    ts::MoveMouse(m_button);
    EXPECT_NE(0, Look(m_button).Count(kHotFill));
    ts::ParkMouse();
    EXPECT_TRUE(ts::PumpUntil([this] { return Look(m_button).Count(kHotFill) == 0; }));
}

TEST_F(CmdBtn, HotChangesRepaintWithoutErasing)
{
    ExpectHotChangesToRepaint(m_button);
}

TEST_F(CmdBtn, NewWindowIsColdAfterOneThatWentUnderTheMouse)
{
    ExpectNewWindowToBeCold(m_button, [this] { Make(); });
}

TEST_F(CmdBtn, StaysColdWithoutLeaveNotification)
{
    ExpectColdWithoutLeaveNotification(m_button, CRect(0, 0, kWidth, kHeight));
}

TEST_F(CmdBtn, DraggingOffReleasesIt)
{
    ExpectDragOffToRelease(m_button, m_host.Log());
}

TEST_F(CmdBtn, LeaveMessageReturnsOneAndEraseMessageTrue)
{
    EXPECT_EQ(1, m_button.SendMessage(WM_MOUSELEAVE));
    const ts::Picture picture = OnPaper(
        [this](CDC& dc) { EXPECT_EQ(TRUE, m_button.SendMessage(WM_ERASEBKGND, reinterpret_cast<WPARAM>(dc.m_hDC))); });
    EXPECT_EQ(kWidth * kHeight, picture.Count(ts::kPaper));
}

TEST_F(CmdBtn, ClickReachesTheParent)
{
    ts::Click(m_button);
    EXPECT_EQ(1u, m_host.Log().Count(ts::Command(ts::kControlId, BN_CLICKED)));
}

TEST_F(CmdBtn, DisabledButtonDrawsItsOwnIconWhenNoGreyOneCanBeMade)
{
    ASSERT_TRUE(m_button.SetBtn(IDI_MONO, nullptr)); // has no colours that could become grey
    const ts::Picture picture = Draw(ODS_DISABLED);
    EXPECT_TRUE(ts::AreaIs(picture, CRect(6, 6, 22, 38), RGB(255, 255, 255)));
    EXPECT_TRUE(ts::AreaIs(picture, CRect(22, 6, 38, 38), RGB(0, 0, 0)));
}

TEST_F(CmdBtn, GreyIconThatCouldNotBeMadeIsMadeLater)
{
    OnPaper([&](CDC& dc) {
        DRAWITEMSTRUCT request = DrawRequest(m_button, dc, CRect(0, 0, kWidth, kHeight), ODS_DISABLED);
        const ts::GdiShortage shortage;
        m_button.DrawItem(&request);
    });
    EXPECT_TRUE(ts::PixelIs(Draw(ODS_DISABLED), 10, 10, RGB(76, 76, 76)));
}

TEST_F(CmdBtn, HighlightWithoutGdiHandlesIsNotFilledAndNothingIsThrown)
{
    const ts::Picture picture = OnPaper([&](CDC& dc) {
        CRect rect(0, 0, kWidth, kHeight);
        const ts::GdiShortage shortage;
        m_button.DrawRect(&dc, rect);
    });
    EXPECT_EQ(0, picture.Count(kHotFill));
}

TEST_F(CmdBtn, WithoutWindowItHasADescriptionAndNoTitle)
{
    CCmdBtn none;
    ASSERT_TRUE(none.SetBtn(IDI_SQUARE, L"Text"));
    const ts::Picture picture = DrawnItem(none, kWidth, kHeight, ODS_DISABLED | ODS_FOCUS);
    EXPECT_TRUE(ts::PixelIs(picture, 10, 10, RGB(76, 76, 76)));
    m_button.DestroyWindow();
    EXPECT_TRUE(m_button.SetBtn(IDI_OTHER, L"Text"));
    EXPECT_TRUE(ts::AreaIs(DrawnItem(m_button, kWidth, kHeight, 0), CRect(6, 6, 38, 38), kGreen));
}

TEST_F(CmdBtn, WithoutDeviceContextNothingIsDrawn)
{
    CRect rect(0, 0, kWidth, kHeight);
    m_button.DrawRect(nullptr, rect);
    m_button.DrawText(nullptr, rect, 3);
    EXPECT_EQ(CRect(0, 0, kWidth, kHeight), rect);
    DRAWITEMSTRUCT request = DrawRequest(m_button, nullptr, rect, 0);
    EXPECT_NO_THROW(m_button.DrawItem(&request));
}

TEST_F(CmdBtn, ShowingPaintingAndClosingLeavesNothingBehind)
{
    EXPECT_TRUE(ts::NoLeak([this] {
        CCmdBtn button;
        button.Create(IDI_SQUARE, L"Text", CRect(20, 75, 220, 115), &m_host, ts::kOtherId);
        button.EnableWindow(FALSE);
        button.RedrawWindow();
        DrawnItem(button, kWidth, kHeight, ODS_DISABLED);
        button.SetBtn(IDI_OTHER, L"Text");
        DrawnItem(button, kWidth, kHeight, ODS_DISABLED);
        button.DestroyWindow();
    }));
}

} // namespace
