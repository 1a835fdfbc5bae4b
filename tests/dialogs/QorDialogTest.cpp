#include "TestDialogs.h"

#include <QorPub/QorPub.h>
#include <tests/support/Resources.h>
#include <tests/support/ui/Drawn.h>

#include <array>
#include <memory>

namespace
{

TEST(Dialog, MeasuresAsOnWindows)
{
    ASSERT_TRUE(ts::HasStandardDialogFont());
    CTestDialog dialog(IDD_OK_CANCEL, kBand);
    ASSERT_TRUE(dialog.Open());
    EXPECT_EQ(CSize(300, 195), dialog.ClientSize());
}

TEST(Dialog, PutsTheCloseButtonIntoTheCorner)
{
    CTestDialog dialog(IDD_OK_CANCEL, kBand);
    ASSERT_TRUE(dialog.Open());
    const int width = dialog.ClientSize().cx;
    EXPECT_EQ(CRect(width - 50, 1, width - 8, 18), dialog.CtrlRect(IDC_DLG_CLOSE));
}

TEST(Dialog, CloseButtonShowsItsStrip)
{
    CTestDialog dialog(IDD_OK_CANCEL, kBand);
    ASSERT_TRUE(dialog.Open());
    ts::ParkMouse();
    const ts::Picture frame = ts::ResourcePicture(ts::Library(), IDB_DLG_CLOSE).Crop({0, 0, 42, 17});
    EXPECT_TRUE(ts::SamePicture(frame, ts::CaptureWindow(::GetDlgItem(dialog, IDC_DLG_CLOSE))));
}

TEST(Dialog, PlacesCancelAtTheRightOfTheBandAndOkLeftOfIt)
{
    CTestDialog dialog(IDD_OK_CANCEL, kBand);
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
    CTestDialog dialog(IDD_OK_CANCEL, kBand);
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
    CTestDialog dialog(IDD_OK_ONLY, kBand);
    ASSERT_TRUE(dialog.Open());
    const CRect ok = dialog.CtrlRect(IDOK);
    EXPECT_EQ(dialog.ClientSize().cx - 18 - ok.Width(), ok.left);
}

TEST(Dialog, WithoutTheBandButtonsStayWhereTheTemplatePutsThem)
{
    CTestDialog dialog(IDD_OK_CANCEL, kNoFlags);
    ASSERT_TRUE(dialog.Open());
    CRect units(10, 90, 60, 104);
    dialog.MapDialogRect(units);
    EXPECT_EQ(units.TopLeft(), dialog.CtrlRect(IDOK).TopLeft());
    EXPECT_EQ(21, dialog.CtrlRect(IDOK).Height());
}

TEST(Dialog, GivesOkAndCancelTheLibrarysTexts)
{
    CTestDialog dialog(IDD_OK_CANCEL, kBand);
    ASSERT_TRUE(dialog.Open());
    EXPECT_STREQ(LibString(L"STR_OK"), ts::TextOf(dialog, IDOK));
    EXPECT_STREQ(LibString(L"STR_CANCEL"), ts::TextOf(dialog, IDCANCEL));
    EXPECT_STRNE(L"STR_OK", LibString(L"STR_OK"));
}

TEST(Dialog, AButtonLeftOfAMissingControlIsNotMoved)
{
    CTestDialog dialog(IDD_PLAIN, kBand);
    ASSERT_TRUE(dialog.Open());
    CQorBtn button;
    ASSERT_TRUE(button.SubclassDlgItem(IDC_PUSH, &dialog));
    const CRect before = dialog.CtrlRect(IDC_PUSH);
    dialog.AdjustBtnInArea(button, kNoSuchId);
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
    CTestDialog dialog(IDD_PLAIN, kBand);
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
    CExchangingDialog() : CTestDialog(IDD_OK_CANCEL, kBand) {}
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
    CTestDialog dialog(IDD_OK_CANCEL, kBand);
    int focus = 0;
    const InitDialogAnswers answers;
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
    CTestDialog dialog(IDD_OK_CANCEL, kBand);
    ASSERT_TRUE(dialog.Open());
    CRect place;
    dialog.GetClientPos(place);
    const CSize size = dialog.ClientSize();
    EXPECT_EQ(CRect(9, 32, size.cx - 10, size.cy - 51), place);
}

TEST(Dialog, ClientPlaceReachesDownWithoutABand)
{
    CTestDialog dialog(IDD_OK_CANCEL, kNoFlags);
    ASSERT_TRUE(dialog.Open());
    CRect place;
    dialog.GetClientPos(place);
    const CSize size = dialog.ClientSize();
    EXPECT_EQ(CRect(9, 32, size.cx - 10, size.cy - 11), place);
}

TEST(Dialog, IsRounded)
{
    CTestDialog dialog(IDD_OK_CANCEL, kBand);
    ASSERT_TRUE(dialog.Open());
    const CSize size = dialog.ClientSize();
    CRgn expected;
    expected.CreateRoundRectRgn(0, 0, size.cx, size.cy, 12, 12);
    EXPECT_TRUE(HasShape(dialog, expected));
    EXPECT_FALSE(InShape(dialog, 0, 0));
}

TEST(Dialog, ShapeFollowsTheSize)
{
    CTestDialog dialog(IDD_OK_CANCEL, kBand | kSizable);
    ASSERT_TRUE(dialog.Open());
    dialog.SetWindowPos(nullptr, 0, 0, 400, 300, SWP_NOMOVE | SWP_NOZORDER);
    EXPECT_TRUE(InShape(dialog, 398, 150));
    EXPECT_EQ(CRect(350, 1, 392, 18), dialog.CtrlRect(IDC_DLG_CLOSE));
}

TEST(Dialog, FreesItsShapeWhenItIsDestroyed)
{
    std::array<std::unique_ptr<CTestDialog>, 20> dialogs;
    const auto openAndClose = [](std::unique_ptr<CTestDialog>& dialog) {
        dialog = std::make_unique<CTestDialog>(IDD_OK_CANCEL, kBand);
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

TEST(Dialog, LeavesNothingBehind)
{
    EXPECT_TRUE(ts::NoLeak([] {
        CTestDialog dialog(IDD_OK_CANCEL, kBand | kSizable);
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
