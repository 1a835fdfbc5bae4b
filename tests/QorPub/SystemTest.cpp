#include <QorPub/OsVersion.h>
#include <QorPub/QorPub.h>
#include <tests/support/Pump.h>

#include <gtest/gtest.h>

namespace
{

constexpr LPCWSTR kWindowTitle = L"QorPub test window \u4E2D";

class PreInstance : public testing::Test
{
  protected:
    void TearDown() override
    {
        if (m_window) {
            DestroyWindow(m_window);
        }
    }

    void MakeWindow(DWORD style)
    {
        m_window = CreateWindowExW(0, L"STATIC", kWindowTitle, WS_OVERLAPPEDWINDOW | style, 10, 10, 200, 100, nullptr,
                                   nullptr, nullptr, nullptr);
        ASSERT_NE(nullptr, m_window);
        ts::Settle();
    }

    HWND m_window = nullptr;
};

} // namespace

TEST(OsVersion, CodesOfTheTable)
{
    EXPECT_EQ(0, qor::OsVersionCode(4, 0));
    EXPECT_EQ(1, qor::OsVersionCode(5, 0));
    EXPECT_EQ(2, qor::OsVersionCode(5, 1));
    EXPECT_EQ(3, qor::OsVersionCode(5, 2));
    EXPECT_EQ(4, qor::OsVersionCode(6, 0));
    EXPECT_EQ(5, qor::OsVersionCode(6, 1));
    EXPECT_EQ(8, qor::OsVersionCode(6, 2));
    EXPECT_EQ(8, qor::OsVersionCode(6, 3));
    EXPECT_EQ(10, qor::OsVersionCode(10, 0));
    EXPECT_EQ(10, qor::OsVersionCode(11, 0));
}

TEST(OsVersion, GlobalsAreThoseOfTheRunningSystem)
{
    using RtlGetVersionFn = LONG(WINAPI*)(OSVERSIONINFOEXW*);
    OSVERSIONINFOEXW info = {};
    info.dwOSVersionInfoSize = sizeof(info);
    auto address = reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(L"ntdll.dll"), "RtlGetVersion"));
    ASSERT_EQ(0, reinterpret_cast<RtlGetVersionFn>(address)(&info));
    EXPECT_EQ(qor::OsVersionCode(info.dwMajorVersion, info.dwMinorVersion), g_OsVer);
    EXPECT_EQ(info.wServicePackMajor, g_SpVer);
    EXPECT_GE(g_OsVer << 16 | g_SpVer, 0x50000);
}

TEST_F(PreInstance, AVisibleWindowIsFoundByClassAndTitle)
{
    MakeWindow(WS_VISIBLE);
    EXPECT_TRUE(QorShowPreInstanceWnd(L"STATIC", kWindowTitle));
    EXPECT_EQ(m_window, GetForegroundWindow());
}

TEST_F(PreInstance, ThePopupThatWasActiveLastComesToTheFront)
{
    MakeWindow(WS_VISIBLE);
    HWND popup = CreateWindowExW(0, L"STATIC", L"Popup", WS_POPUP | WS_CAPTION | WS_VISIBLE, 20, 20, 90, 60, m_window,
                                 nullptr, nullptr, nullptr);
    SetForegroundWindow(popup);
    HWND other = CreateWindowExW(0, L"STATIC", L"Other", WS_POPUP | WS_VISIBLE, 200, 200, 90, 60, nullptr, nullptr,
                                 nullptr, nullptr);
    SetForegroundWindow(other);
    ts::Settle();
    EXPECT_TRUE(QorShowPreInstanceWnd(L"STATIC", kWindowTitle));
    EXPECT_EQ(popup, GetForegroundWindow());
    DestroyWindow(other);
    DestroyWindow(popup);
}

TEST_F(PreInstance, AMinimisedWindowIsRestored)
{
    MakeWindow(WS_VISIBLE | WS_MINIMIZE);
    ASSERT_TRUE(IsIconic(m_window));
    EXPECT_TRUE(QorShowPreInstanceWnd(L"STATIC", kWindowTitle));
    EXPECT_FALSE(IsIconic(m_window));
}

TEST_F(PreInstance, AHiddenWindowDoesNotCount)
{
    MakeWindow(0);
    EXPECT_FALSE(QorShowPreInstanceWnd(L"STATIC", kWindowTitle));
    EXPECT_FALSE(IsWindowVisible(m_window));
}

TEST_F(PreInstance, AVisibleWindowBehindAHiddenOneIsFound)
{
    MakeWindow(WS_VISIBLE);
    HWND hidden = CreateWindowExW(0, L"STATIC", kWindowTitle, WS_OVERLAPPEDWINDOW, 0, 0, 50, 50, nullptr, nullptr,
                                  nullptr, nullptr);
    SetWindowPos(hidden, HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
    EXPECT_TRUE(QorShowPreInstanceWnd(L"STATIC", kWindowTitle));
    DestroyWindow(hidden);
}

TEST_F(PreInstance, OtherClassesAndTitlesAreNotFound)
{
    MakeWindow(WS_VISIBLE);
    EXPECT_FALSE(QorShowPreInstanceWnd(L"#32770", kWindowTitle));
    EXPECT_FALSE(QorShowPreInstanceWnd(L"STATIC", L"QorPub test window"));
    EXPECT_FALSE(QorShowPreInstanceWnd(L"STATIC", L""));
    EXPECT_FALSE(QorShowPreInstanceWnd(L"STATIC", nullptr));
}

TEST_F(PreInstance, ANullClassFitsEveryWindow)
{
    MakeWindow(WS_VISIBLE);
    EXPECT_TRUE(QorShowPreInstanceWnd(nullptr, kWindowTitle));
    EXPECT_TRUE(QorShowPreInstanceWnd(L"", kWindowTitle));
}
