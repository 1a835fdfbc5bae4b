#include <tests/support/Support.h>

namespace
{

HBITMAP WINAPI NoBitmap(HDC, int, int)
{
    return nullptr;
}

TEST(ImportRedirection, ReplacesAFunctionWhileItLives)
{
    const ts::HostWindow host(20, 20);
    {
        const ts::ImportRedirection failing({ts::ImportRedirection::Of(&CreateCompatibleBitmap, &NoBitmap)});
        EXPECT_EQ(nullptr, CreateCompatibleBitmap(nullptr, 10, 10));
    }
    const HDC dc = GetDC(host.Hwnd());
    const HBITMAP bitmap = CreateCompatibleBitmap(dc, 10, 10);
    EXPECT_NE(nullptr, bitmap);
    DeleteObject(bitmap);
    ReleaseDC(host.Hwnd(), dc);
}

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

TEST(GdiShortage, LeavesAFewObjects)
{
    const auto possible = [] {
        std::vector<HBRUSH> brushes;
        while (const HBRUSH brush = brushes.size() < 10 ? CreateSolidBrush(RGB(0, 0, 0)) : nullptr) {
            brushes.push_back(brush);
        }
        for (const HBRUSH brush : brushes) {
            DeleteObject(brush);
        }
        return brushes.size();
    };
    for (const size_t left : {0u, 3u}) {
        const ts::GdiShortage shortage(left);
        EXPECT_EQ(left, possible());
    }
    EXPECT_EQ(10u, possible());
}

} // namespace
