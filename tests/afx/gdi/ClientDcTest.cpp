#include "MemoryDc.h"

#include <tests/support/Support.h>
#include <tests/support/ui/AfxHost.h>

namespace
{
template <class Function>
bool ThrowsResource(Function function)
{
    try {
        function();
    } catch (CResourceException* error) {
        error->Delete();
        return true;
    }
    return false;
}
} // namespace

TEST(ClientDc, CoversTheClientAreaOfItsWindow)
{
    ts::AfxHost host(300, 150);
    CClientDC dc(&host);
    EXPECT_EQ(dc.GetWindow(), &host);
    CRect box;
    dc.GetClipBox(&box);
    EXPECT_EQ(box, CRect(0, 0, 300, 150));
}

TEST(WindowDc, CoversTheFrameToo)
{
    ts::AfxHost host(100, 50);
    CWindowDC dc(&host);
    CRect box;
    CRect window;
    dc.GetClipBox(&box);
    host.GetWindowRect(&window);
    EXPECT_EQ(box.Size(), window.Size());
}

TEST(WindowContexts, NullWindowIsTheScreenAndAMissingOneThrows)
{
    CClientDC screen(nullptr);
    EXPECT_GE(screen.GetDeviceCaps(HORZRES), 640);
    CWnd none;
    EXPECT_TRUE(ThrowsResource([&] { CClientDC dc(&none); }));
    EXPECT_TRUE(ThrowsResource([&] { CWindowDC dc(&none); }));
    EXPECT_TRUE(ThrowsResource([&] { CPaintDC dc(&none); }));
    EXPECT_TRUE(ThrowsResource([&] { CPaintDC dc(nullptr); }));
}

TEST(PaintDc, ValidatesWhatItPaints)
{
    ts::AfxHost host(100, 50);
    ts::Settle();
    host.InvalidateRect(CRect(10, 10, 30, 20));
    {
        CPaintDC dc(&host);
        EXPECT_EQ(CRect(dc.m_ps.rcPaint), CRect(10, 10, 30, 20));
        EXPECT_EQ(dc.m_ps.hdc, dc.GetSafeHdc());
        EXPECT_TRUE(::GetUpdateRect(host, nullptr, FALSE) == FALSE);
    }
    EXPECT_FALSE(host.GetUpdateRect(nullptr));
}

TEST(WindowContexts, LeaveNoContextBehind)
{
    ts::AfxHost host(100, 50);
    ts::Settle();
    EXPECT_TRUE(ts::NoLeak([&] {
        CClientDC client(&host);
        CWindowDC window(&host);
        host.Invalidate();
        CPaintDC paint(&host);
        paint.FillSolidRect(0, 0, 5, 5, kRed);
    }));
}
