#include <QorUI/app/look/Palette.h>
#include <QorUI/app/look/Skin.h>
#include <QorUI/app/look/SkinParts.h>
#include <QorUI/app/module/GdiplusCalls.h>
#include <QorUI/app/module/QorUIApp.h>
#include <QorUI/app/module/ResourceSwitch.h>
#include <QorUI/buttons/QorBtn.h>
#include <QorUI/res/resource.h>
#include <tests/support/ui/Drawn.h>

#include <gtest/gtest.h>

#include <stdexcept>

namespace
{

Gdiplus::Status g_startResult = Gdiplus::Ok;
Gdiplus::GdiplusStartupInput g_startInput;
int g_starts = 0;
bool g_hostKnownAtStart = false;
bool g_picturesAtStart = false;
int g_stops = 0;
ULONG_PTR g_stopped = 0;
constexpr ULONG_PTR kToken = 4711;

Gdiplus::GpStatus WINGDIPAPI Start(ULONG_PTR* token, const Gdiplus::GdiplusStartupInput* input,
                                   Gdiplus::GdiplusStartupOutput*)
{
    ++g_starts;
    g_hostKnownAtStart = g_QorUIApp.m_hHost == ::GetModuleHandleW(nullptr);
    g_picturesAtStart = g_BtnStyles[0].brush.GetSafeHandle() || g_QorUIApp.m_brTab.GetSafeHandle() ||
                        g_QorUIApp.m_bmpRadio.GetSafeHandle() || QorGetDlgBkBrush();
    g_startInput = *input;
    *token = kToken;
    return g_startResult;
}

VOID WINGDIPAPI Stop(ULONG_PTR token)
{
    ++g_stops;
    g_stopped = token;
}

/** The application object without its module: its handles are null until a test initialises it. */
class Module : public testing::Test
{
  protected:
    void SetUp() override
    {
        g_GdiplusCalls = {&Start, &Stop};
        g_startResult = Gdiplus::Ok;
        g_starts = g_stops = 0;
        g_stopped = 0;
        m_oldInstance = g_QorUIApp.m_hInstance;
        m_library = ::LoadLibraryExW(L"QorUI.dll", nullptr, LOAD_LIBRARY_AS_DATAFILE);
        ASSERT_NE(nullptr, m_library);
    }
    void TearDown() override
    {
        g_QorUIApp.ExitInstance();
        g_QorUIApp.m_hInstance = m_oldInstance;
        g_QorUIApp.m_brTab.DeleteObject();
        g_QorUIApp.m_brDlgBack.DeleteObject();
        g_QorUIApp.m_bmpRadio.DeleteObject();
        g_QorUIApp.m_bmpCheck.DeleteObject();
        for (QorBtnStyle& style : g_BtnStyles) {
            style.brush.DeleteObject();
        }
        ::FreeLibrary(m_library);
    }

    /** Initialises with the pictures of the library. */
    void InitWithPictures()
    {
        g_QorUIApp.m_hInstance = m_library;
        ASSERT_TRUE(g_QorUIApp.InitInstance());
    }

    HMODULE m_library = nullptr;
    HINSTANCE m_oldInstance = nullptr;
};

/** Whether a brush repeats a bitmap of the library from the origin on. */
testing::AssertionResult Repeats(CBrush& brush, HMODULE library, UINT id, CSize size)
{
    if (!brush.GetSafeHandle()) {
        return testing::AssertionFailure() << "no brush";
    }
    const ts::Picture picture = ts::ResourcePicture(library, id);
    if (CSize(picture.Width(), picture.Height()) != size) {
        return testing::AssertionFailure() << "picture is " << picture.Width() << " x " << picture.Height();
    }
    const ts::Picture filled = ts::Drawn(size.cx * 2, size.cy * 2, [&](CDC& dc) {
        const CRect all(0, 0, size.cx * 2, size.cy * 2);
        ::FillRect(dc, &all, brush);
    });
    for (int y = 0; y < filled.Height(); ++y) {
        for (int x = 0; x < filled.Width(); ++x) {
            if (filled.At(x, y) != picture.At(x % size.cx, y % size.cy)) {
                return testing::AssertionFailure() << "differs at " << x << ", " << y;
            }
        }
    }
    return testing::AssertionSuccess();
}

TEST_F(Module, HandlesAreNullBeforeInit)
{
    EXPECT_EQ(nullptr, QorGetDlgBkBrush());
    EXPECT_EQ(0u, g_QorUIApp.m_nGdiplusToken);
    EXPECT_EQ(nullptr, g_QorUIApp.m_brTab.GetSafeHandle());
    EXPECT_EQ(nullptr, g_QorUIApp.m_brDlgBack.GetSafeHandle());
    EXPECT_EQ(nullptr, g_QorUIApp.m_bmpRadio.GetSafeHandle());
    EXPECT_EQ(nullptr, g_QorUIApp.m_bmpCheck.GetSafeHandle());
    EXPECT_EQ(nullptr, g_BtnStyles[0].brush.GetSafeHandle());
}

TEST_F(Module, MembersStandInTheirOrder)
{
    const auto at = [](const void* member) { return reinterpret_cast<const char*>(member); };
    const CQorUIApp& app = g_QorUIApp;
    EXPECT_LT(at(&app.m_nGdiplusToken), at(&app.m_brTab));
    EXPECT_LT(at(&app.m_brTab), at(&app.m_brDlgBack));
    EXPECT_LT(at(&app.m_brDlgBack), at(&app.m_bmpRadio));
    EXPECT_LT(at(&app.m_bmpRadio), at(&app.m_bmpCheck));
    EXPECT_LT(at(&app.m_bmpCheck), at(&app.m_hHost));
    EXPECT_EQ(8u, sizeof(app.m_nGdiplusToken));
}

TEST_F(Module, InitStartsGdiplusVersionOneWithNothingSuppressed)
{
    InitWithPictures();
    EXPECT_EQ(1, g_starts);
    EXPECT_EQ(1u, g_startInput.GdiplusVersion);
    EXPECT_EQ(nullptr, g_startInput.DebugEventCallback);
    EXPECT_FALSE(g_startInput.SuppressBackgroundThread);
    EXPECT_FALSE(g_startInput.SuppressExternalCodecs);
    EXPECT_EQ(kToken, g_QorUIApp.m_nGdiplusToken);
}

TEST_F(Module, InitKeepsTheHostProgram)
{
    g_QorUIApp.m_hHost = nullptr;
    InitWithPictures();
    EXPECT_EQ(::GetModuleHandleW(nullptr), g_QorUIApp.m_hHost);
}

TEST_F(Module, InitStartsGdiplusAfterTheHostIsKnownAndBeforeThePicturesAreMade)
{
    g_QorUIApp.m_hHost = nullptr;
    InitWithPictures();
    EXPECT_TRUE(g_hostKnownAtStart);
    EXPECT_FALSE(g_picturesAtStart);
}

TEST_F(Module, InitMakesTheDialogBrush)
{
    InitWithPictures();
    LOGBRUSH brush = {};
    ASSERT_NE(0, ::GetObjectW(QorGetDlgBkBrush(), sizeof(brush), &brush));
    EXPECT_EQ(UINT{BS_SOLID}, brush.lbStyle);
    EXPECT_EQ(RGB(236, 245, 250), brush.lbColor);
    EXPECT_EQ(g_QorUIApp.m_brDlgBack.GetSafeHandle(), QorGetDlgBkBrush());
}

TEST_F(Module, InitMakesTheTabPattern)
{
    InitWithPictures();
    EXPECT_TRUE(Repeats(g_QorUIApp.m_brTab, m_library, 213, CSize(5, 16)));
}

TEST_F(Module, InitLoadsTheGlyphStrips)
{
    InitWithPictures();
    const auto sizeOf = [](CBitmap& bitmap) {
        BITMAP header = {};
        bitmap.GetBitmap(&header);
        return CSize(header.bmWidth, header.bmHeight);
    };
    EXPECT_EQ(CSize(78, 13), sizeOf(g_QorUIApp.m_bmpRadio));
    EXPECT_EQ(CSize(78, 13), sizeOf(g_QorUIApp.m_bmpCheck));
}

TEST_F(Module, RadioStripIsBitmap200AndCheckStrip201)
{
    InitWithPictures();
    EXPECT_TRUE(ts::SamePicture(ts::ResourcePicture(m_library, 200), ts::PictureOf(g_QorUIApp.m_bmpRadio)));
    EXPECT_TRUE(ts::SamePicture(ts::ResourcePicture(m_library, 201), ts::PictureOf(g_QorUIApp.m_bmpCheck)));
}

TEST_F(Module, StyleTableHasTheFourFaces)
{
    InitWithPictures();
    ASSERT_EQ(4u, g_BtnStyles.size());
    for (UINT row = 0; row < 4; ++row) {
        EXPECT_TRUE(Repeats(g_BtnStyles[row].brush, m_library, 202 + row, CSize(6, 17))) << "row " << row;
    }
}

TEST_F(Module, StyleTableHasTheBorderColours)
{
    InitWithPictures();
    EXPECT_EQ(RGB(111, 111, 111), g_BtnStyles[0].outer);
    EXPECT_EQ(RGB(242, 242, 242), g_BtnStyles[0].inner);
    EXPECT_EQ(RGB(59, 126, 176), g_BtnStyles[1].outer);
    EXPECT_EQ(RGB(231, 244, 251), g_BtnStyles[1].inner);
    EXPECT_EQ(RGB(43, 97, 138), g_BtnStyles[2].outer);
    EXPECT_EQ(RGB(231, 244, 251), g_BtnStyles[2].inner);
    EXPECT_EQ(RGB(172, 177, 180), g_BtnStyles[3].outer);
    EXPECT_EQ(RGB(251, 251, 251), g_BtnStyles[3].inner);
}

TEST_F(Module, MissingPicturesLeaveTheObjectsEmptyAndInitSucceeds)
{
    g_QorUIApp.m_hInstance = ::GetModuleHandleW(nullptr); // this program has none of them
    EXPECT_TRUE(g_QorUIApp.InitInstance());
    for (UINT row = 0; row < 4; ++row) {
        EXPECT_EQ(nullptr, g_BtnStyles[row].brush.GetSafeHandle());
    }
    EXPECT_EQ(RGB(111, 111, 111), g_BtnStyles[0].outer);
    EXPECT_EQ(nullptr, g_QorUIApp.m_brTab.GetSafeHandle());
    EXPECT_EQ(nullptr, g_QorUIApp.m_bmpRadio.GetSafeHandle());
    EXPECT_EQ(nullptr, g_QorUIApp.m_bmpCheck.GetSafeHandle());
    EXPECT_NE(nullptr, QorGetDlgBkBrush());
}

TEST_F(Module, ButtonWithoutAFaceHasItsBordersOnly)
{
    g_QorUIApp.m_hInstance = ::GetModuleHandleW(nullptr);
    ASSERT_TRUE(g_QorUIApp.InitInstance());
    CQorBtn button;
    for (UINT row = 0; row < 4; ++row) {
        const ts::Picture picture = ts::Drawn(60, 25, [&](CDC& dc) {
            CRect rect(2, 3, 58, 24);
            button.DrawBack(&dc, rect, row, FALSE);
        });
        EXPECT_TRUE(ts::AreaIs(picture, CRect(8, 3, 52, 4), g_BtnStyles[row].outer)) << "row " << row;
        EXPECT_TRUE(ts::AreaIs(picture, CRect(8, 4, 52, 5), g_BtnStyles[row].inner)) << "row " << row;
        EXPECT_TRUE(ts::AreaIs(picture, CRect(6, 7, 54, 20), ts::kPaper)) << "row " << row;
        EXPECT_TRUE(ts::AreaIs(picture, CRect(8, 22, 52, 23), g_BtnStyles[row].inner)) << "row " << row;
        EXPECT_TRUE(ts::AreaIs(picture, CRect(8, 23, 52, 24), g_BtnStyles[row].outer)) << "row " << row;
    }
}

TEST_F(Module, InitSucceedsWithoutGdiHandles)
{
    g_QorUIApp.m_hInstance = m_library;
    const ts::GdiShortage shortage;
    EXPECT_TRUE(g_QorUIApp.InitInstance());
    EXPECT_EQ(nullptr, QorGetDlgBkBrush());
    EXPECT_EQ(nullptr, g_BtnStyles[0].brush.GetSafeHandle());
}

TEST_F(Module, ExitStopsGdiplusWithItsToken)
{
    InitWithPictures();
    g_QorUIApp.ExitInstance();
    EXPECT_EQ(1, g_stops);
    EXPECT_EQ(kToken, g_stopped);
    EXPECT_EQ(0u, g_QorUIApp.m_nGdiplusToken);
}

TEST_F(Module, SecondExitDoesNotStopGdiplusAgain)
{
    InitWithPictures();
    g_QorUIApp.ExitInstance();
    g_QorUIApp.ExitInstance();
    EXPECT_EQ(1, g_stops);
}

TEST_F(Module, FailedStartLeavesNoTokenAndIsNotStopped)
{
    g_startResult = Gdiplus::GdiplusNotInitialized;
    InitWithPictures();
    EXPECT_EQ(0u, g_QorUIApp.m_nGdiplusToken);
    g_QorUIApp.ExitInstance();
    EXPECT_EQ(0, g_stops);
}

TEST_F(Module, InitAgainLeavesNothingOfTheFirstTimeBehind)
{
    EXPECT_TRUE(ts::NoLeak([this] {
        InitWithPictures();
        g_QorUIApp.ExitInstance();
    }));
}

TEST_F(Module, AppIconAndFlagAreStoredAsGiven)
{
    const HICON icon = ::LoadIconW(nullptr, IDI_APPLICATION);
    EXPECT_EQ(TRUE, QorSetAppIcon(icon, 7));
    EXPECT_EQ(icon, QorGetAppIcon().icon);
    EXPECT_EQ(7, QorGetAppIcon().flag);
    EXPECT_EQ(TRUE, QorSetAppIcon(nullptr, 0));
    EXPECT_EQ(nullptr, QorGetAppIcon().icon);
    EXPECT_EQ(0, QorGetAppIcon().flag);
}

TEST_F(Module, ResourceSwitchNamesTheLibraryAndThenTheHost)
{
    InitWithPictures();
    const HINSTANCE before = AfxGetModuleState()->m_hCurrentResourceHandle;
    {
        const ResourceSwitch toLibrary;
        EXPECT_EQ(m_library, AfxGetModuleState()->m_hCurrentResourceHandle);
    }
    EXPECT_EQ(::GetModuleHandleW(nullptr), AfxGetModuleState()->m_hCurrentResourceHandle);
    AfxGetModuleState()->m_hCurrentResourceHandle = before;
}

TEST_F(Module, ResourceSwitchNamesTheHostEvenIfAnotherModuleWasNamedBefore)
{
    InitWithPictures();
    const HINSTANCE before = AfxGetModuleState()->m_hCurrentResourceHandle;
    AfxGetModuleState()->m_hCurrentResourceHandle = ::GetModuleHandleW(L"user32.dll");
    {
        const ResourceSwitch toLibrary;
    }
    EXPECT_EQ(::GetModuleHandleW(nullptr), AfxGetModuleState()->m_hCurrentResourceHandle);
    AfxGetModuleState()->m_hCurrentResourceHandle = before;
}

TEST_F(Module, ResourceSwitchNamesTheHostWhenAnExceptionLeaves)
{
    InitWithPictures();
    const HINSTANCE before = AfxGetModuleState()->m_hCurrentResourceHandle;
    EXPECT_THROW(
        {
            const ResourceSwitch toLibrary;
            throw std::runtime_error("while the dialog ran");
        },
        std::runtime_error);
    EXPECT_EQ(::GetModuleHandleW(nullptr), AfxGetModuleState()->m_hCurrentResourceHandle);
    AfxGetModuleState()->m_hCurrentResourceHandle = before;
}

TEST_F(Module, ToHostNamesTheHostWhileTheDialogIsOpen)
{
    InitWithPictures();
    const HINSTANCE before = AfxGetModuleState()->m_hCurrentResourceHandle;
    {
        const ResourceSwitch toLibrary;
        ResourceSwitch::ToHost();
        EXPECT_EQ(::GetModuleHandleW(nullptr), AfxGetModuleState()->m_hCurrentResourceHandle);
    }
    AfxGetModuleState()->m_hCurrentResourceHandle = before;
}

} // namespace
