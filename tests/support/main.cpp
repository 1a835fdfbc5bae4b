#include <tests/support/CrashHandler.h>
#include <tests/support/Input.h>
#include <tests/support/Pump.h>

#include <gtest/gtest.h>

#include <commctrl.h>
#include <ole2.h>

namespace
{
constexpr UINT kHoverTime = 20;

/** Gives every test the same start: nothing pressed, no old messages, the pointer away. */
class Tidy : public testing::EmptyTestEventListener
{
    void OnTestEnd(const testing::TestInfo&) override
    {
        ts::SetPreTranslate(nullptr);
        ts::ReleaseInput();
        ts::ParkMouse();
        MSG message;
        while (PeekMessageW(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE)) {
            continue;
        }
        ts::Settle();
    }
};

void InitialiseControls()
{
    INITCOMMONCONTROLSEX controls = {sizeof(controls), ICC_WIN95_CLASSES | ICC_DATE_CLASSES | ICC_USEREX_CLASSES |
                                                           ICC_COOL_CLASSES | ICC_INTERNET_CLASSES |
                                                           ICC_STANDARD_CLASSES | ICC_LINK_CLASS};
    InitCommonControlsEx(&controls);
}
} // namespace

int wmain(int argc, wchar_t** argv)
{
    testing::InitGoogleTest(&argc, argv);
    ts::InstallCrashHandler();
    if (FAILED(OleInitialize(nullptr))) {
        return EXIT_FAILURE;
    }
    InitialiseControls();
    ts::SetHoverTime(kHoverTime);
    ts::KeepClicksApart();
    testing::UnitTest::GetInstance()->listeners().Append(new Tidy);
    const int result = RUN_ALL_TESTS();
    OleUninitialize();
    return result;
}
