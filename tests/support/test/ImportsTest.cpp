#include <tests/support/Imports.h>
#include <tests/support/Support.h>

#include <gtest/gtest-spi.h>

namespace
{

int WINAPI AlwaysSeven(int /*index*/)
{
    return 7;
}

/** A function of its own, because the compiler takes the import for a constant and reads it once in each. */
[[gnu::noinline]] int ScreenWidth()
{
    return GetSystemMetrics(SM_CXSCREEN);
}

TEST(ReplacedImport, LastsAsLongAsItsObject)
{
    const int width = ScreenWidth();
    ASSERT_NE(7, width);
    {
        const ts::ReplacedImport seven(nullptr, "GetSystemMetrics", &AlwaysSeven);
        EXPECT_EQ(7, ScreenWidth());
    }
    EXPECT_EQ(width, ScreenWidth());
}

TEST(ReplacedImport, MissingFunctionOrModuleIsAFailure)
{
    EXPECT_NONFATAL_FAILURE(ts::ReplacedImport(nullptr, "NoSuchFunction", &AlwaysSeven), "NoSuchFunction");
    EXPECT_NONFATAL_FAILURE(ts::ReplacedImport(L"nothing.dll", "GetSystemMetrics", &AlwaysSeven), "GetSystemMetrics");
}

TEST(ReplacedFunction, LastsAsLongAsItsObjectForEveryCaller)
{
    const auto real = ::GetProcAddress(::GetModuleHandleW(L"user32.dll"), "GetSystemMetrics");
    const auto call = [real] {
        return reinterpret_cast<int(WINAPI*)(int)>(reinterpret_cast<void*>(real))(SM_CXSCREEN);
    };
    const int width = call();
    ASSERT_NE(7, width);
    {
        const ts::ReplacedFunction seven(L"user32.dll", "GetSystemMetrics", &AlwaysSeven);
        EXPECT_EQ(7, call());
        EXPECT_EQ(7, ScreenWidth());
    }
    EXPECT_EQ(width, call());
}

TEST(ReplacedFunction, MissingFunctionOrLibraryIsAFailure)
{
    EXPECT_NONFATAL_FAILURE(ts::ReplacedFunction(L"user32.dll", "NoSuchFunction", &AlwaysSeven), "NoSuchFunction");
    EXPECT_NONFATAL_FAILURE(ts::ReplacedFunction(L"nothing.dll", "GetSystemMetrics", &AlwaysSeven), "GetSystemMetrics");
}

TEST(Imports, AreThoseOfTheModule)
{
    const auto imports = ts::ImportsOf(::GetModuleHandleW(nullptr));
    EXPECT_TRUE(imports.contains("user32.dll"));
    EXPECT_FALSE(imports.contains("nothing.dll"));
    EXPECT_TRUE(ts::ImportsOf(nullptr).empty());
}

} // namespace
