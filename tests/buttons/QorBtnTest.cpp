#include "Buttons.h"

#include <QorUI/buttons/QorBtn.h>
#include <QorUI/res/resource.h>
#include <tests/support/Resources.h>
#include <tests/support/ui/Control.h>
#include <tests/support/ui/Drawn.h>

#include <algorithm>

namespace
{

struct StyleRow
{
    COLORREF outer;
    COLORREF inner;
    UINT face;
};

constexpr StyleRow kRows[] = {{RGB(111, 111, 111), RGB(242, 242, 242), IDB_BTN_NORMAL},
                              {RGB(59, 126, 176), RGB(231, 244, 251), IDB_BTN_HOT},
                              {RGB(43, 97, 138), RGB(231, 244, 251), IDB_BTN_PRESSED},
                              {RGB(172, 177, 180), RGB(251, 251, 251), IDB_BTN_DISABLED}};
constexpr UINT kNormalRow = 0;
constexpr UINT kHotRow = 1;
constexpr COLORREF kNormal = kRows[kNormalRow].outer;
constexpr COLORREF kHot = kRows[kHotRow].outer;
constexpr COLORREF kPressed = kRows[2].outer;
constexpr COLORREF kDisabled = kRows[3].outer;

/** A button of 80 x 21 with a window. */
class QorBtn : public testing::Test
{
  protected:
    void SetUp() override
    {
        Take();
        ts::ParkMouse();
    }

    void Take()
    {
        ASSERT_TRUE(m_button.SubclassWindow(AddButton(m_host, L"", CRect(20, 30, 100, 60), ts::kControlId)));
    }

    /** The outer border that the button has on the screen. */
    COLORREF Border() { return Look(m_button).At(40, 0); }

    ts::AfxHost m_host{300, 120};
    CQorBtn m_button;
};

TEST_F(QorBtn, SubclassingMakesItOwnerDrawnAnd21PixelsHigh)
{
    EXPECT_EQ(UINT{BS_OWNERDRAW}, TypeOf(m_button));
    EXPECT_EQ(CRect(20, 30, 100, 51), ts::PlaceIn(m_host, m_button));
}

TEST_F(QorBtn, CreatedButtonIsOwnerDrawnToo)
{
    CQorBtn button;
    ASSERT_TRUE(button.Create(L"Text", WS_CHILD | WS_VISIBLE, CRect(120, 30, 200, 51), &m_host, ts::kOtherId));
    EXPECT_EQ(UINT{BS_OWNERDRAW}, TypeOf(button));
    EXPECT_EQ(CRect(120, 30, 200, 51), ts::PlaceIn(m_host, button));
}

TEST_F(QorBtn, CreatedButtonIs21PixelsHighToo)
{
    CQorBtn button;
    ASSERT_TRUE(button.Create(L"Text", WS_CHILD | WS_VISIBLE, CRect(120, 30, 200, 70), &m_host, ts::kOtherId));
    EXPECT_EQ(CRect(120, 30, 200, 51), ts::PlaceIn(m_host, button));
}

TEST_F(QorBtn, StaysBehindTheWindowsThatWereBeforeIt)
{
    const HWND first = AddButton(m_host, L"", CRect(0, 0, 9, 9), ts::kOtherId);
    const HWND second = AddButton(m_host, L"", CRect(0, 0, 9, 9), ts::kOtherId);
    CQorBtn button;
    ASSERT_TRUE(button.SubclassWindow(second));
    EXPECT_EQ(second, ::GetWindow(first, GW_HWNDNEXT));
}

class ButtonsDlg : public CDialog
{
  public:
    ButtonsDlg() : CDialog(IDD_BUTTONS) {}
    CRect m_template;
    CRect m_skinned;

  protected:
    BOOL OnInitDialog() override
    {
        CDialog::OnInitDialog();
        m_template = ts::PlaceIn(*this, ::GetDlgItem(m_hWnd, IDC_FIRST));
        m_button.SubclassDlgItem(IDC_FIRST, this);
        m_skinned = ts::PlaceIn(*this, m_button);
        EndDialog(IDOK);
        return TRUE;
    }

  private:
    CQorBtn m_button;
};

TEST(QorBtnInDialog, TemplateButton14UnitsHighIs21PixelsHighAfterwards)
{
    ASSERT_TRUE(ts::HasStandardDialogFont());
    ButtonsDlg dialog;
    dialog.DoModal();
    EXPECT_EQ(23, dialog.m_template.Height()) << "14 units";
    EXPECT_EQ(21, dialog.m_skinned.Height());
    EXPECT_EQ(dialog.m_template.TopLeft(), dialog.m_skinned.TopLeft());
    EXPECT_EQ(dialog.m_template.Width(), dialog.m_skinned.Width());
}

TEST_F(QorBtn, DefaultButtonStyleKeepsItOwnerDrawn)
{
    EXPECT_EQ(0, m_button.SendMessage(BM_SETSTYLE, BS_DEFPUSHBUTTON, TRUE));
    EXPECT_EQ(UINT{BS_OWNERDRAW}, TypeOf(m_button));
    EXPECT_EQ(0, m_button.SendMessage(BM_SETSTYLE, BS_PUSHBUTTON, TRUE));
    EXPECT_EQ(UINT{BS_OWNERDRAW}, TypeOf(m_button));
}

TEST_F(QorBtn, DefaultButtonStyleRestoresALostOwnerDrawnOne)
{
    ::SetWindowLongPtrW(m_button, GWL_STYLE, ::GetWindowLongPtrW(m_button, GWL_STYLE) & ~BS_TYPEMASK);
    m_button.SendMessage(BM_SETSTYLE, BS_DEFPUSHBUTTON, TRUE);
    EXPECT_EQ(UINT{BS_OWNERDRAW}, TypeOf(m_button));
}

TEST_F(QorBtn, IsNotErased)
{
    const ts::Picture picture = ts::Drawn(80, 21, [this](CDC& dc) {
        const auto handle = reinterpret_cast<WPARAM>(dc.m_hDC);
        EXPECT_EQ(TRUE, m_button.SendMessage(WM_ERASEBKGND, handle));
    });
    EXPECT_EQ(80 * 21, picture.Count(ts::kPaper));
}

ts::Picture DrawnBack(CQorBtn& button, UINT row, BOOL focus = FALSE)
{
    return ts::Drawn(60, 25, [&](CDC& dc) {
        CRect rect(2, 3, 58, 24);
        button.DrawBack(&dc, rect, row, focus);
    });
}

TEST_F(QorBtn, RowsHaveTheirOuterAndInnerBorder)
{
    for (UINT row = 0; row < 4; ++row) {
        const ts::Picture picture = DrawnBack(m_button, row);
        for (const CPoint at : {CPoint(30, 3), CPoint(30, 23), CPoint(2, 13), CPoint(57, 13)}) {
            EXPECT_TRUE(ts::PixelIs(picture, at.x, at.y, kRows[row].outer)) << "row " << row;
        }
        for (const CPoint at : {CPoint(30, 4), CPoint(30, 22), CPoint(3, 13), CPoint(56, 13)}) {
            EXPECT_TRUE(ts::PixelIs(picture, at.x, at.y, kRows[row].inner)) << "row " << row;
        }
    }
}

TEST_F(QorBtn, FaceStartsJustUnderTheTopBorder)
{
    for (UINT row = 0; row < 4; ++row) {
        const ts::Picture picture = DrawnBack(m_button, row);
        const ts::Picture face = ts::ResourcePicture(ts::Library(), kRows[row].face);
        ASSERT_EQ(6, face.Width());
        ASSERT_EQ(17, face.Height());
        for (int y = 5; y < 22; ++y) {
            for (int x = 8; x < 52; ++x) {
                ASSERT_TRUE(ts::PixelIs(picture, x, y, face.At((x - 3) % 6, y - 5))) << "row " << row;
            }
        }
    }
}

TEST_F(QorBtn, CornersAreRound)
{
    const ts::Picture picture = DrawnBack(m_button, kNormalRow);
    for (const CPoint at : {CPoint(2, 3), CPoint(57, 3), CPoint(2, 23), CPoint(57, 23)}) {
        EXPECT_TRUE(ts::PixelIs(picture, at.x, at.y, ts::kPaper));
    }
    EXPECT_EQ(CRect(2, 3, 58, 24), CRect(picture.BoundsOfOthers(ts::kPaper)));
}

TEST_F(QorBtn, FocusRectangleLiesTwoPixelsInside)
{
    const ts::Picture without = DrawnBack(m_button, kNormalRow);
    const ts::Picture with = DrawnBack(m_button, kNormalRow, TRUE);
    CRect changed(60, 25, 0, 0);
    for (int y = 0; y < 25; ++y) {
        for (int x = 0; x < 60; ++x) {
            if (with.At(x, y) != without.At(x, y)) {
                changed = CRect((std::min)(changed.left, LONG{x}), (std::min)(changed.top, LONG{y}),
                                (std::max)(changed.right, LONG{x + 1}), (std::max)(changed.bottom, LONG{y + 1}));
            }
        }
    }
    EXPECT_EQ(CRect(4, 5, 56, 22), changed);
    EXPECT_EQ(with.At(30, 13), without.At(30, 13));
}

TEST_F(QorBtn, DrawBackLeavesTheRoomInside)
{
    ts::Drawn(60, 25, [this](CDC& dc) {
        CRect rect(2, 3, 58, 24);
        m_button.DrawBack(&dc, rect, kNormalRow, FALSE);
        EXPECT_EQ(CRect(3, 4, 57, 23), rect);
        rect = CRect(2, 3, 58, 24);
        m_button.DrawBack(&dc, rect, kNormalRow, TRUE);
        EXPECT_EQ(CRect(4, 5, 56, 22), rect);
    });
}

TEST_F(QorBtn, RowOutOfRangeDrawsNothing)
{
    EXPECT_EQ(60 * 25, DrawnBack(m_button, std::size(kRows)).Count(ts::kPaper));
    EXPECT_EQ(60 * 25, DrawnBack(m_button, UINT_MAX).Count(ts::kPaper));
}

TEST_F(QorBtn, DrawBackLeavesTheDeviceContextAsItWas)
{
    ts::Drawn(60, 25, [this](CDC& dc) {
        dc.SetBrushOrg(5, 6);
        const HGDIOBJ pen = ::GetCurrentObject(dc, OBJ_PEN);
        const HGDIOBJ brush = ::GetCurrentObject(dc, OBJ_BRUSH);
        CRect rect(2, 3, 58, 24);
        m_button.DrawBack(&dc, rect, kHotRow, TRUE);
        EXPECT_EQ(CPoint(5, 6), dc.GetBrushOrg());
        EXPECT_EQ(pen, ::GetCurrentObject(dc, OBJ_PEN));
        EXPECT_EQ(brush, ::GetCurrentObject(dc, OBJ_BRUSH));
    });
}

void DrawExpectedText(CDC& dc, CRect rect, const wchar_t* text, COLORREF colour, HGDIOBJ font)
{
    const HGDIOBJ old = ::SelectObject(dc, font);
    ::SetTextColor(dc, colour);
    ::SetBkMode(dc, TRANSPARENT);
    ::DrawTextW(dc, text, -1, &rect, DT_CENTER | DT_VCENTER | DT_SINGLELINE);
    ::SelectObject(dc, old);
}

ts::Picture ExpectedText(const wchar_t* text, COLORREF colour, HGDIOBJ font)
{
    return ts::Drawn(80, 21, [&](CDC& dc) { DrawExpectedText(dc, CRect(0, 0, 80, 21), text, colour, font); });
}

ts::Picture DrawnText(CQorBtn& button, BOOL disabled)
{
    return ts::Drawn(80, 21, [&](CDC& dc) {
        CRect rect(0, 0, 80, 21);
        button.DrawText(&dc, rect, disabled);
    });
}

TEST_F(QorBtn, TextIsCentredInTheButtonsFontAndColour)
{
    m_button.SetWindowText(L"&Text");
    CFont font;
    font.CreatePointFont(120, L"Tahoma");
    m_button.SetFont(&font);
    const ts::Picture enabled = DrawnText(m_button, FALSE);
    EXPECT_TRUE(ts::SamePicture(ExpectedText(L"&Text", ::GetSysColor(COLOR_BTNTEXT), font), enabled));
    EXPECT_NE(0, enabled.Count(::GetSysColor(COLOR_BTNTEXT)));
    const ts::Picture disabled = DrawnText(m_button, TRUE);
    EXPECT_TRUE(ts::SamePicture(ExpectedText(L"&Text", ::GetSysColor(COLOR_GRAYTEXT), font), disabled));
    EXPECT_NE(0, disabled.Count(::GetSysColor(COLOR_GRAYTEXT)));
}

TEST_F(QorBtn, DrawTextLeavesTheDeviceContextAsItWas)
{
    m_button.SetWindowText(L"Text");
    ts::Drawn(80, 21, [this](CDC& dc) {
        dc.SetTextColor(RGB(9, 9, 9));
        dc.SetBkMode(OPAQUE);
        const HGDIOBJ font = ::GetCurrentObject(dc, OBJ_FONT);
        CRect rect(0, 0, 80, 21);
        m_button.DrawText(&dc, rect, FALSE);
        EXPECT_EQ(RGB(9, 9, 9), dc.GetTextColor());
        EXPECT_EQ(OPAQUE, dc.GetBkMode());
        EXPECT_EQ(font, ::GetCurrentObject(dc, OBJ_FONT));
    });
}

TEST_F(QorBtn, StateChoosesTheRow)
{
    EXPECT_EQ(kNormal, DrawnItem(m_button, 80, 21, 0).At(40, 0));
    EXPECT_EQ(kPressed, DrawnItem(m_button, 80, 21, ODS_SELECTED).At(40, 0));
    EXPECT_EQ(kDisabled, DrawnItem(m_button, 80, 21, ODS_DISABLED).At(40, 0));
    EXPECT_EQ(kDisabled, DrawnItem(m_button, 80, 21, ODS_DISABLED | ODS_SELECTED).At(40, 0));
}

/** Expects the item of a button with a text to be the face of a row with the text on it. */
void ExpectItemWithText(CQorBtn& button, const wchar_t* text, UINT state, UINT row, COLORREF colour)
{
    const HGDIOBJ font = reinterpret_cast<HGDIOBJ>(button.SendMessage(WM_GETFONT));
    button.SetWindowText(text);
    const ts::Picture expected = ts::Drawn(80, 21, [&](CDC& dc) {
        CRect rect(0, 0, 80, 21);
        button.DrawBack(&dc, rect, row, (state & ODS_FOCUS) != 0);
        DrawExpectedText(dc, rect, text, colour, font);
    });
    EXPECT_TRUE(ts::SamePicture(expected, DrawnItem(button, 80, 21, state)));
    EXPECT_GT(expected.Crop(CRect(6, 2, 74, 19)).Count(colour), 20) << text;
}

TEST_F(QorBtn, TextStandsOnTheFaceInsideTheBorders)
{
    for (const wchar_t* text : {L"Text", L"A text that is wider than the button is"}) {
        ExpectItemWithText(m_button, text, 0, 0, ::GetSysColor(COLOR_BTNTEXT));
        ExpectItemWithText(m_button, text, ODS_FOCUS, 0, ::GetSysColor(COLOR_BTNTEXT));
        ExpectItemWithText(m_button, text, ODS_DISABLED, 3, ::GetSysColor(COLOR_GRAYTEXT));
    }
}

TEST_F(QorBtn, DisabledWinsOverPressedAndPressedOverHot)
{
    ts::MoveMouse(m_button);
    EXPECT_EQ(kHot, DrawnItem(m_button, 80, 21, 0).At(40, 0));
    EXPECT_EQ(kPressed, DrawnItem(m_button, 80, 21, ODS_SELECTED).At(40, 0));
    EXPECT_EQ(kDisabled, DrawnItem(m_button, 80, 21, ODS_DISABLED).At(40, 0));
    EXPECT_EQ(kDisabled, DrawnItem(m_button, 80, 21, ODS_DISABLED | ODS_SELECTED).At(40, 0));
}

TEST_F(QorBtn, FocusStateDrawsTheFocusRectangle)
{
    const ts::Picture plain = DrawnItem(m_button, 80, 21, 0);
    const ts::Picture focused = DrawnItem(m_button, 80, 21, ODS_FOCUS);
    EXPECT_TRUE(ts::FirstDifference(plain, focused).has_value());
    EXPECT_EQ(plain.At(40, 0), focused.At(40, 0));
}

TEST_F(QorBtn, IsDrawnOnTheScreen)
{
    const ts::Picture picture = Look(m_button);
    EXPECT_TRUE(ts::PixelIs(picture, 40, 0, kNormal));
    EXPECT_TRUE(ts::PixelIs(picture, 40, 1, kRows[0].inner));
    EXPECT_TRUE(ts::PixelIs(picture, 40, 10, ts::ResourcePicture(ts::Library(), IDB_BTN_NORMAL).At(3, 8)));
}

TEST_F(QorBtn, IsHotWhileTheMouseIsOverIt)
{
    EXPECT_EQ(kNormal, Border());
    ts::MoveMouse(m_button);
    EXPECT_EQ(kHot, Border());
    ts::ParkMouse();
    ASSERT_TRUE(ts::PumpUntil([this] { return Border() == kNormal; }));
}

TEST_F(QorBtn, SecondMoveDoesNotRepaint)
{
    ts::MoveMouse(m_button, 40, 10);
    ::UpdateWindow(m_button);
    m_button.SendMessage(WM_MOUSEMOVE, 0, MAKELPARAM(41, 10));
    EXPECT_FALSE(::GetUpdateRect(m_button, nullptr, FALSE));
}

TEST_F(QorBtn, LeaveMessageReturnsOneAndRepaints)
{
    ts::MoveMouse(m_button);
    ::UpdateWindow(m_button);
    EXPECT_EQ(1, m_button.SendMessage(WM_MOUSELEAVE));
    CRect all;
    EXPECT_TRUE(::GetUpdateRect(m_button, &all, FALSE));
    EXPECT_EQ(CRect(0, 0, 80, 21), all);
    EXPECT_EQ(kNormal, DrawnItem(m_button, 80, 21, 0).At(40, 0));
}

TEST_F(QorBtn, HotChangesRepaintWithoutErasing)
{
    ExpectHotChangesToRepaint(m_button);
}

TEST_F(QorBtn, NewWindowIsColdAfterOneThatWentUnderTheMouse)
{
    ExpectNewWindowToBeCold(m_button, [this] { Take(); });
}

TEST_F(QorBtn, StaysColdWithoutLeaveNotification)
{
    ExpectColdWithoutLeaveNotification(m_button, CRect(0, 0, 80, 21));
}

TEST_F(QorBtn, DraggingOffReleasesIt)
{
    ExpectDragOffToRelease(m_button, m_host.Log());
}

TEST_F(QorBtn, IsPressedWhileTheMouseButtonIsDown)
{
    ts::MoveMouse(m_button);
    ts::MouseDown();
    EXPECT_EQ(kPressed, Border());
    ts::MouseUp();
    EXPECT_EQ(kHot, Border());
}

TEST_F(QorBtn, DisabledHotButtonLooksDisabled)
{
    ts::MoveMouse(m_button);
    m_button.EnableWindow(FALSE);
    EXPECT_EQ(kDisabled, Border());
}

TEST_F(QorBtn, ClickReachesTheParent)
{
    ts::Click(m_button);
    EXPECT_EQ(1u, m_host.Log().Count(ts::Command(ts::kControlId, BN_CLICKED)));
}

TEST_F(QorBtn, SpaceClicksTheFocusedButton)
{
    m_button.SetFocus();
    ts::Key(VK_SPACE);
    EXPECT_EQ(1u, m_host.Log().Count(ts::Command(ts::kControlId, BN_CLICKED)));
}

TEST_F(QorBtn, WithoutWindowItHasAFaceAndNoText)
{
    CQorBtn none;
    EXPECT_EQ(kNormal, DrawnItem(none, 80, 21, 0).At(40, 0));
    const ts::Picture face = DrawnItem(none, 80, 21, 0);
    m_button.SetWindowText(L"Text");
    m_button.DestroyWindow();
    EXPECT_TRUE(ts::SamePicture(face, DrawnItem(m_button, 80, 21, 0)));
}

TEST_F(QorBtn, WithoutDeviceContextNothingIsDrawn)
{
    CRect rect(0, 0, 80, 21);
    m_button.DrawBack(nullptr, rect, kNormalRow, TRUE);
    m_button.DrawText(nullptr, rect, FALSE);
    EXPECT_EQ(CRect(0, 0, 80, 21), rect);
}

TEST_F(QorBtn, ShowingPaintingAndClosingLeavesNothingBehind)
{
    EXPECT_TRUE(ts::NoLeak([this] {
        CQorBtn button;
        button.SubclassWindow(AddButton(m_host, L"Text", CRect(150, 30, 230, 60), ts::kOtherId));
        ts::MoveMouse(button);
        button.RedrawWindow();
        DrawnItem(button, 80, 21, ODS_DISABLED | ODS_FOCUS);
        button.DestroyWindow();
    }));
}

} // namespace
