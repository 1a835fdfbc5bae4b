#include <tests/support/Refusals.h>
#include <tests/support/Support.h>

namespace
{

TEST(ImportRedirection, ReplacesAFunctionWhileItLives)
{
    const ts::HostWindow host(20, 20);
    {
        const ts::ImportRedirection failing(
            {ts::ImportRedirection::Of(&CreateCompatibleBitmap, &ts::NoCompatibleBitmap)});
        EXPECT_EQ(nullptr, CreateCompatibleBitmap(nullptr, 10, 10));
    }
    const HDC dc = GetDC(host.Hwnd());
    const HBITMAP bitmap = CreateCompatibleBitmap(dc, 10, 10);
    EXPECT_NE(nullptr, bitmap);
    DeleteObject(bitmap);
    ReleaseDC(host.Hwnd(), dc);
}

} // namespace
