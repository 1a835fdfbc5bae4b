#include <tests/support/Support.h>

namespace
{

TEST(ScreenDraws, CountsWhatIsDrawnInWindowsAndNotInMemory)
{
    const ts::HostWindow host(100, 100);
    const HDC window = GetDC(host.Hwnd());
    const HDC memory = CreateCompatibleDC(window);
    {
        const ts::ScreenDraws draws;
        Rectangle(memory, 0, 0, 1, 1);
        EXPECT_EQ(0, draws.Count());
        Rectangle(window, 0, 0, 10, 10);
        EXPECT_EQ(1, draws.Count());
        const RECT rect = {0, 0, 5, 5};
        FillRect(window, &rect, static_cast<HBRUSH>(GetStockObject(WHITE_BRUSH))); // draws in another module
        EXPECT_EQ(2, draws.Count());
        DrawTextW(window, L"x", 1, const_cast<RECT*>(&rect), DT_SINGLELINE);
        EXPECT_EQ(3, draws.Count());
        MoveToEx(window, 0, 0, nullptr);
        EXPECT_EQ(3, draws.Count());
    }
    Rectangle(window, 0, 0, 10, 10);
    EXPECT_EQ(0, ts::ScreenDraws().Count());
    DeleteDC(memory);
    ReleaseDC(host.Hwnd(), window);
}

} // namespace
