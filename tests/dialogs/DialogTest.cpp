#include "TestDialogs.h"

#include <QorApi/QorApi.h>
#include <QorPub/QorPub.h>
#include <tests/support/Imports.h>

#include <algorithm>
#include <array>
#include <memory>

namespace
{

constexpr COLORREF kCaption = RGB(255, 255, 255);
constexpr COLORREF kBody = RGB(236, 245, 250);
constexpr COLORREF kOutline = RGB(189, 189, 189);
constexpr UINT kCloseId = 1003;

LPCWSTR LibString(LPCWSTR key)
{
    return QorGetModuleLang(L"QorUI.dll", L"Strings")->GetChildData(key, 1);
}

CString TextOf(CWnd& dialog, UINT id)
{
    CString text;
    dialog.GetDlgItemText(static_cast<int>(id), text);
    return text;
}

/** y of a button of height 21 in the band of a dialog of that height, on a system of version 2 or later. */
int BandY(int height)
{
    return height - 49 + (40 - 21) / 2 + 1;
}

TEST(Dialog, MeasuresAsOnWindows)
{
    ASSERT_TRUE(ts::HasStandardDialogFont());
    CTestDialog dialog(IDD_OK_CANCEL, 1);
    ASSERT_TRUE(dialog.Open());
    EXPECT_EQ(CSize(300, 195), dialog.ClientSize());
}

TEST(Dialog, PutsTheCloseButtonIntoTheCorner)
{
    CTestDialog dialog(IDD_OK_CANCEL, 1);
    ASSERT_TRUE(dialog.Open());
    const int width = dialog.ClientSize().cx;
    EXPECT_EQ(CRect(width - 50, 1, width - 8, 18), dialog.CtrlRect(kCloseId));
}

TEST(Dialog, CloseButtonShowsItsStrip)
{
    CTestDialog dialog(IDD_OK_CANCEL, 1);
    ASSERT_TRUE(dialog.Open());
    ts::ParkMouse();
    const HINSTANCE library = ::GetModuleHandleW(L"QorUI.dll");
    CBitmap strip;
    strip.Attach(::LoadBitmapW(library, MAKEINTRESOURCEW(223)));
    const ts::Picture frame = ts::PictureOf(strip).Crop({0, 0, 42, 17});
    EXPECT_TRUE(ts::SamePicture(frame, ts::CaptureWindow(::GetDlgItem(dialog, kCloseId))));
}

TEST(Dialog, PlacesCancelAtTheRightOfTheBandAndOkLeftOfIt)
{
    CTestDialog dialog(IDD_OK_CANCEL, 1);
    ASSERT_TRUE(dialog.Open());
    const CSize size = dialog.ClientSize();
    const CRect cancel = dialog.CtrlRect(IDCANCEL);
    const CRect ok = dialog.CtrlRect(IDOK);
    EXPECT_EQ(size.cx - 18 - cancel.Width(), cancel.left);
    EXPECT_EQ(cancel.left - 9 - ok.Width(), ok.left);
    EXPECT_EQ(BandY(size.cy), cancel.top);
    EXPECT_EQ(BandY(size.cy), ok.top);
    EXPECT_EQ(21, ok.Height());
}

/** Top of the OK button on a system of that version, below where it is on this one. */
int OkLowerOn(WORD version, WORD servicePack)
{
    const WORD oldVersion = g_OsVer;
    const WORD oldServicePack = g_SpVer;
    g_OsVer = version;
    g_SpVer = servicePack;
    CTestDialog dialog(IDD_OK_CANCEL, 1);
    const bool opened = dialog.Open();
    g_OsVer = oldVersion;
    g_SpVer = oldServicePack;
    EXPECT_TRUE(opened);
    return dialog.CtrlRect(IDOK).top - BandY(dialog.ClientSize().cy);
}

TEST(Dialog, ButtonsStandLowerInTheBandOnOldSystems)
{
    EXPECT_EQ(2, OkLowerOn(0, 0));
    EXPECT_EQ(2, OkLowerOn(1, 0xFFFF));
    EXPECT_EQ(0, OkLowerOn(2, 0));
}

TEST(Dialog, WithoutCancelOkStandsAtTheRightOfTheBand)
{
    CTestDialog dialog(IDD_OK_ONLY, 1);
    ASSERT_TRUE(dialog.Open());
    const CRect ok = dialog.CtrlRect(IDOK);
    EXPECT_EQ(dialog.ClientSize().cx - 18 - ok.Width(), ok.left);
}

TEST(Dialog, WithoutTheBandButtonsStayWhereTheTemplatePutsThem)
{
    CTestDialog dialog(IDD_OK_CANCEL, 0);
    ASSERT_TRUE(dialog.Open());
    CRect units(10, 90, 60, 104);
    dialog.MapDialogRect(units);
    EXPECT_EQ(units.TopLeft(), dialog.CtrlRect(IDOK).TopLeft());
    EXPECT_EQ(21, dialog.CtrlRect(IDOK).Height());
}

TEST(Dialog, GivesOkAndCancelTheLibrarysTexts)
{
    CTestDialog dialog(IDD_OK_CANCEL, 1);
    ASSERT_TRUE(dialog.Open());
    EXPECT_STREQ(LibString(L"STR_OK"), TextOf(dialog, IDOK));
    EXPECT_STREQ(LibString(L"STR_CANCEL"), TextOf(dialog, IDCANCEL));
    EXPECT_STRNE(L"STR_OK", LibString(L"STR_OK"));
}

TEST(Dialog, AButtonLeftOfAMissingControlIsNotMoved)
{
    CTestDialog dialog(IDD_PLAIN, 1);
    ASSERT_TRUE(dialog.Open());
    CQorBtn button;
    ASSERT_TRUE(button.SubclassDlgItem(IDC_PUSH, &dialog));
    const CRect before = dialog.CtrlRect(IDC_PUSH);
    dialog.AdjustBtnInArea(button, 4242);
    EXPECT_EQ(before, dialog.CtrlRect(IDC_PUSH));
    dialog.AdjustBtnInArea(button, 0);
    EXPECT_EQ(dialog.ClientSize().cx - 18 - before.Width(), dialog.CtrlRect(IDC_PUSH).left);
}

std::vector<HWND> ChildrenOf(HWND parent)
{
    std::vector<HWND> children;
    for (HWND child = ::GetWindow(parent, GW_CHILD); child; child = ::GetWindow(child, GW_HWNDNEXT)) {
        children.push_back(child);
    }
    return children;
}

TEST(Dialog, PlacingAButtonKeepsItsTurnInTheTabOrder)
{
    CTestDialog dialog(IDD_PLAIN, 1);
    ASSERT_TRUE(dialog.Open());
    CQorBtn button;
    ASSERT_TRUE(button.SubclassDlgItem(IDC_PUSH, &dialog));
    const std::vector<HWND> before = ChildrenOf(dialog);
    ASSERT_NE(before.front(), button.m_hWnd);
    dialog.AdjustBtnInArea(button, 0);
    EXPECT_EQ(before, ChildrenOf(dialog));
}

/** Counts how often the values of its controls are exchanged. */
class CExchangingDialog : public CTestDialog
{
  public:
    CExchangingDialog() : CTestDialog(IDD_OK_CANCEL, 1) {}
    std::vector<BOOL> m_exchanges;
    bool m_refuse = false;

  protected:
    void DoDataExchange(CDataExchange* exchange) override
    {
        m_exchanges.push_back(exchange->m_bSaveAndValidate);
        if (m_refuse) {
            exchange->Fail();
        }
    }
};

TEST(Dialog, FillsItsControlsWhenItOpensAndReadsThemOnOk)
{
    CExchangingDialog dialog;
    ts::ModalDriver driver;
    driver.InDialog([](HWND wnd) { ts::Click(::GetDlgItem(wnd, IDOK)); });
    EXPECT_EQ(IDOK, dialog.DoModal());
    EXPECT_EQ((std::vector<BOOL>{FALSE, TRUE}), dialog.m_exchanges);
}

TEST(Dialog, OkGetsTheFocusWhenItOpens)
{
    CTestDialog dialog(IDD_OK_CANCEL, 1);
    int focus = 0;
    const CInitDialogAnswers answers;
    ts::ModalDriver driver;
    driver.InDialog([&focus](HWND) {
        focus = ::GetDlgCtrlID(::GetFocus());
        ts::Key(VK_ESCAPE);
    });
    dialog.DoModal();
    EXPECT_EQ(IDOK, focus);
    EXPECT_EQ(std::vector<LRESULT>{TRUE}, answers.Answers());
}

TEST(Dialog, DoesNotOpenWhenItsControlsCannotBeFilled)
{
    CExchangingDialog dialog;
    dialog.m_refuse = true;
    EXPECT_EQ(-1, dialog.DoModal());
}

TEST(Dialog, ClientPlaceLeavesTheBandFree)
{
    CTestDialog dialog(IDD_OK_CANCEL, 1);
    ASSERT_TRUE(dialog.Open());
    CRect place;
    dialog.GetClientPos(place);
    const CSize size = dialog.ClientSize();
    EXPECT_EQ(CRect(9, 32, size.cx - 10, size.cy - 51), place);
}

TEST(Dialog, ClientPlaceReachesDownWithoutABand)
{
    CTestDialog dialog(IDD_OK_CANCEL, 0);
    ASSERT_TRUE(dialog.Open());
    CRect place;
    dialog.GetClientPos(place);
    const CSize size = dialog.ClientSize();
    EXPECT_EQ(CRect(9, 32, size.cx - 10, size.cy - 11), place);
}

TEST(Dialog, IsRounded)
{
    CTestDialog dialog(IDD_OK_CANCEL, 1);
    ASSERT_TRUE(dialog.Open());
    const CSize size = dialog.ClientSize();
    CRgn expected;
    expected.CreateRoundRectRgn(0, 0, size.cx, size.cy, 12, 12);
    EXPECT_TRUE(HasShape(dialog, expected));
    EXPECT_FALSE(InShape(dialog, 0, 0));
}

TEST(Dialog, ShapeFollowsTheSize)
{
    CTestDialog dialog(IDD_OK_CANCEL, 5);
    ASSERT_TRUE(dialog.Open());
    dialog.SetWindowPos(nullptr, 0, 0, 400, 300, SWP_NOMOVE | SWP_NOZORDER);
    EXPECT_TRUE(InShape(dialog, 398, 150));
    EXPECT_EQ(CRect(350, 1, 392, 18), dialog.CtrlRect(kCloseId));
}

TEST(Dialog, FreesItsShapeWhenItIsDestroyed)
{
    std::array<std::unique_ptr<CTestDialog>, 20> dialogs;
    const auto openAndClose = [](std::unique_ptr<CTestDialog>& dialog) {
        dialog = std::make_unique<CTestDialog>(IDD_OK_CANCEL, 1);
        dialog->Open();
        dialog->DestroyWindow();
    };
    openAndClose(dialogs[0]);
    const ts::HandleCounts before = ts::CountHandles();
    for (auto& dialog : dialogs) {
        openAndClose(dialog);
    }
    const ts::HandleCounts kept = ts::Difference(before, ts::CountHandles());
    EXPECT_EQ(0u, kept.count("region")) << kept.at("region");
}

// --- drawing

ts::Picture PaintOf(CTestDialog& dialog)
{
    const CSize size = dialog.ClientSize();
    return ts::DrawTo(
        size.cx, size.cy,
        [&dialog](HDC dc) {
            ::SetBkColor(dc, RGB(3, 2, 1));
            dialog.Paint(*CDC::FromHandle(dc));
        },
        RGB(1, 2, 3));
}

TEST(DialogFrame, CaptionIsWhiteAndTheBodyPaleBlue)
{
    CTestDialog dialog(IDD_OK_CANCEL, 1);
    ASSERT_TRUE(dialog.Open());
    const CSize size = dialog.ClientSize();
    const ts::Picture picture = PaintOf(dialog);
    EXPECT_TRUE(ts::AreaIs(picture, CRect(12, 1, size.cx - 12, 32), kCaption));
    EXPECT_TRUE(ts::AreaIs(picture, CRect(12, 32, size.cx - 12, size.cy - 12), kBody));
}

TEST(DialogFrame, OutlineEndsTwoPixelsBeforeTheRightAndBottom)
{
    CTestDialog dialog(IDD_OK_CANCEL, 1);
    ASSERT_TRUE(dialog.Open());
    const CSize size = dialog.ClientSize();
    const ts::Picture picture = PaintOf(dialog);
    const int midX = size.cx / 2;
    const int midY = size.cy / 2;
    EXPECT_TRUE(ts::PixelIs(picture, midX, 0, kOutline));
    EXPECT_TRUE(ts::PixelIs(picture, 0, midY, kOutline));
    EXPECT_TRUE(ts::PixelIs(picture, size.cx - 2, midY, kOutline));
    EXPECT_TRUE(ts::PixelIs(picture, midX, size.cy - 2, kOutline));
    EXPECT_TRUE(ts::PixelIs(picture, size.cx - 1, midY, kBody));
    EXPECT_TRUE(ts::PixelIs(picture, midX, size.cy - 1, kBody));
    EXPECT_TRUE(ts::PixelIs(picture, size.cx - 3, midY, kBody));
    EXPECT_TRUE(ts::PixelIs(picture, midX, size.cy - 3, kBody));
    EXPECT_FALSE(ts::PixelIs(picture, 0, 0, kOutline));
}

TEST(DialogFrame, OutlineIsRoundedByTwelve)
{
    CTestDialog dialog(IDD_OK_CANCEL, 1);
    ASSERT_TRUE(dialog.Open());
    const CSize size = dialog.ClientSize();
    const ts::Picture expected = ts::DrawTo(
        size.cx, size.cy,
        [size](HDC dc) {
            ::SelectObject(dc, ::GetStockObject(NULL_BRUSH));
            ::SelectObject(dc, ::GetStockObject(DC_PEN));
            ::SetDCPenColor(dc, kOutline);
            ::RoundRect(dc, 0, 0, size.cx - 1, size.cy - 1, 12, 12);
        },
        kCaption);
    EXPECT_TRUE(ts::SamePicture(expected.Crop({0, 0, 8, 8}), PaintOf(dialog).Crop({0, 0, 8, 8})));
}

/** The caption without the outline and its corners, as it should look with a title. */
ts::Picture ExpectedTitle(CSize size, LPCWSTR title)
{
    const ts::Picture whole = ts::DrawTo(
        size.cx, 32,
        [=](HDC dc) {
            ::SelectObject(dc, ::GetStockObject(DEFAULT_GUI_FONT));
            ::SetBkMode(dc, TRANSPARENT);
            ::SetTextColor(dc, RGB(0, 0, 0));
            RECT text = {32, 0, size.cx - 58, 32};
            ::DrawTextW(dc, title, -1, &text, DT_SINGLELINE | DT_VCENTER | DT_END_ELLIPSIS | DT_HIDEPREFIX);
        },
        kCaption);
    return whole.Crop(CRect(8, 8, size.cx - 8, 32));
}

TEST(DialogFrame, TitleStandsBetweenTheIconAndTheCloseButton)
{
    CTestDialog dialog(IDD_OK_CANCEL, 1);
    ASSERT_TRUE(dialog.Open());
    const CSize size = dialog.ClientSize();
    for (const LPCWSTR title : {L"Title", L"T&itle", L"WWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWW"}) {
        dialog.SetWindowText(title);
        const ts::Picture caption = PaintOf(dialog).Crop(CRect(8, 8, size.cx - 8, 32));
        EXPECT_TRUE(ts::SamePicture(ExpectedTitle(size, title), caption)) << ts::ToUtf8(title);
        EXPECT_GT(caption.Count(RGB(0, 0, 0)), 0);
        EXPECT_LE(caption.BoundsOfOthers(kCaption).right + 8, size.cx - 58);
    }
}

CRect g_titlePlace;
UINT g_titleFormat = 0;

int WINAPI RecordDrawText(HDC, LPCWSTR, int, RECT* place, UINT format)
{
    g_titlePlace = *place;
    g_titleFormat = format;
    return 0;
}

TEST(DialogFrame, TitleIsOneLineWithoutPrefixEndingInAnEllipsis)
{
    CTestDialog dialog(IDD_OK_CANCEL, 1);
    ASSERT_TRUE(dialog.Open());
    dialog.SetWindowText(L"Title");
    const ts::ReplacedImport hook(L"afx.dll", "DrawTextW", &RecordDrawText);
    PaintOf(dialog);
    EXPECT_EQ(CRect(32, 0, dialog.ClientSize().cx - 58, 32), g_titlePlace);
    EXPECT_EQ(static_cast<UINT>(DT_SINGLELINE | DT_VCENTER | DT_END_ELLIPSIS | DT_HIDEPREFIX), g_titleFormat);
}

TEST(DialogFrame, EmptyTitleLeavesTheCaptionEmpty)
{
    CTestDialog dialog(IDD_OK_CANCEL, 1);
    ASSERT_TRUE(dialog.Open());
    dialog.SetWindowText(L"");
    EXPECT_TRUE(ts::AreaIs(PaintOf(dialog), CRect(12, 1, dialog.ClientSize().cx - 12, 32), kCaption));
}

/** A red icon of 16 x 16 that is transparent in its upper half. */
HICON HalfTransparentIcon()
{
    std::array<BYTE, 32> mask = {};
    std::fill_n(mask.begin(), 16, BYTE{0xFF});
    std::array<DWORD, 256> colours = {};
    std::fill_n(colours.begin() + 128, 128, 0xFF0000);
    return ::CreateIcon(nullptr, 16, 16, 1, 32, mask.data(), reinterpret_cast<const BYTE*>(colours.data()));
}

TEST(DialogFrame, ApplicationIconLetsThroughTheCaption)
{
    CTestDialog dialog(IDD_OK_CANCEL, 1);
    ASSERT_TRUE(dialog.Open());
    const HICON icon = HalfTransparentIcon();
    QorSetAppIcon(icon, FALSE);
    const ts::Picture picture = PaintOf(dialog);
    QorSetAppIcon(nullptr, FALSE);
    ::DestroyIcon(icon);
    EXPECT_TRUE(ts::AreaIs(picture, CRect(8, 8, 24, 16), kCaption));
    EXPECT_TRUE(ts::AreaIs(picture, CRect(8, 16, 24, 24), RGB(255, 0, 0)));
}

TEST(DialogFrame, ApplicationIconStandsAtEightEight)
{
    CTestDialog dialog(IDD_OK_CANCEL, 1);
    ASSERT_TRUE(dialog.Open());
    dialog.SetWindowText(L"");
    const HICON icon = ::LoadIconW(nullptr, IDI_HAND);
    EXPECT_TRUE(QorSetAppIcon(icon, FALSE));
    const ts::Picture picture = PaintOf(dialog);
    EXPECT_TRUE(QorSetAppIcon(nullptr, 0));
    const ts::Picture expected = ts::DrawTo(
        16, 16, [icon](HDC dc) { ::DrawIconEx(dc, 0, 0, icon, 16, 16, 0, nullptr, DI_NORMAL); }, kCaption);
    EXPECT_TRUE(ts::SamePicture(expected, picture.Crop(CRect(8, 8, 24, 24))));
    const ts::Picture none = PaintOf(dialog);
    EXPECT_TRUE(ts::AreaIs(none, CRect(8, 8, 24, 24), kCaption));
}

TEST(DialogFrame, WindowShowsWhatIsPainted)
{
    CTestDialog dialog(IDD_OK_ONLY, 1);
    ASSERT_TRUE(dialog.Open());
    const ts::Picture shown = ts::CaptureWindow(dialog);
    EXPECT_TRUE(ts::PixelIs(shown, 60, 10, kCaption));
    EXPECT_TRUE(ts::PixelIs(shown, 60, 60, kBody));
}

TEST(DialogFrame, PaintingRestoresTheDeviceContext)
{
    CTestDialog dialog(IDD_OK_CANCEL, 1);
    ASSERT_TRUE(dialog.Open());
    dialog.SetWindowText(L"Title");
    CClientDC dc(&dialog);
    dc.SetTextColor(RGB(1, 2, 3));
    dc.SetBkColor(RGB(4, 5, 6));
    const HGDIOBJ font = ::GetCurrentObject(dc, OBJ_FONT);
    dialog.Paint(dc);
    EXPECT_EQ(RGB(1, 2, 3), dc.GetTextColor());
    EXPECT_EQ(RGB(4, 5, 6), dc.GetBkColor());
    EXPECT_EQ(font, ::GetCurrentObject(dc, OBJ_FONT));
}

TEST(DialogFrame, ErasesNothing)
{
    CTestDialog dialog(IDD_OK_CANCEL, 1);
    ASSERT_TRUE(dialog.Open());
    const ts::Picture picture = ts::DrawTo(
        10, 10, [&dialog](HDC dc) { EXPECT_EQ(TRUE, dialog.SendMessage(WM_ERASEBKGND, reinterpret_cast<WPARAM>(dc))); },
        RGB(9, 8, 7));
    EXPECT_TRUE(ts::AreaIs(picture, CRect(0, 0, 10, 10), RGB(9, 8, 7)));
}

// --- hit-testing

TEST(DialogHitTest, CloseButtonIsClientArea)
{
    CTestDialog dialog(IDD_OK_CANCEL, 5);
    ASSERT_TRUE(dialog.Open());
    const int width = dialog.ClientSize().cx;
    EXPECT_EQ(HTCLIENT, dialog.Hit(width - 50, 1));
    EXPECT_EQ(HTCLIENT, dialog.Hit(width - 9, 17));
    EXPECT_EQ(HTCAPTION, dialog.Hit(width - 51, 10));
}

TEST(DialogHitTest, BorderNeverSizesWithoutTheFlag)
{
    CTestDialog dialog(IDD_OK_CANCEL, 1);
    ASSERT_TRUE(dialog.Open());
    EXPECT_EQ(HTCAPTION, dialog.Hit(2, 16));
    EXPECT_EQ(HTCLIENT, dialog.Hit(2, 100));
    EXPECT_EQ(HTCAPTION, dialog.Hit(0, 0));
}

TEST(DialogHitTest, BorderSizesWithTheFlag)
{
    CTestDialog dialog(IDD_OK_CANCEL, 5);
    ASSERT_TRUE(dialog.Open());
    const CSize size = dialog.ClientSize();
    EXPECT_EQ(HTTOPLEFT, dialog.Hit(6, 6));
    EXPECT_EQ(HTLEFT, dialog.Hit(2, 16));
    EXPECT_EQ(HTBOTTOMRIGHT, dialog.Hit(size.cx - 6, size.cy - 6));
    EXPECT_EQ(HTBOTTOM, dialog.Hit(size.cx / 2, size.cy - 3));
}

TEST(DialogHitTest, SystemMenuSpotIsSixToTwentyTwo)
{
    CTestDialog dialog(IDD_OK_CANCEL, 1);
    ASSERT_TRUE(dialog.Open());
    EXPECT_EQ(HTCAPTION, dialog.Hit(6, 10));
    EXPECT_EQ(HTCAPTION, dialog.Hit(10, 6));
    EXPECT_EQ(HTSYSMENU, dialog.Hit(10, 7));
    EXPECT_EQ(HTSYSMENU, dialog.Hit(7, 7));
    EXPECT_EQ(HTSYSMENU, dialog.Hit(22, 22));
    EXPECT_EQ(HTCAPTION, dialog.Hit(23, 10));
    EXPECT_EQ(HTCAPTION, dialog.Hit(10, 23));
}

TEST(DialogHitTest, WithoutSystemMenuTheSpotIsCaption)
{
    CTestDialog dialog(IDD_OK_ONLY, 1);
    ASSERT_TRUE(dialog.Open());
    EXPECT_EQ(HTCAPTION, dialog.Hit(10, 10));
}

TEST(DialogHitTest, BelowTheCaptionTheDefaultAnswers)
{
    CTestDialog dialog(IDD_OK_CANCEL, 1);
    ASSERT_TRUE(dialog.Open());
    EXPECT_EQ(HTCLIENT, dialog.Hit(100, 100));
    EXPECT_EQ(HTNOWHERE, dialog.Hit(-50, 100));
}

TEST(DialogHitTest, CaptionBandEndsAtThirtyTwo)
{
    CTestDialog dialog(IDD_OK_CANCEL, 1);
    ASSERT_TRUE(dialog.Open());
    EXPECT_EQ(HTCAPTION, dialog.Hit(100, 32));
    EXPECT_EQ(HTCLIENT, dialog.Hit(100, 33));
}

// --- sizing

class CCommandDialog : public CTestDialog
{
  public:
    using CTestDialog::CTestDialog;
    WPARAM m_command = 0;
    LPARAM m_point = 0;
    int m_defaults = 0;

  protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message == WM_SYSCOMMAND) {
            m_command = wParam;
            m_point = lParam;
            return 0;
        }
        return CTestDialog::WindowProc(message, wParam, lParam);
    }
    LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        m_defaults += message == WM_NCLBUTTONDOWN || message == WM_GETMINMAXINFO || message == WM_SIZE;
        if (message == WM_NCLBUTTONDOWN) {
            return 0;
        }
        return CTestDialog::DefWindowProc(message, wParam, lParam);
    }
};

TEST(DialogSizing, EveryBorderCodeStartsItsSizingCommand)
{
    CCommandDialog dialog(IDD_OK_CANCEL, 5);
    ASSERT_TRUE(dialog.Open());
    const int defaults = dialog.m_defaults;
    for (UINT hit = HTLEFT; hit <= HTBOTTOMRIGHT; ++hit) {
        dialog.SendMessage(WM_NCLBUTTONDOWN, hit, MAKELPARAM(120, 130));
        EXPECT_EQ(static_cast<WPARAM>(SC_SIZE + hit - 9), dialog.m_command);
        EXPECT_EQ(MAKELPARAM(120, 130), dialog.m_point);
    }
    EXPECT_EQ(0, dialog.m_defaults - defaults);
}

TEST(DialogSizing, SizesAndTheirLimitsGetTheDefaultToo)
{
    CCommandDialog dialog(IDD_OK_CANCEL, 5);
    ASSERT_TRUE(dialog.Open());
    const int defaults = dialog.m_defaults;
    dialog.SendMessage(WM_SIZE, SIZE_RESTORED, MAKELPARAM(300, 195));
    EXPECT_EQ(1, dialog.m_defaults - defaults);
    MINMAXINFO info = {};
    dialog.SendMessage(WM_GETMINMAXINFO, 0, reinterpret_cast<LPARAM>(&info));
    EXPECT_EQ(2, dialog.m_defaults - defaults);
}

TEST(DialogSizing, OtherCodesGetTheDefault)
{
    CCommandDialog dialog(IDD_OK_CANCEL, 5);
    ASSERT_TRUE(dialog.Open());
    const int defaults = dialog.m_defaults;
    for (const UINT hit : {HTCAPTION, HTCLIENT, HTVSCROLL, HTBORDER, HTSYSMENU}) {
        dialog.SendMessage(WM_NCLBUTTONDOWN, hit, 0);
    }
    EXPECT_EQ(5, dialog.m_defaults - defaults);
    EXPECT_EQ(0u, dialog.m_command);
}

CPoint MinTrack(CTestDialog& dialog)
{
    MINMAXINFO info = {};
    dialog.SendMessage(WM_GETMINMAXINFO, 0, reinterpret_cast<LPARAM>(&info));
    return info.ptMinTrackSize;
}

TEST(DialogSizing, SmallestSizeIsTwoHundredSixtyByTwoHundred)
{
    CTestDialog dialog(IDD_OK_CANCEL, 5);
    ASSERT_TRUE(dialog.Open());
    EXPECT_EQ(CPoint(260, 200), MinTrack(dialog));
}

TEST(DialogSizing, WithoutTheFlagThereIsNoSmallestSize)
{
    CTestDialog dialog(IDD_OK_CANCEL, 1);
    ASSERT_TRUE(dialog.Open());
    EXPECT_EQ(CPoint(0, 0), MinTrack(dialog));
}

// --- closing

TEST(DialogClosing, CloseButtonCancels)
{
    CTestDialog dialog(IDD_OK_CANCEL, 1);
    ts::ModalDriver driver;
    driver.InDialog([](HWND wnd) { ts::Click(::GetDlgItem(wnd, kCloseId)); });
    EXPECT_EQ(IDCANCEL, dialog.DoModal());
    EXPECT_EQ(1, dialog.m_canceled) << "by way of the dialog's own OnCancel";
    EXPECT_TRUE(driver.Finished());
}

TEST(DialogClosing, EscapeCancels)
{
    CTestDialog dialog(IDD_OK_CANCEL, 1);
    ts::ModalDriver driver;
    driver.InDialog([](HWND) { ts::Key(VK_ESCAPE); });
    EXPECT_EQ(IDCANCEL, dialog.DoModal());
    EXPECT_TRUE(driver.Finished());
}

TEST(DialogClosing, EnterConfirms)
{
    CTestDialog dialog(IDD_OK_CANCEL, 1);
    ts::ModalDriver driver;
    driver.InDialog([](HWND) { ts::Key(VK_RETURN); });
    EXPECT_EQ(IDOK, dialog.DoModal());
    EXPECT_TRUE(driver.Finished());
}

TEST(DialogClosing, DisabledNothingClosesItButConfirming)
{
    CTestDialog dialog(IDD_OK_CANCEL, 1);
    ts::ModalDriver driver;
    driver.InDialog([&dialog](HWND) {
        dialog.DisableClose(TRUE);
        ts::Key(VK_ESCAPE);
    });
    driver.InDialog([](HWND wnd) { ts::Click(::GetDlgItem(wnd, kCloseId)); });
    driver.InDialog([](HWND wnd) { ::PostMessageW(wnd, WM_SYSCOMMAND, SC_CLOSE, 0); });
    driver.InDialog([](HWND wnd) { ts::Click(::GetDlgItem(wnd, IDCANCEL)); });
    driver.When(
        "the Cancel button was pressed", [&dialog] { return dialog.m_canceled >= 2; },
        [&dialog] { ::PostMessageW(dialog, WM_COMMAND, IDOK, 0); });
    EXPECT_EQ(IDOK, dialog.DoModal());
    EXPECT_TRUE(driver.Finished());
}

TEST(DialogClosing, DisablingGraysTheCloseButtonAndTheSystemMenu)
{
    CTestDialog dialog(IDD_OK_CANCEL, 1);
    ASSERT_TRUE(dialog.Open());
    dialog.DisableClose(TRUE);
    EXPECT_FALSE(::IsWindowEnabled(::GetDlgItem(dialog, kCloseId)));
    EXPECT_NE(0u, ::GetMenuState(dialog.GetSystemMenu(FALSE)->m_hMenu, SC_CLOSE, MF_BYCOMMAND) & MF_GRAYED);
    dialog.DisableClose(FALSE);
    EXPECT_TRUE(::IsWindowEnabled(::GetDlgItem(dialog, kCloseId)));
    EXPECT_EQ(0u, ::GetMenuState(dialog.GetSystemMenu(FALSE)->m_hMenu, SC_CLOSE, MF_BYCOMMAND) & MF_GRAYED);
}

std::vector<UINT> g_menuFlags;

BOOL WINAPI RecordMenuFlags(HMENU menu, UINT item, UINT flags)
{
    EXPECT_EQ(static_cast<UINT>(SC_CLOSE), item);
    g_menuFlags.push_back(flags);
    return ::EnableMenuItem(menu, item, flags);
}

TEST(DialogClosing, DisablingMakesTheMenuItemBothGrayAndDisabled)
{
    CTestDialog dialog(IDD_OK_CANCEL, 1);
    ASSERT_TRUE(dialog.Open());
    const ts::ReplacedImport hook(L"afx.dll", "EnableMenuItem", &RecordMenuFlags);
    g_menuFlags.clear();
    const UINT both = MF_GRAYED | MF_DISABLED;
    const auto state = [&dialog] {
        return ::GetMenuState(dialog.GetSystemMenu(FALSE)->m_hMenu, SC_CLOSE, MF_BYCOMMAND);
    };
    dialog.DisableClose(TRUE);
    EXPECT_EQ(both, state() & both);
    dialog.DisableClose(FALSE);
    EXPECT_EQ(0u, state() & both);
    EXPECT_EQ((std::vector<UINT>{MF_BYCOMMAND | both, MF_BYCOMMAND | MF_ENABLED}), g_menuFlags);
}

TEST(DialogClosing, DisablingKeepsTheBandAndTheSizingBorder)
{
    CTestDialog dialog(IDD_OK_CANCEL, 5);
    ASSERT_TRUE(dialog.Open());
    for (const BOOL disable : {TRUE, FALSE}) {
        dialog.DisableClose(disable);
        CRect place;
        dialog.GetClientPos(place);
        EXPECT_EQ(dialog.ClientSize().cy - 51, place.bottom) << disable;
        EXPECT_EQ(HTLEFT, dialog.Hit(2, 100)) << disable;
    }
}

TEST(DialogClosing, DisabledAndEnabledAgainItCanBeCanceled)
{
    CTestDialog dialog(IDD_OK_CANCEL, 1);
    ts::ModalDriver driver;
    driver.InDialog([&dialog](HWND) {
        dialog.DisableClose(TRUE);
        dialog.DisableClose(FALSE);
        ts::Key(VK_ESCAPE);
    });
    EXPECT_EQ(IDCANCEL, dialog.DoModal());
    EXPECT_TRUE(driver.Finished());
}

TEST(DialogClosing, DisablingWithoutSystemMenuIsSafe)
{
    CTestDialog dialog(IDD_OK_ONLY, 1);
    ASSERT_TRUE(dialog.Open());
    dialog.DisableClose(TRUE);
    dialog.PostMessage(WM_COMMAND, IDCANCEL);
    ts::Settle();
    EXPECT_TRUE(::IsWindow(dialog));
    EXPECT_EQ(1, dialog.m_canceled);
}

TEST(Dialog, LeavesNothingBehind)
{
    EXPECT_TRUE(ts::NoLeak([] {
        CTestDialog dialog(IDD_OK_CANCEL, 5);
        dialog.Open();
        dialog.SetWindowText(L"Title");
        dialog.UpdateWindow();
        dialog.SetWindowPos(nullptr, 0, 0, 400, 300, SWP_NOMOVE | SWP_NOZORDER);
        dialog.DisableClose(TRUE);
        dialog.UpdateWindow();
        dialog.DestroyWindow();
    }));
}

} // namespace
