#include "Buttons.h"

#include <QorUI/buttons/BmpBtn.h>
#include <QorUI/res/resource.h>
#include <tests/support/Resources.h>
#include <tests/support/ui/Control.h>
#include <tests/support/ui/Drawn.h>
#include <tests/support/ui/Look.h>

namespace
{

constexpr COLORREF kRed = RGB(255, 0, 0);
constexpr COLORREF kGreen = RGB(0, 255, 0);
constexpr COLORREF kBlue = RGB(0, 0, 255);
constexpr COLORREF kYellow = RGB(255, 255, 0);
constexpr COLORREF kKey = RGB(255, 0, 255);

/** A button of 20 x 10, as large as a frame of the test strips. */
class BmpBtn : public testing::Test
{
  protected:
    void SetUp() override
    {
        Make();
        ts::ParkMouse();
    }

    void Make()
    {
        ASSERT_TRUE(m_button.Create(CRect(30, 40, 50, 50), &m_host, ts::kControlId));
        ASSERT_TRUE(m_button.SetImage(ts::Program(), IDB_FRAMES, nullptr, CLR_NONE));
    }

    ts::AfxHost m_host{300, 120};
    CBmpBtn m_button;
};

TEST_F(BmpBtn, IsCreatedVisibleOwnerDrawnAndWithoutText)
{
    const auto style = static_cast<DWORD>(::GetWindowLongPtrW(m_button, GWL_STYLE));
    EXPECT_EQ(DWORD{WS_CHILD | WS_VISIBLE | BS_OWNERDRAW}, style);
    EXPECT_EQ(int{ts::kControlId}, ::GetDlgCtrlID(m_button));
    EXPECT_EQ(0, m_button.GetWindowTextLength());
    EXPECT_EQ(CRect(30, 40, 50, 50), ts::PlaceIn(m_host, m_button));
}

TEST_F(BmpBtn, SubclassingMakesItOwnerDrawnAndKeepsItsSize)
{
    CBmpBtn button;
    ASSERT_TRUE(button.SubclassWindow(AddButton(m_host, L"", CRect(1, 2, 31, 42), ts::kOtherId)));
    EXPECT_EQ(UINT{BS_OWNERDRAW}, TypeOf(button));
    EXPECT_EQ(CRect(1, 2, 31, 42), ts::PlaceIn(m_host, button));
}

TEST_F(BmpBtn, StateChoosesTheFrame)
{
    EXPECT_EQ(200, DrawnItem(m_button, 20, 10, 0).Count(kRed));
    EXPECT_EQ(200, DrawnItem(m_button, 20, 10, ODS_SELECTED).Count(kBlue));
    EXPECT_EQ(200, DrawnItem(m_button, 20, 10, ODS_DISABLED).Count(kYellow));
    EXPECT_EQ(200, DrawnItem(m_button, 20, 10, ODS_DISABLED | ODS_SELECTED).Count(kYellow));
}

TEST_F(BmpBtn, FocusHasNoFrame)
{
    EXPECT_EQ(200, DrawnItem(m_button, 20, 10, ODS_FOCUS).Count(kRed));
}

TEST_F(BmpBtn, IsHotWhileTheMouseIsOverIt)
{
    EXPECT_EQ(200, Look(m_button).Count(kRed));
    ts::MoveMouse(m_button);
    EXPECT_EQ(200, Look(m_button).Count(kGreen));
    EXPECT_EQ(200, DrawnItem(m_button, 20, 10, ODS_SELECTED).Count(kBlue)) << "pressed wins over hot";
    EXPECT_EQ(200, DrawnItem(m_button, 20, 10, ODS_DISABLED).Count(kYellow)) << "disabled wins over hot";
    ts::ParkMouse();
    EXPECT_TRUE(ts::PumpUntil([this] { return Look(m_button).Count(kRed) == 200; }));
}

TEST_F(BmpBtn, IsPressedWhileTheMouseButtonIsDown)
{
    ts::MoveMouse(m_button);
    ts::MouseDown();
    EXPECT_EQ(200, Look(m_button).Count(kBlue));
    ts::MouseUp();
    EXPECT_EQ(1u, m_host.Log().Count(ts::Command(ts::kControlId, BN_CLICKED)));
}

TEST_F(BmpBtn, HotChangesRepaintWithoutErasing)
{
    ExpectHotChangesToRepaint(m_button);
}

TEST_F(BmpBtn, NewWindowIsColdAfterOneThatWentUnderTheMouse)
{
    ExpectNewWindowToBeCold(m_button, [this] { Make(); });
}

TEST_F(BmpBtn, StaysColdWithoutLeaveNotification)
{
    ExpectColdWithoutLeaveNotification(m_button, CRect(0, 0, 20, 10));
}

TEST_F(BmpBtn, DraggingOffReleasesIt)
{
    ExpectDragOffToRelease(m_button, m_host.Log());
}

TEST_F(BmpBtn, FailedSetImageDoesNotRepaint)
{
    ASSERT_TRUE(m_button.SetImage(ts::Program(), IDB_KEYED, nullptr, kKey));
    ts::Validate(m_button);
    EXPECT_FALSE(m_button.SetImage(ts::Program(), IDB_MISSING, nullptr, kRed));
    EXPECT_EQ(CRect(0, 0, 0, 0), ts::Dirty(m_button));
}

TEST_F(BmpBtn, LeaveMessageReturnsOneAndEraseMessageTrue)
{
    EXPECT_EQ(1, m_button.SendMessage(WM_MOUSELEAVE));
    const ts::Picture picture = ts::Drawn(20, 10, [this](CDC& dc) {
        const auto handle = reinterpret_cast<WPARAM>(dc.m_hDC);
        EXPECT_EQ(TRUE, m_button.SendMessage(WM_ERASEBKGND, handle));
    });
    EXPECT_EQ(200, picture.Count(ts::kPaper));
}

TEST_F(BmpBtn, ColourKeyLetsThroughWhatIsBehind)
{
    ASSERT_TRUE(m_button.SetImage(ts::Program(), IDB_KEYED, nullptr, kKey));
    const ts::Picture picture = DrawnItem(m_button, 20, 10, ODS_SELECTED);
    EXPECT_TRUE(ts::AreaIs(picture, CRect(0, 0, 1, 10), ts::kPaper));
    EXPECT_TRUE(ts::AreaIs(picture, CRect(1, 0, 20, 10), kBlue));
}

TEST_F(BmpBtn, WithoutColourKeyTheStripIsOpaque)
{
    ASSERT_TRUE(m_button.SetImage(ts::Program(), IDB_KEYED, nullptr, CLR_NONE));
    const ts::Picture picture = DrawnItem(m_button, 20, 10, 0);
    EXPECT_TRUE(ts::AreaIs(picture, CRect(0, 0, 1, 10), kKey));
    EXPECT_TRUE(ts::AreaIs(picture, CRect(1, 0, 20, 10), kRed));
}

TEST_F(BmpBtn, ResourceTypeLoadsACompressedPicture)
{
    ASSERT_TRUE(m_button.SetImage(ts::Program(), IDR_FRAMES, L"PNG", CLR_NONE));
    EXPECT_EQ(200, DrawnItem(m_button, 20, 10, ODS_DISABLED).Count(kYellow));
}

TEST_F(BmpBtn, WithoutResourceTypeOnlyABitmapResourceIsLoaded)
{
    EXPECT_FALSE(m_button.SetImage(ts::Program(), IDR_FRAMES, nullptr, CLR_NONE));
}

TEST_F(BmpBtn, FailedSetImageLeavesAnEmptyButton)
{
    EXPECT_FALSE(m_button.SetImage(ts::Program(), IDB_MISSING, nullptr, CLR_NONE));
    EXPECT_EQ(200, DrawnItem(m_button, 20, 10, 0).Count(ts::kPaper));
    ASSERT_TRUE(m_button.SetImage(ts::Program(), IDB_FRAMES, nullptr, CLR_NONE));
    EXPECT_FALSE(m_button.SetImage(ts::Program(), IDR_DAMAGED, L"PNG", CLR_NONE));
    EXPECT_EQ(200, DrawnItem(m_button, 20, 10, 0).Count(ts::kPaper));
}

TEST_F(BmpBtn, EmptyButtonStillDrawsItsCaption)
{
    m_button.SetImage(ts::Program(), IDB_MISSING, nullptr, CLR_NONE);
    m_button.SetWindowText(L"X");
    const ts::Picture picture = DrawnItem(m_button, 20, 10, 0);
    EXPECT_NE(0, picture.Count(RGB(255, 255, 255)));
    EXPECT_EQ(200, picture.Count(RGB(255, 255, 255)) + picture.Count(ts::kPaper));
}

TEST_F(BmpBtn, SetImageInvalidatesWithErase)
{
    ts::Validate(m_button);
    ASSERT_TRUE(m_button.SetImage(ts::Program(), IDB_KEYED, nullptr, kKey));
    EXPECT_EQ(CRect(0, 0, 20, 10), ts::Dirty(m_button));
    EXPECT_TRUE(ts::IsErasedByUpdate(m_button));
}

TEST_F(BmpBtn, SetImageWorksBeforeTheWindow)
{
    CBmpBtn button;
    EXPECT_TRUE(button.SetImage(ts::Program(), IDB_FRAMES, nullptr, CLR_NONE));
    EXPECT_FALSE(button.SetImage(ts::Program(), IDB_MISSING, nullptr, CLR_NONE));
}

TEST_F(BmpBtn, WiderButtonShowsSlicesOfTheWrongFrames)
{
    m_button.MoveWindow(30, 40, 40, 10);
    const ts::Picture normal = DrawnItem(m_button, 40, 10, 0);
    EXPECT_TRUE(ts::AreaIs(normal, CRect(0, 0, 20, 10), kRed));
    EXPECT_TRUE(ts::AreaIs(normal, CRect(20, 0, 40, 10), kGreen));
    const ts::Picture look = Look(m_button);
    EXPECT_TRUE(ts::AreaIs(look, CRect(20, 0, 40, 10), kGreen));
}

/** A caption in a rectangle of a picture of 60 x 24, beside a face. */
ts::Picture ExpectedCaption(const wchar_t* text, COLORREF colour, CRect rect = CRect(0, 0, 60, 24),
                            const CRect& face = CRect(0, 0, 0, 0))
{
    return ts::Drawn(60, 24, [&](CDC& dc) {
        if (!face.IsRectEmpty()) {
            dc.FillSolidRect(&face, kRed);
        }
        const HGDIOBJ old = ::SelectObject(dc, ts::GuiFont());
        ::SetTextColor(dc, colour);
        ::SetBkMode(dc, TRANSPARENT);
        ::DrawTextW(dc, text, -1, &rect, DT_CENTER | DT_VCENTER | DT_SINGLELINE);
        ::SelectObject(dc, old);
    });
}

TEST_F(BmpBtn, CaptionIsCentredInWhiteAndGreyWhenDisabled)
{
    m_button.SetImage(ts::Program(), IDB_MISSING, nullptr, CLR_NONE);
    m_button.SetWindowText(L"Text");
    EXPECT_TRUE(ts::SamePicture(ExpectedCaption(L"Text", RGB(255, 255, 255)), DrawnItem(m_button, 60, 24, 0)));
    EXPECT_TRUE(ts::SamePicture(ExpectedCaption(L"Text", ::GetSysColor(COLOR_GRAYTEXT)),
                                DrawnItem(m_button, 60, 24, ODS_DISABLED)));
}

TEST_F(BmpBtn, FaceStandsAtTheOriginAndTheCaptionInTheItem)
{
    m_button.SetWindowText(L"X");
    const CRect item(30, 12, 50, 22);
    const ts::Picture picture = ts::Drawn(60, 24, [&](CDC& dc) {
        DRAWITEMSTRUCT request = DrawRequest(m_button, dc, item, 0);
        m_button.DrawItem(&request);
    });
    EXPECT_TRUE(ts::SamePicture(ExpectedCaption(L"X", RGB(255, 255, 255), item, CRect(0, 0, 20, 10)), picture));
    EXPECT_NE(0, picture.Crop(item).Count(RGB(255, 255, 255)));
}

TEST_F(BmpBtn, DrawingLeavesTheDeviceContextAsItWas)
{
    m_button.SetWindowText(L"Text");
    ts::Drawn(20, 10, [this](CDC& dc) {
        dc.SetTextColor(RGB(9, 9, 9));
        dc.SetBkMode(OPAQUE);
        const HGDIOBJ font = ::GetCurrentObject(dc, OBJ_FONT);
        DRAWITEMSTRUCT request = DrawRequest(m_button, dc, CRect(0, 0, 20, 10), 0);
        m_button.DrawItem(&request);
        EXPECT_EQ(RGB(9, 9, 9), dc.GetTextColor());
        EXPECT_EQ(OPAQUE, dc.GetBkMode());
        EXPECT_EQ(font, ::GetCurrentObject(dc, OBJ_FONT));
    });
}

TEST_F(BmpBtn, DestroyingTheWindowDeletesTheImage)
{
    m_button.DestroyWindow();
    ASSERT_TRUE(m_button.Create(CRect(30, 40, 50, 50), &m_host, ts::kControlId));
    EXPECT_EQ(200, DrawnItem(m_button, 20, 10, 0).Count(ts::kPaper));
}

TEST_F(BmpBtn, CloseButtonStripHasFourFramesOf42By17)
{
    const ts::Picture strip = ts::ResourcePicture(ts::Library(), IDB_DLG_CLOSE);
    EXPECT_EQ(168, strip.Width());
    EXPECT_EQ(17, strip.Height());
}

TEST_F(BmpBtn, WithoutWindowItHasAFaceAndNoCaption)
{
    CBmpBtn none;
    ASSERT_TRUE(none.SetImage(ts::Program(), IDB_FRAMES, nullptr, CLR_NONE));
    EXPECT_EQ(200, DrawnItem(none, 20, 10, 0).Count(kRed));
    m_button.SetWindowText(L"X");
    m_button.DestroyWindow();
    ASSERT_TRUE(m_button.SetImage(ts::Program(), IDB_FRAMES, nullptr, CLR_NONE));
    EXPECT_EQ(200, DrawnItem(m_button, 20, 10, 0).Count(kRed));
}

TEST_F(BmpBtn, WithoutDeviceContextNothingIsDrawn)
{
    m_button.SetWindowText(L"Text");
    DRAWITEMSTRUCT request = DrawRequest(m_button, nullptr, CRect(0, 0, 20, 10), 0);
    EXPECT_NO_THROW(m_button.DrawItem(&request));
}

HGDIOBJ WINAPI SelectNothing(HDC, HGDIOBJ)
{
    return nullptr;
}

TEST_F(BmpBtn, StripThatCannotBeSelectedDrawsNothing)
{
    for (const COLORREF key : {COLORREF{CLR_NONE}, kKey}) {
        ASSERT_TRUE(m_button.SetImage(ts::Program(), IDB_FRAMES, nullptr, key));
        const ts::ReplacedImport none(L"QorUI.dll", "SelectObject", &SelectNothing);
        EXPECT_EQ(200, DrawnItem(m_button, 20, 10, 0).Count(ts::kPaper));
    }
}

TEST_F(BmpBtn, IsNotCreatedInADestroyedWindow)
{
    CWnd gone;
    ASSERT_TRUE(gone.CreateEx(0, AfxRegisterWndClass(0), L"", WS_POPUP, CRect(0, 0, 9, 9), nullptr, 0));
    gone.DestroyWindow();
    CBmpBtn button;
    EXPECT_FALSE(button.Create(CRect(0, 0, 9, 9), &gone, ts::kOtherId));
    EXPECT_EQ(nullptr, button.m_hWnd);
}

TEST_F(BmpBtn, ShowingPaintingAndClosingLeavesNothingBehind)
{
    EXPECT_TRUE(ts::NoLeak([this] {
        CBmpBtn button;
        button.Create(CRect(100, 40, 120, 50), &m_host, ts::kOtherId);
        button.SetImage(ts::Program(), IDR_FRAMES, L"PNG", kKey);
        button.SetImage(ts::Program(), IDB_KEYED, nullptr, kKey);
        button.SetWindowText(L"Text");
        button.RedrawWindow();
        button.DestroyWindow();
    }));
}

} // namespace
