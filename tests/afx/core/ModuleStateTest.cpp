#include "Checks.h"

#include <tests/support/Surroundings.h>

#include <thread>

namespace
{
bool g_bEnded = false;
bool g_bEndedInOwnState = false;

/** The test DLL with a module state of its own, loaded while the object lives. */
class ModuleDll
{
  public:
    ModuleDll() : m_hModule(LoadLibraryW(L"afx_core_module.dll")) {}
    ~ModuleDll()
    {
        if (m_hModule) {
            FreeLibrary(m_hModule);
        }
    }
    ModuleDll(const ModuleDll&) = delete;
    ModuleDll& operator=(const ModuleDll&) = delete;

    HMODULE Handle() const { return m_hModule; }
    template <typename Function>
    Function* Get(const char* pszName) const
    {
        return reinterpret_cast<Function*>(reinterpret_cast<void*>(GetProcAddress(m_hModule, pszName)));
    }

  private:
    HMODULE m_hModule;
};
} // namespace

TEST(ModuleState, WithoutApplicationTheHandlesAreTheProgramFiles)
{
    AFX_MODULE_STATE* const pState = AfxGetModuleState();
    ASSERT_NE(nullptr, pState);
    EXPECT_EQ(nullptr, pState->m_pCurrentWinApp);
    EXPECT_EQ(GetModuleHandle(nullptr), AfxGetInstanceHandle());
    EXPECT_EQ(GetModuleHandle(nullptr), AfxGetResourceHandle());
    EXPECT_EQ(GetModuleHandle(nullptr), pState->m_hCurrentResourceHandle);
    EXPECT_EQ(pState, AfxGetStaticModuleState());
    EXPECT_EQ(pState, AfxGetBaseModuleState());
}

TEST(ModuleState, ManagedStateEndsWithTheBlockAndNests)
{
    AFX_MODULE_STATE outer(TRUE, GetModuleHandle(L"kernel32.dll"));
    AFX_MODULE_STATE inner(TRUE, GetModuleHandle(L"user32.dll"));
    {
        AFX_MANAGE_STATE(&outer);
        EXPECT_EQ(&outer, AfxGetModuleState());
        EXPECT_EQ(GetModuleHandle(L"kernel32.dll"), AfxGetInstanceHandle());
        {
            AFX_MANAGE_STATE(&inner);
            EXPECT_EQ(GetModuleHandle(L"user32.dll"), AfxGetResourceHandle());
        }
        EXPECT_EQ(&outer, AfxGetModuleState());
    }
    EXPECT_EQ(AfxGetBaseModuleState(), AfxGetModuleState());
}

TEST(ModuleState, IsSetPerThread)
{
    AFX_MODULE_STATE state(TRUE, nullptr);
    AFX_MODULE_STATE* const pOld = AfxSetModuleState(&state);
    AFX_MODULE_STATE* pSeen = nullptr;
    std::thread([&pSeen] { pSeen = AfxGetModuleState(); }).join();
    EXPECT_EQ(AfxGetBaseModuleState(), pSeen);
    EXPECT_EQ(&state, AfxSetModuleState(pOld));
}

TEST(ModuleState, EndingStateIsNoLongerCurrent)
{
    {
        AFX_MODULE_STATE state(TRUE, nullptr);
        AfxSetModuleState(&state);
    }
    EXPECT_EQ(AfxGetBaseModuleState(), AfxGetModuleState());
}

TEST(ModuleState, AskingForItKeepsTheLastError)
{
    AfxGetThreadState();
    SetLastError(777);
    AfxGetModuleState();
    EXPECT_EQ(777U, GetLastError());
}

TEST(OwnModuleState, StaticObjectsOfTheDllAreConstructedInItsState)
{
    const ModuleDll dll;
    ASSERT_NE(nullptr, dll.Handle());
    AFX_MODULE_STATE* const pOwn = dll.Get<AFX_MODULE_STATE*()>("ModuleStaticState")();
    EXPECT_NE(AfxGetBaseModuleState(), pOwn);
    EXPECT_EQ(pOwn, dll.Get<AFX_MODULE_STATE*()>("ModuleStateAtStart")());
    EXPECT_EQ(dll.Handle(), dll.Get<HINSTANCE()>("ModuleResourceAtStart")());
    EXPECT_EQ(dll.Handle(), pOwn->m_hCurrentInstanceHandle);
    EXPECT_TRUE(pOwn->m_bDLL);
}

TEST(OwnModuleState, HostsStateIsCurrentAfterLoading)
{
    const ModuleDll dll;
    ASSERT_NE(nullptr, dll.Handle());
    EXPECT_EQ(AfxGetBaseModuleState(), AfxGetModuleState());
    EXPECT_EQ(GetModuleHandle(nullptr), AfxGetResourceHandle());
}

TEST(OwnModuleState, ManagedStateSearchesTheDllFirst)
{
    const ModuleDll dll;
    ASSERT_NE(nullptr, dll.Handle());
    auto* const pfnLoad = dll.Get<BOOL(UINT, CString*)>("ModuleLoadOwnString");
    CString str;
    EXPECT_TRUE(pfnLoad(100, &str));
    EXPECT_STREQ(L"module 100", str);
    EXPECT_TRUE(str.LoadString(100));
    EXPECT_STREQ(L"program 100", str);
    EXPECT_TRUE(str.LoadString(103));
    EXPECT_STREQ(L"module 103", str);
}

TEST(OwnModuleState, ExceptionThroughAManagedBlockRestoresTheState)
{
    const ModuleDll dll;
    ASSERT_NE(nullptr, dll.Handle());
    EXPECT_TRUE(Raises<CUserException>([&] { dll.Get<void()>("ModuleThrow")(); }));
    EXPECT_EQ(AfxGetBaseModuleState(), AfxGetModuleState());
}

TEST(OwnModuleState, ClassesOfTheDllAreFoundFromTheHostWhileItIsLoaded)
{
    EXPECT_EQ(nullptr, CRuntimeClass::FromName("CModuleAnimal"));
    {
        const ModuleDll dll;
        ASSERT_NE(nullptr, dll.Handle());
        EXPECT_NE(nullptr, CRuntimeClass::FromName("CModuleAnimal"));
    }
    EXPECT_EQ(nullptr, CRuntimeClass::FromName("CModuleAnimal"));
}

TEST(OwnModuleState, UnloadedDllLeavesTheHostsStateAndNothingElse)
{
    for (int i = 0; i < 2; ++i) {
        g_bEnded = g_bEndedInOwnState = false;
        {
            const ModuleDll dll;
            ASSERT_NE(nullptr, dll.Handle());
            dll.Get<void(void (*)(bool))>("ModuleNotifyEnd")([](bool bInOwnState) {
                g_bEnded = true;
                g_bEndedInOwnState = bInOwnState;
            });
        }
        EXPECT_EQ(nullptr, GetModuleHandleW(L"afx_core_module.dll"));
        EXPECT_TRUE(g_bEnded);
        EXPECT_TRUE(g_bEndedInOwnState);
        EXPECT_EQ(AfxGetBaseModuleState(), AfxGetModuleState());
        CString str;
        EXPECT_FALSE(str.LoadString(103));
    }
}

TEST(OwnModuleState, LoadingInsideAnotherStateComesBackToIt)
{
    AFX_MODULE_STATE state(TRUE, GetModuleHandle(nullptr));
    {
        AFX_MANAGE_STATE(&state);
        {
            const ModuleDll dll;
            ASSERT_NE(nullptr, dll.Handle());
            EXPECT_EQ(&state, AfxGetModuleState());
        }
        EXPECT_EQ(&state, AfxGetModuleState());
    }
}

TEST(OwnModuleState, PlainProgramLoadsAndFreesTheLibraryTwice)
{
    const ts::ProcessResult result = ts::RunProcess(L"\"" + ts::ProgramFolder() + L"\\afx_core_plain.exe\"");
    EXPECT_TRUE(result.started);
    EXPECT_FALSE(result.timedOut);
    EXPECT_EQ(0U, result.status);
}
