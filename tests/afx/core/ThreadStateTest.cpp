#include <gtest/gtest.h>

#include <afx.h>

#include <thread>

TEST(ModuleState, ThreadDataIsPerModuleAndThread)
{
    AFX_MODULE_THREAD_STATE* const pBase = AfxGetModuleThreadState();
    EXPECT_EQ(pBase, AfxGetModuleThreadState());
    AFX_MODULE_STATE state(TRUE, nullptr);
    {
        AFX_MANAGE_STATE(&state);
        EXPECT_NE(pBase, AfxGetModuleThreadState());
        EXPECT_EQ(nullptr, AfxGetModuleThreadState()->m_pCurrentWinThread);
    }
    AFX_MODULE_THREAD_STATE* pOther = nullptr;
    _AFX_THREAD_STATE* pOtherThread = nullptr;
    std::thread([&] {
        pOther = AfxGetModuleThreadState();
        pOtherThread = AfxGetThreadState();
    }).join();
    EXPECT_NE(pBase, pOther);
    EXPECT_NE(AfxGetThreadState(), pOtherThread);
}

TEST(ModuleState, FreedThreadDataIsMadeAnew)
{
    std::thread([] {
        AfxGetThreadState()->m_nDisablePumpCount = 5;
        AfxFreeThreadState();
        EXPECT_EQ(0, AfxGetThreadState()->m_nDisablePumpCount);
    }).join();
}
