#include <tests/support/ImportHook.h>

#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

namespace
{

constexpr DWORD kPlanted = 0xABCDEF;

DWORD WINAPI PlantedProcessId()
{
    return kPlanted;
}

// Of its own: within one function the compiler reads the address only once.
[[gnu::noinline]] DWORD ProcessId()
{
    return ::GetCurrentProcessId();
}

TEST(ImportHook, PutsAFunctionInPlaceUntilItEnds)
{
    const DWORD real = ProcessId();
    ASSERT_NE(kPlanted, real);
    {
        const ts::ImportHook hook(nullptr, "GetCurrentProcessId", &PlantedProcessId);
        EXPECT_EQ(kPlanted, ProcessId());
    }
    EXPECT_EQ(real, ProcessId());
}

TEST(ImportHook, FailsTheTestWhenTheModuleDoesNotImportTheFunction)
{
    EXPECT_NONFATAL_FAILURE(const ts::ImportHook hook(nullptr, "NoSuchFunction", &PlantedProcessId), "does not import");
    EXPECT_NONFATAL_FAILURE(const ts::ImportHook hook(L"no-such.dll", "GetCurrentProcessId", &PlantedProcessId),
                            "does not import");
}

} // namespace
