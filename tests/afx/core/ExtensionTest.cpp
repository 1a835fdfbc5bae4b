#include "Checks.h"
#include "ExtensionDll.h"

TEST(ExtensionModule, LibraryMadeFromHandlesIsSearchedUntilDeleted)
{
    const HMODULE hPlain = LoadLibraryExW(L"afx_core_ext2.dll", nullptr, LOAD_LIBRARY_AS_DATAFILE);
    ASSERT_NE(nullptr, hPlain);
    auto* const pLibrary = new CDynLinkLibrary(hPlain, hPlain);
    EXPECT_EQ(CString(L"extension 2 101"), Loaded(101));
    delete pLibrary;
    EXPECT_EQ(CString(L"-"), Loaded(101));
    auto* const pWithout = new CDynLinkLibrary(hPlain, nullptr);
    EXPECT_EQ(CString(L"-"), Loaded(101));
    delete pWithout;
    FreeLibrary(hPlain);
}

TEST(ExtensionModule, CarelessDllLeavesNothingBehind)
{
    const BOOL bOld = AfxEnableMemoryTracking(TRUE);
    CMemoryState before;
    CMemoryState after;
    CMemoryState difference;
    before.Checkpoint();
    ExtensionDll ext1(1);
    ASSERT_NE(nullptr, ext1.Handle());
    auto* const pbForget =
        reinterpret_cast<bool*>(reinterpret_cast<void*>(GetProcAddress(ext1.Handle(), "g_bForgetToTerminate")));
    ASSERT_NE(nullptr, pbForget);
    *pbForget = true;
    ext1.Free();
    after.Checkpoint();
    AfxEnableMemoryTracking(bOld);
    EXPECT_FALSE(difference.Difference(before, after)) << "the list of the host still holds the library";
    EXPECT_EQ(nullptr, GetModuleHandleW(L"afx_core_ext1.dll"));
    EXPECT_EQ(CString(L"-"), Loaded(101));
    EXPECT_EQ(GetModuleHandle(nullptr), FindData(502));
}

TEST(ExtensionModule, NullModuleIsRefused)
{
    AFX_EXTENSION_MODULE extension;
    EXPECT_FALSE(AfxInitExtensionModule(extension, nullptr));
    EXPECT_FALSE(extension.bInitialized);
    AfxTermExtensionModule(extension);
    EXPECT_EQ(nullptr, extension.hModule);
}

TEST(ExtensionModule, RepeatedLoadingLeaksNoFrameworkMemory)
{
    {
        const ExtensionDll warmUp(1);
        ASSERT_NE(nullptr, warmUp.Handle());
    }
    const BOOL bOld = AfxEnableMemoryTracking(TRUE);
    CMemoryState before;
    CMemoryState after;
    CMemoryState difference;
    before.Checkpoint();
    for (int i = 0; i < 5; ++i) {
        const ExtensionDll ext1(1);
        EXPECT_EQ(CString(L"extension 1 101"), Loaded(101));
    }
    after.Checkpoint();
    AfxEnableMemoryTracking(bOld);
    EXPECT_FALSE(difference.Difference(before, after));
}
