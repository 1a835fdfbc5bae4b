#include <tests/lists/Lists.h>

#include <QorPub/System.h>

namespace
{

class CTestTip : public CDesktopTip
{
  public:
    using CDesktopTip::OnPaint;
};

/** Another system version until the end of the scope. */
class CSystemCode
{
  public:
    explicit CSystemCode(WORD code) : m_former(g_OsVer) { g_OsVer = code; }
    ~CSystemCode() { g_OsVer = m_former; }
    CSystemCode(const CSystemCode&) = delete;
    CSystemCode& operator=(const CSystemCode&) = delete;

  private:
    WORD m_former;
};

class DesktopTip : public testing::Test
{
  protected:
    void SetUp() override { ASSERT_TRUE(m_tip.Create()); }

    CRect Rect() const
    {
        CRect rect;
        m_tip.GetWindowRect(rect);
        return rect;
    }

    static CRect WorkArea()
    {
        CRect work;
        EXPECT_TRUE(::SystemParametersInfoW(SPI_GETWORKAREA, 0, &work, 0));
        return work;
    }

    bool InCorner() const { return Rect().right == WorkArea().right - 6 && Rect().top == WorkArea().top + 6; }

    CTestTip m_tip;
};

TEST_F(DesktopTip, IsAHiddenToolWindowWithoutActivation)
{
    EXPECT_FALSE(m_tip.IsWindowVisible());
    EXPECT_EQ(0x08000080u, m_tip.GetExStyle() & 0x08000080u);
    EXPECT_TRUE(m_tip.GetStyle() & WS_POPUP);
    EXPECT_FALSE(m_tip.GetStyle() & WS_CAPTION);
    EXPECT_EQ(nullptr, ::GetWindow(m_tip, GW_OWNER));
    EXPECT_EQ(0u, ::GetClassLongPtrW(m_tip, GCLP_HBRBACKGROUND));
    EXPECT_EQ(0u, ::GetClassLongPtrW(m_tip, GCLP_HCURSOR));
}

TEST_F(DesktopTip, HasTheSizeOfItsTextInTheCorner)
{
    m_tip.SetTipText(L"Short");
    CRect text(0, 0, 160, 16);
    const HDC dc = ::GetDC(nullptr);
    const HGDIOBJ old = ::SelectObject(dc, GuiFont());
    ::DrawTextW(dc, L"Short", -1, &text, DT_CALCRECT | DT_WORDBREAK | DT_NOPREFIX | DT_EDITCONTROL);
    ::SelectObject(dc, old);
    ::ReleaseDC(nullptr, dc);
    EXPECT_EQ(text.Size(), Rect().Size());
    EXPECT_TRUE(m_tip.IsWindowVisible());
    EXPECT_TRUE(InCorner());
    CString shown;
    m_tip.GetWindowText(shown);
    EXPECT_STREQ(L"Short", shown);
}

TEST_F(DesktopTip, LongTextWrapsAndGrowsDownwards)
{
    m_tip.SetTipText(L"Short");
    const int height = Rect().Height();
    m_tip.SetTipText(L"A long text that has to be wrapped because it is wider than the tip may be");
    EXPECT_GE(Rect().Height(), 2 * height);
    EXPECT_LE(Rect().Width(), 160);
    EXPECT_TRUE(InCorner());
}

TEST_F(DesktopTip, EmptyTextHides)
{
    for (const wchar_t* text : {L"", static_cast<const wchar_t*>(nullptr)}) {
        m_tip.SetTipText(L"Short");
        EXPECT_TRUE(m_tip.IsWindowVisible());
        m_tip.SetTipText(text);
        EXPECT_FALSE(m_tip.IsWindowVisible());
    }
}

TEST_F(DesktopTip, SettingsThatMoveTheDesktopMoveTheTip)
{
    m_tip.SetTipText(L"Short");
    const auto moveAway = [this] { m_tip.SetWindowPos(nullptr, 30, 40, 0, 0, SWP_NOSIZE | SWP_NOACTIVATE); };
    for (const UINT setting : {UINT(SPI_SETWORKAREA), UINT(SPI_SETDESKWALLPAPER)}) {
        moveAway();
        m_tip.SendMessage(WM_SETTINGCHANGE, setting, 0);
        EXPECT_TRUE(InCorner()) << setting;
    }
    moveAway();
    m_tip.SendMessage(WM_SETTINGCHANGE, SPI_SETMOUSE, 0);
    EXPECT_FALSE(InCorner());
    EXPECT_EQ(0, m_tip.SendMessage(WM_DISPLAYCHANGE, 32, MAKELPARAM(1024, 768)));
    EXPECT_TRUE(InCorner());
}

TEST_F(DesktopTip, AdjustingRepaints)
{
    m_tip.SetTipText(L"Short");
    ::ValidateRect(m_tip, nullptr);
    m_tip.AdjustPos();
    EXPECT_TRUE(::GetUpdateRect(m_tip, nullptr, FALSE));
}

TEST_F(DesktopTip, CannotRiseAboveOtherWindows)
{
    m_tip.SetTipText(L"Short");
    WINDOWPOS position = {};
    position.hwnd = m_tip;
    position.hwndInsertAfter = HWND_TOPMOST;
    position.flags = SWP_NOZORDER | SWP_NOMOVE;
    m_tip.SendMessage(WM_WINDOWPOSCHANGING, 0, reinterpret_cast<LPARAM>(&position));
    EXPECT_EQ(HWND_BOTTOM, position.hwndInsertAfter);
    EXPECT_EQ(static_cast<UINT>(SWP_NOMOVE), position.flags);
    const ts::AfxHost other(100, 100);
    m_tip.SetWindowPos(&CWnd::wndTop, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
    HWND below = other.m_hWnd;
    while (below && below != m_tip.m_hWnd) {
        below = ::GetWindow(below, GW_HWNDNEXT);
    }
    EXPECT_EQ(m_tip.m_hWnd, below);
}

TEST_F(DesktopTip, WithoutAShellWindowNothingOfTheDesktopIsDrawn)
{
    ASSERT_EQ(nullptr, ::GetShellWindow());
    ts::DrawTo(20, 20, [this](HDC dc) { EXPECT_FALSE(m_tip.PaintDesktop(CDC::FromHandle(dc))); });
    EXPECT_FALSE(m_tip.PaintDesktop(nullptr));
}

TEST_F(DesktopTip, WritesItsTextInWhite)
{
    for (const WORD code : {WORD(5), WORD(10)}) {
        const CSystemCode system(code);
        m_tip.SetTipText(L"Short");
        const ts::Picture look = LookOf(m_tip);
        EXPECT_GT(look.Count(RGB(255, 255, 255)), 5) << code;
        EXPECT_FALSE(::GetUpdateRect(m_tip, nullptr, FALSE)) << code;
    }
}

TEST(DesktopTipAlone, WithoutAWindowNothingHappens)
{
    CDesktopTip tip;
    tip.SetTipText(L"x");
    tip.AdjustPos();
    EXPECT_EQ(nullptr, tip.m_hWnd);
}

TEST_F(DesktopTip, LeavesNothingBehind)
{
    EXPECT_TRUE(ts::NoLeak([] {
        CDesktopTip tip;
        tip.Create();
        tip.SetTipText(L"Text");
        tip.UpdateWindow();
        tip.DestroyWindow();
    }));
}

} // namespace
