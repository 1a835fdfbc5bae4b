#include "Checks.h"
#include "TraceCatcher.h"

#include <string>

namespace
{
/** Tracks the framework's heap for one test. */
class Tracking
{
  public:
    Tracking() : m_bOld(AfxEnableMemoryTracking(TRUE)) {}
    ~Tracking() { AfxEnableMemoryTracking(m_bOld); }

  private:
    BOOL m_bOld;
};
} // namespace

TEST(MemoryTracking, DifferenceFindsAPlantedLeakOfEachKind)
{
    Tracking tracking;
    CMemoryState before;
    CMemoryState after;
    CMemoryState difference;
    before.Checkpoint();
    auto* pObject = new CByteArray;
    const CString str(L'x', 10);
    after.Checkpoint();
    EXPECT_TRUE(difference.Difference(before, after));
    EXPECT_EQ(1U, difference.m_lCounts[CMemoryState::objectBlock]);
    EXPECT_EQ(sizeof(CByteArray), difference.m_lSizes[CMemoryState::objectBlock]);
    EXPECT_EQ(1U, difference.m_lCounts[CMemoryState::bitBlock]);
    delete pObject;
    after.Checkpoint();
    EXPECT_TRUE(difference.Difference(before, after));
    EXPECT_EQ(0U, difference.m_lCounts[CMemoryState::objectBlock]);
}

TEST(MemoryTracking, BalancedWorkLeavesNoDifference)
{
    Tracking tracking;
    CMemoryState before;
    CMemoryState after;
    CMemoryState difference;
    before.Checkpoint();
    {
        CStringArray array;
        for (int i = 0; i < 100; ++i) {
            array.Add(CString(L'x', i));
        }
        delete new CByteArray;
    }
    after.Checkpoint();
    EXPECT_FALSE(difference.Difference(before, after));
}

TEST(MemoryTracking, LivingObjectsAreListedWithTheirPlace)
{
    Tracking tracking;
    TraceCatcher catcher;
    CMemoryState before;
    before.Checkpoint();
    const auto* pObject = new ("place.cpp", 12) CByteArray;
    before.DumpAllObjectsSince();
    EXPECT_GE(g_strOutput.Find(L"place.cpp(12)"), 0);
    LONG lRequest = 0;
    EXPECT_TRUE(AfxIsMemoryBlock(pObject, sizeof(CByteArray), &lRequest));
    EXPECT_GT(lRequest, before.m_lRequestNumber);
    EXPECT_FALSE(AfxIsMemoryBlock(pObject, 1));
    delete pObject;
    g_strOutput.Empty();
    before.DumpAllObjectsSince();
    EXPECT_EQ(-1, g_strOutput.Find(L"place.cpp"));
}

TEST(MemoryTracking, StatisticsNameCountsAndSizes)
{
    TraceCatcher catcher;
    CMemoryState state;
    state.m_lCounts[CMemoryState::objectBlock] = 3;
    state.m_lSizes[CMemoryState::objectBlock] = 120;
    state.DumpStatistics();
    EXPECT_STREQ(L"120 bytes in 3 objects, 0 bytes in 0 other blocks\n", g_strOutput);
}

TEST(MemoryTracking, DamageBehindABlockIsFound)
{
    Tracking tracking;
    TraceCatcher catcher;
    EXPECT_TRUE(AfxCheckMemory());
    CString str(L'x', 4);
    wchar_t* const psz = str.GetBuffer();
    const wchar_t chOld = psz[5];
    psz[5] = L'!';
    EXPECT_FALSE(AfxCheckMemory());
    EXPECT_GE(g_strOutput.Find(L"memory damaged"), 0);
    psz[5] = chOld;
    EXPECT_TRUE(AfxCheckMemory());
}

TEST(MemoryTracking, BlocksMadeBeforeAndFreedAfterAreSafe)
{
    CString strEarly(L'x', 5);
    CString strTracked;
    {
        Tracking tracking;
        strEarly.Empty();
        strTracked = CString(L'y', 5);
    }
    strTracked.Empty();
    EXPECT_TRUE(AfxCheckMemory());
}

TEST(MemoryTracking, PlaceNewServesOtherTypesToo)
{
    auto* const p = new ("place.cpp", 1) std::string("text");
    EXPECT_EQ("text", *p);
    delete p;
}
