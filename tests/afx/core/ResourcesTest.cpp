#include "Checks.h"
#include "ExtensionDll.h"

TEST(ModuleState, NullHandlesStandForTheProgram)
{
    AFX_MODULE_STATE state(FALSE, nullptr);
    AFX_MANAGE_STATE(&state);
    EXPECT_EQ(GetModuleHandle(nullptr), AfxGetInstanceHandle());
    EXPECT_EQ(GetModuleHandle(nullptr), AfxGetResourceHandle());
    CString str;
    EXPECT_TRUE(str.LoadString(100));
}

TEST(ModuleState, ResourceHandleCanBeSet)
{
    AfxSetResourceHandle(GetModuleHandle(L"kernel32.dll"));
    EXPECT_EQ(GetModuleHandle(L"kernel32.dll"), AfxGetModuleState()->m_hCurrentResourceHandle);
    EXPECT_EQ(GetModuleHandle(L"kernel32.dll"), AfxGetResourceHandle());
    EXPECT_EQ(GetModuleHandle(nullptr), AfxGetInstanceHandle());
    AfxSetResourceHandle(GetModuleHandle(nullptr));
    CString str;
    EXPECT_TRUE(str.LoadString(100));
}

TEST(ExtensionModule, StringsAreSearchedInTheProgramFirst)
{
    const ExtensionDll ext1(1);
    ASSERT_NE(nullptr, ext1.Handle());
    EXPECT_EQ(CString(L"program 100"), Loaded(100));
    EXPECT_EQ(CString(L"extension 1 101"), Loaded(101));
    EXPECT_EQ(CString(L"only in 1"), Loaded(102));
    EXPECT_EQ(CString(L"-"), Loaded(104));
}

TEST(ExtensionModule, LastAddedIsSearchedBeforeEarlierOnes)
{
    const ExtensionDll ext1(1);
    ExtensionDll ext2(2);
    ASSERT_TRUE(ext1.Handle() && ext2.Handle());
    EXPECT_EQ(CString(L"extension 2 101"), Loaded(101));
    EXPECT_EQ(CString(L"only in 1"), Loaded(102));
    ext2.Free();
    EXPECT_EQ(CString(L"extension 1 101"), Loaded(101));
}

TEST(ExtensionModule, FindResourceHandleFollowsTheSameOrder)
{
    const ExtensionDll ext1(1);
    const ExtensionDll ext2(2);
    ASSERT_TRUE(ext1.Handle() && ext2.Handle());
    EXPECT_EQ(GetModuleHandle(nullptr), FindData(500));
    EXPECT_EQ(ext2.Handle(), FindData(501));
    EXPECT_EQ(ext1.Handle(), FindData(502));
    EXPECT_EQ(AfxGetResourceHandle(), FindData(503));
}

TEST(ExtensionModule, CurrentResourceHandleComesFirst)
{
    const ExtensionDll ext1(1);
    const ExtensionDll ext2(2);
    ASSERT_TRUE(ext1.Handle() && ext2.Handle());
    AfxSetResourceHandle(ext1.Handle());
    EXPECT_EQ(CString(L"extension 1 101"), Loaded(101));
    EXPECT_EQ(ext1.Handle(), FindData(501));
    EXPECT_EQ(CString(L"-"), Loaded(120)); // the program itself is not searched then
    AfxSetResourceHandle(GetModuleHandle(nullptr));
}

TEST(ExtensionModule, SystemLibrariesAreSearchedLast)
{
    const ExtensionDll ext1(1);
    ASSERT_NE(nullptr, ext1.Handle());
    const HMODULE hPlain = LoadLibraryExW(L"afx_core_ext2.dll", nullptr, LOAD_LIBRARY_AS_DATAFILE);
    ASSERT_NE(nullptr, hPlain);
    AFX_EXTENSION_MODULE extension;
    ASSERT_TRUE(AfxInitExtensionModule(extension, hPlain));
    new CDynLinkLibrary(extension, TRUE);
    EXPECT_EQ(CString(L"extension 1 101"), Loaded(101));
    AfxTermExtensionModule(extension);
    FreeLibrary(hPlain);
}
