#include "Checks.h"

namespace
{
class CExtensionDll
{
  public:
    explicit CExtensionDll(int n) : m_hModule(LoadLibraryW(n == 1 ? L"afx_core_ext1.dll" : L"afx_core_ext2.dll")) {}
    ~CExtensionDll() { Free(); }
    CExtensionDll(const CExtensionDll&) = delete;
    CExtensionDll& operator=(const CExtensionDll&) = delete;

    void Free()
    {
        if (m_hModule) {
            FreeLibrary(std::exchange(m_hModule, nullptr));
        }
    }
    HMODULE Handle() const { return m_hModule; }

  private:
    HMODULE m_hModule;
};

CString Loaded(UINT nID)
{
    CString str;
    return str.LoadString(nID) ? str : CString(L"-");
}

HINSTANCE FindData(UINT nID)
{
    return AfxFindResourceHandle(MAKEINTRESOURCE(nID), RT_RCDATA);
}
} // namespace

TEST(ExtensionModule, StringsAreSearchedInTheProgramFirst)
{
    const CExtensionDll ext1(1);
    ASSERT_NE(nullptr, ext1.Handle());
    EXPECT_EQ(CString(L"program 100"), Loaded(100));
    EXPECT_EQ(CString(L"extension 1 101"), Loaded(101));
    EXPECT_EQ(CString(L"only in 1"), Loaded(102));
    EXPECT_EQ(CString(L"-"), Loaded(104));
}

TEST(ExtensionModule, LastAddedIsSearchedBeforeEarlierOnes)
{
    const CExtensionDll ext1(1);
    CExtensionDll ext2(2);
    ASSERT_TRUE(ext1.Handle() && ext2.Handle());
    EXPECT_EQ(CString(L"extension 2 101"), Loaded(101));
    EXPECT_EQ(CString(L"only in 1"), Loaded(102));
    ext2.Free();
    EXPECT_EQ(CString(L"extension 1 101"), Loaded(101));
}

TEST(ExtensionModule, FindResourceHandleFollowsTheSameOrder)
{
    const CExtensionDll ext1(1);
    const CExtensionDll ext2(2);
    ASSERT_TRUE(ext1.Handle() && ext2.Handle());
    EXPECT_EQ(GetModuleHandle(nullptr), FindData(500));
    EXPECT_EQ(ext2.Handle(), FindData(501));
    EXPECT_EQ(ext1.Handle(), FindData(502));
    EXPECT_EQ(AfxGetResourceHandle(), FindData(503));
}

TEST(ExtensionModule, CurrentResourceHandleComesFirst)
{
    const CExtensionDll ext1(1);
    const CExtensionDll ext2(2);
    ASSERT_TRUE(ext1.Handle() && ext2.Handle());
    AfxSetResourceHandle(ext1.Handle());
    EXPECT_EQ(CString(L"extension 1 101"), Loaded(101));
    EXPECT_EQ(ext1.Handle(), FindData(501));
    EXPECT_EQ(CString(L"-"), Loaded(120)); // the program itself is not searched then
    AfxSetResourceHandle(GetModuleHandle(nullptr));
}

TEST(ExtensionModule, SystemLibrariesAreSearchedLast)
{
    const CExtensionDll ext1(1);
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

TEST(ExtensionModule, ClassesAreFoundByNameWhileItIsLoaded)
{
    EXPECT_EQ(nullptr, CRuntimeClass::FromName("CFirstAnimal"));
    {
        const CExtensionDll ext1(1);
        const CExtensionDll ext2(2);
        ASSERT_TRUE(ext1.Handle() && ext2.Handle());
        EXPECT_NE(nullptr, CRuntimeClass::FromName("CSecondAnimal"));
        CObject* const pObject = CRuntimeClass::CreateObject("CFirstAnimal");
        ASSERT_NE(nullptr, pObject);
        EXPECT_STREQ("CFirstAnimal", pObject->GetRuntimeClass()->m_lpszClassName);
        delete pObject;
    }
    EXPECT_EQ(nullptr, CRuntimeClass::FromName("CFirstAnimal"));
    EXPECT_EQ(nullptr, CRuntimeClass::FromName("CSecondAnimal"));
}

TEST(ExtensionModule, ClassesAreFoundInTheStateThatHoldsTheLibrary)
{
    AFX_MODULE_STATE state(TRUE, GetModuleHandle(L"kernel32.dll"));
    AFX_MANAGE_STATE(&state);
    const CExtensionDll ext1(1);
    ASSERT_NE(nullptr, ext1.Handle());
    EXPECT_NE(nullptr, CRuntimeClass::FromName("CFirstAnimal"));
    AFX_MODULE_STATE other(TRUE, GetModuleHandle(L"kernel32.dll"));
    {
        AFX_MANAGE_STATE(&other);
        EXPECT_EQ(nullptr, CRuntimeClass::FromName("CFirstAnimal"));
        EXPECT_NE(nullptr, CRuntimeClass::FromName("CByteArray"));
        EXPECT_EQ(CString(L"-"), Loaded(101));
    }
}

TEST(ExtensionModule, CarelessDllLeavesNothingBehind)
{
    const BOOL bOld = AfxEnableMemoryTracking(TRUE);
    CMemoryState before;
    CMemoryState after;
    CMemoryState difference;
    before.Checkpoint();
    CExtensionDll ext1(1);
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
        const CExtensionDll warmUp(1);
        ASSERT_NE(nullptr, warmUp.Handle());
    }
    const BOOL bOld = AfxEnableMemoryTracking(TRUE);
    CMemoryState before;
    CMemoryState after;
    CMemoryState difference;
    before.Checkpoint();
    for (int i = 0; i < 5; ++i) {
        const CExtensionDll ext1(1);
        EXPECT_EQ(CString(L"extension 1 101"), Loaded(101));
    }
    after.Checkpoint();
    AfxEnableMemoryTracking(bOld);
    EXPECT_FALSE(difference.Difference(before, after));
}
