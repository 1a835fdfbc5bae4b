#include <tests/support/Imports.h>
#include <tests/support/Support.h>

#include <gtest/gtest.h>

namespace
{

void ExpectContent(const wchar_t* program)
{
    const ts::ProcessResult result = ts::RunProcess(L"\"" + ts::ProgramFolder() + L"\\" + program + L"\"");
    EXPECT_TRUE(result.started);
    EXPECT_FALSE(result.timedOut);
    EXPECT_EQ(0u, result.status) << result.output;
    EXPECT_EQ("", result.output);
}

TEST(Hosts, ProgramWithItsOwnApplicationObject)
{
    ExpectContent(L"host_own_app.exe");
}

TEST(Hosts, ProgramWithoutApplicationObject)
{
    ExpectContent(L"host_plain.exe");
}

TEST(Hosts, ProgramThatLoadsAndFreesTheLibraryTwice)
{
    ExpectContent(L"host_loading.exe");
}

TEST(Hosts, AttachingDoesNotWaitForTheShellAndTheImagingLibraries)
{
    for (const char* name : {"QorUI.dll", "afx.dll"}) {
        const auto imports = ts::ImportsOf(::GetModuleHandleA(name));
        EXPECT_TRUE(imports.contains("user32.dll")) << "not loaded: " << name;
        for (const char* late : {"shell32.dll", "msimg32.dll", "comdlg32.dll"}) {
            EXPECT_FALSE(imports.contains(late)) << late << " is loaded with " << name;
        }
    }
}

} // namespace
