#include <QorPub/System.h>
#include <QorUI/QorUI.h>
#include <tests/support/NoWindowClasses.h>
#include <tests/support/Refusals.h>
#include <tests/support/Support.h>
#include <tests/support/ui/AfxHost.h>
#include <tests/support/ui/Control.h>
#include <tests/support/ui/Look.h>

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
    explicit CSystemCode(WORD code, WORD pack = 0) : m_formerCode(g_OsVer), m_formerPack(g_SpVer)
    {
        g_OsVer = code;
        g_SpVer = pack;
    }
    ~CSystemCode()
    {
        g_OsVer = m_formerCode;
        g_SpVer = m_formerPack;
    }
    CSystemCode(const CSystemCode&) = delete;
    CSystemCode& operator=(const CSystemCode&) = delete;

  private:
    WORD m_formerCode;
    WORD m_formerPack;
};

/** The shell's desktop window, with another colour at every place. */
class CShellWindow : public CWnd
{
  public:
    explicit CShellWindow(CSize size = CSize(::GetSystemMetrics(SM_CXSCREEN), ::GetSystemMetrics(SM_CYSCREEN)))
        : m_size(size)
    {
        const auto setShellWindow = reinterpret_cast<BOOL(WINAPI*)(HWND)>(
            reinterpret_cast<void*>(::GetProcAddress(::GetModuleHandleW(L"user32.dll"), "SetShellWindow")));
        EXPECT_TRUE(CreateEx(0, AfxRegisterWndClass(0), L"", WS_POPUP, CRect(CPoint(0, 0), size), nullptr, 0));
        EXPECT_TRUE(setShellWindow(m_hWnd));
        EXPECT_EQ(m_hWnd, ::GetShellWindow());
    }
    ~CShellWindow() override { DestroyWindow(); }

    static COLORREF ColourAt(int x, int y) { return RGB(x & 255, y & 255, (x >> 8) * 16 + (y >> 8)); }

    /** What stands in a part of the window. */
    static ts::Picture Part(const CRect& part)
    {
        std::vector<COLORREF> pixels;
        for (int y = part.top; y < part.bottom; ++y) {
            for (int x = part.left; x < part.right; ++x) {
                pixels.push_back(ColourAt(x, y));
            }
        }
        return ts::Picture(part.Width(), part.Height(), pixels);
    }

    int m_prints = 0;
    LPARAM m_flags = 0; // of the last print

  protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message != WM_PRINT) {
            return CWnd::WindowProc(message, wParam, lParam);
        }
        ++m_prints;
        m_flags = lParam;
        Draw(reinterpret_cast<HDC>(wParam));
        return 0;
    }

  private:
    void Draw(HDC dc) const
    {
        std::vector<DWORD> pixels;
        for (int y = 0; y < m_size.cy; ++y) {
            for (int x = 0; x < m_size.cx; ++x) {
                const COLORREF colour = ColourAt(x, y);
                pixels.push_back(RGB(GetBValue(colour), GetGValue(colour), GetRValue(colour)));
            }
        }
        BITMAPINFO info = {};
        info.bmiHeader = {sizeof(info.bmiHeader), m_size.cx, -m_size.cy, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
        ::SetDIBitsToDevice(dc, 0, 0, static_cast<DWORD>(m_size.cx), static_cast<DWORD>(m_size.cy), 0, 0, 0,
                            static_cast<UINT>(m_size.cy), pixels.data(), &info, DIB_RGB_COLORS);
    }

    CSize m_size;
};

constexpr UINT kText = DT_WORDBREAK | DT_NOPREFIX | DT_EDITCONTROL;
const CRect kWork(100, 50, 900, 600);
int g_paintings = 0;

BOOL WINAPI OtherWorkArea(UINT action, UINT, PVOID area, UINT)
{
    if (action == SPI_GETWORKAREA) {
        *static_cast<RECT*>(area) = kWork;
    }
    return action == SPI_GETWORKAREA;
}

BOOL WINAPI NoParameters(UINT, UINT, PVOID, UINT)
{
    return FALSE;
}

BOOL WINAPI NoPrinting(HWND, HDC, UINT)
{
    return FALSE;
}

BOOL WINAPI PaintGreen(HDC dc)
{
    ++g_paintings;
    const CRect all(0, 0, 1000, 1000);
    return ::FillRect(dc, &all, CBrush(RGB(0, 128, 0)));
}

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

TEST(DesktopTipAlone, IsNotCreatedWithoutItsWindowClass)
{
    const ts::NoWindowClasses none;
    CDesktopTip tip;
    EXPECT_FALSE(tip.Create());
    EXPECT_EQ(nullptr, tip.m_hWnd);
}

TEST_F(DesktopTip, IsAHiddenToolWindowWithoutActivation)
{
    EXPECT_FALSE(m_tip.IsWindowVisible());
    EXPECT_EQ(0x08000080u, m_tip.GetExStyle() & 0x08000080u);
    EXPECT_TRUE(m_tip.GetStyle() & WS_POPUP);
    EXPECT_FALSE(m_tip.GetStyle() & WS_CAPTION);
    EXPECT_EQ(nullptr, ::GetWindow(m_tip, GW_OWNER));
    EXPECT_EQ(0u, ::GetClassLongPtrW(m_tip, GCLP_HBRBACKGROUND));
    EXPECT_EQ(0u, ::GetClassLongPtrW(m_tip, GCLP_HCURSOR));
    EXPECT_EQ(0u, ::GetClassLongPtrW(m_tip, GCLP_HICON));
    EXPECT_EQ(0u, ::GetClassLongPtrW(m_tip, GCL_STYLE));
    EXPECT_EQ(CRect(0, 0, 0, 0), Rect());
    EXPECT_EQ(0, m_tip.GetWindowTextLength());
}

TEST_F(DesktopTip, HasTheSizeOfItsTextInTheCorner)
{
    for (const wchar_t* text : {L"Short", L"Short && sweet", L"Two lines because the first is too long for one",
                                L"Averylongwordthatiswiderthanthewholetipcanbeanywhereonthedesktop"}) {
        m_tip.SetTipText(text);
        CRect size(0, 0, 160, 16);
        const HDC dc = ::GetDC(nullptr);
        const HGDIOBJ old = ::SelectObject(dc, ts::GuiFont());
        ::DrawTextW(dc, text, -1, &size, DT_CALCRECT | kText);
        ::SelectObject(dc, old);
        ::ReleaseDC(nullptr, dc);
        EXPECT_EQ(size.Size(), Rect().Size()) << ts::ToUtf8(text);
        EXPECT_TRUE(m_tip.IsWindowVisible());
        EXPECT_TRUE(InCorner());
        CString shown;
        m_tip.GetWindowText(shown);
        EXPECT_STREQ(text, shown);
    }
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

/** A tip that tells where it stands when the system's handling of a change comes. */
class CWatchedTip : public CDesktopTip
{
  public:
    std::vector<CPoint> m_places;

  protected:
    LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message == WM_SETTINGCHANGE) {
            CRect rect;
            GetWindowRect(&rect);
            m_places.push_back(rect.TopLeft());
        }
        return CDesktopTip::DefWindowProc(message, wParam, lParam);
    }
};

TEST(DesktopTipAlone, SystemHandlesChangesOfTheSettingsFirst)
{
    CWatchedTip tip;
    ASSERT_TRUE(tip.Create());
    tip.SetTipText(L"Short");
    for (const UINT setting : {UINT(SPI_SETWORKAREA), UINT(SPI_SETMOUSE)}) {
        tip.SetWindowPos(nullptr, 30, 40, 0, 0, SWP_NOSIZE | SWP_NOACTIVATE);
        tip.SendMessage(WM_SETTINGCHANGE, setting, 0);
    }
    EXPECT_EQ(std::vector<CPoint>(2, CPoint(30, 40)), tip.m_places);
    tip.DestroyWindow();
}

TEST_F(DesktopTip, AdjustingRepaints)
{
    m_tip.SetTipText(L"Short");
    ::ValidateRect(m_tip, nullptr);
    ts::MessageRecorder log(m_tip);
    log.RecordOnly({WM_ERASEBKGND});
    m_tip.AdjustPos();
    EXPECT_TRUE(::GetUpdateRect(m_tip, nullptr, FALSE));
    m_tip.UpdateWindow();
    EXPECT_EQ(0u, log.Messages().size());
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

TEST_F(DesktopTip, CopiesTheDesktopUnderIt)
{
    CShellWindow shell;
    m_tip.SetTipText(L"Short");
    const CSize size = Rect().Size();
    const ts::Picture look =
        ts::DrawTo(size.cx, size.cy, [this](HDC dc) { EXPECT_TRUE(m_tip.PaintDesktop(CDC::FromHandle(dc))); });
    EXPECT_TRUE(ts::SamePicture(CShellWindow::Part(Rect()), look));
    EXPECT_EQ(1, shell.m_prints);
    EXPECT_TRUE(shell.m_flags & PRF_CLIENT);
    EXPECT_FALSE(shell.m_flags & PRF_NONCLIENT);
}

TEST_F(DesktopTip, DrawsOnlyInItsOwnSize)
{
    const CShellWindow shell;
    m_tip.SetTipText(L"Short");
    const CSize size = Rect().Size();
    const ts::Picture look =
        ts::DrawTo(size.cx + 5, size.cy + 5, [this](HDC dc) { EXPECT_TRUE(m_tip.PaintDesktop(CDC::FromHandle(dc))); });
    EXPECT_TRUE(ts::AreaIs(look, CRect(size.cx, 0, size.cx + 5, size.cy + 5), RGB(255, 255, 255)));
    EXPECT_TRUE(ts::AreaIs(look, CRect(0, size.cy, size.cx + 5, size.cy + 5), RGB(255, 255, 255)));
}

TEST_F(DesktopTip, FailsQuietlyAndDrawsNothing)
{
    const CShellWindow shell;
    m_tip.SetTipText(L"Short");
    const auto expectNothing = [this](const ts::ImportRedirection::Function& function) {
        const ts::Picture look = ts::DrawTo(200, 50, [this, &function](HDC dc) {
            const ts::ImportRedirection failing({function});
            EXPECT_FALSE(m_tip.PaintDesktop(CDC::FromHandle(dc)));
        });
        EXPECT_TRUE(ts::AreaIs(look, CRect(0, 0, 200, 50), RGB(255, 255, 255)));
    };
    expectNothing(ts::ImportRedirection::Of(&::PrintWindow, &NoPrinting));
    expectNothing(ts::ImportRedirection::Of(&::CreateCompatibleBitmap, &ts::NoCompatibleBitmap));
    expectNothing(ts::ImportRedirection::Of(&::CreateCompatibleDC, &ts::NoMemoryDc));
}

TEST_F(DesktopTip, SystemPaintsTheDesktopOfOldVersions)
{
    CShellWindow shell;
    m_tip.SetTipText(L"Short");
    const ts::ImportRedirection painting({ts::ImportRedirection::Of(&::PaintDesktop, &PaintGreen)});
    g_paintings = 0;
    for (const auto& [code, pack] : {std::pair<WORD, WORD>(5, 0), std::pair<WORD, WORD>(7, 0xFFFF)}) {
        const CSystemCode system(code, pack);
        EXPECT_GT(ts::LookOf(m_tip).Count(RGB(0, 128, 0)), 50) << code;
    }
    EXPECT_EQ(0, shell.m_prints);
    EXPECT_EQ(2, g_paintings);
    for (const WORD code : {WORD(8), WORD(10)}) {
        const CSystemCode system(code);
        EXPECT_EQ(0, ts::LookOf(m_tip).Count(RGB(0, 128, 0))) << code;
    }
    EXPECT_EQ(2, shell.m_prints);
    EXPECT_EQ(2, g_paintings);
}

TEST_F(DesktopTip, TextStandsOnTheDesktop)
{
    const CShellWindow shell;
    const CSystemCode system(10);
    for (const wchar_t* text : {L"Short & sweet", L"A long text that has to be wrapped because it is wide\r\nand more",
                                L"Averylongwordthatiswiderthanthewholetipcanbeanywhereonthedesktop"}) {
        m_tip.SetTipText(text);
        const CRect rect = Rect();
        const ts::Picture desktop = CShellWindow::Part(rect);
        const ts::Picture expected = ts::DrawTo(rect.Width(), rect.Height(), [&](HDC dc) {
            m_tip.PaintDesktop(CDC::FromHandle(dc));
            CRect all(0, 0, rect.Width(), rect.Height());
            ::SelectObject(dc, ts::GuiFont());
            ::SetBkMode(dc, TRANSPARENT);
            ::SetTextColor(dc, RGB(255, 255, 255));
            ::DrawTextW(dc, text, -1, &all, kText);
        });
        const ts::Picture look = ts::LookOf(m_tip);
        EXPECT_TRUE(ts::SamePicture(expected, look)) << ts::ToUtf8(text);
        EXPECT_FALSE(ts::SamePicture(desktop, look)) << ts::ToUtf8(text);
    }
}

TEST_F(DesktopTip, SurvivesTheEndOfTheGdiObjects)
{
    const CShellWindow shell;
    m_tip.SetTipText(L"Short");
    EXPECT_TRUE(ts::SurvivesGdiShortage(m_tip));
}

TEST_F(DesktopTip, FollowsTheWorkArea)
{
    m_tip.SetTipText(L"Short");
    const CSize size = Rect().Size();
    {
        const ts::ImportRedirection moved({ts::ImportRedirection::Of(&::SystemParametersInfoW, &OtherWorkArea)});
        m_tip.AdjustPos();
    }
    EXPECT_EQ(CRect(CPoint(900 - size.cx - 6, 56), size), Rect());
    const ts::ImportRedirection failing({ts::ImportRedirection::Of(&::SystemParametersInfoW, &NoParameters)});
    m_tip.AdjustPos();
    EXPECT_EQ(CRect(CPoint(1024 - size.cx - 6, 6), size), Rect());
}

TEST_F(DesktopTip, TakesNoActivation)
{
    const ts::AfxHost other(100, 100);
    ts::MessageRecorder log(m_tip);
    log.RecordOnly({WM_ACTIVATE});
    std::vector<UINT> flags;
    log.Answer(WM_WINDOWPOSCHANGED, [&flags](const ts::Message& message) -> std::optional<LRESULT> {
        flags.push_back(reinterpret_cast<const WINDOWPOS*>(message.lParam)->flags);
        return std::nullopt;
    });
    m_tip.SetTipText(L"Short");
    m_tip.SetTipText(L"Longer than short");
    m_tip.SetTipText(nullptr);
    ASSERT_GE(flags.size(), 3u);
    for (const UINT flag : flags) {
        EXPECT_TRUE(flag & SWP_NOACTIVATE) << flag;
    }
    EXPECT_TRUE(log.Is({}));
    EXPECT_EQ(other.m_hWnd, ::GetForegroundWindow());
}

TEST_F(DesktopTip, WritesItsTextInWhite)
{
    for (const WORD code : {WORD(5), WORD(10)}) {
        const CSystemCode system(code);
        m_tip.SetTipText(L"Short");
        const ts::Picture look = ts::LookOf(m_tip);
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
