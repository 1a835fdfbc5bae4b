#include "Checks.h"
#include "TraceCatcher.h"

#include <string>

namespace
{
/** Tracks the framework's heap for one test. */
class CTracking
{
  public:
    CTracking() : m_bOld(AfxEnableMemoryTracking(TRUE)) {}
    ~CTracking() { AfxEnableMemoryTracking(m_bOld); }

  private:
    BOOL m_bOld;
};

class CDumped : public CObject
{
  public:
    void Dump(CDumpContext& dc) const override { dc << "narrow " << L"wide " << 7 << " " << 2.5; }
};
} // namespace

TEST(Diagnostics, AddressesAreChecked)
{
    int n = 0;
    EXPECT_TRUE(AfxIsValidAddress(&n, sizeof(n)));
    EXPECT_FALSE(AfxIsValidAddress(nullptr, 1));
    EXPECT_FALSE(AfxIsValidAddress(reinterpret_cast<void*>(16), 4));
    static const int constant = 5;
    EXPECT_TRUE(AfxIsValidAddress(&constant, sizeof(constant), FALSE));
    void* const p = VirtualAlloc(nullptr, 8192, MEM_COMMIT | MEM_RESERVE, PAGE_READONLY);
    EXPECT_TRUE(AfxIsValidAddress(p, 8192, FALSE));
    EXPECT_FALSE(AfxIsValidAddress(p, 8192, TRUE));
    DWORD dwOld = 0;
    VirtualProtect(static_cast<BYTE*>(p) + 4096, 4096, PAGE_NOACCESS, &dwOld);
    EXPECT_TRUE(AfxIsValidAddress(p, 4096, FALSE));
    EXPECT_FALSE(AfxIsValidAddress(p, 4097, FALSE));
    VirtualFree(p, 0, MEM_RELEASE);
}

TEST(Diagnostics, StringsAreCheckedUpToTheTerminator)
{
    EXPECT_TRUE(AfxIsValidString(L"wide"));
    EXPECT_TRUE(AfxIsValidString("narrow"));
    EXPECT_FALSE(AfxIsValidString(static_cast<LPCWSTR>(nullptr)));
    auto* const p = static_cast<char*>(VirtualAlloc(nullptr, 4096, MEM_COMMIT | MEM_RESERVE, PAGE_READWRITE));
    memset(p, 'x', 4096);
    EXPECT_FALSE(AfxIsValidString(p + 4000));
    EXPECT_TRUE(AfxIsValidString(p + 4000, 96));
    EXPECT_FALSE(AfxIsValidString(p + 4000, 97));
    p[4095] = 0;
    EXPECT_TRUE(AfxIsValidString(p + 4000));
    VirtualFree(p, 0, MEM_RELEASE);
}

TEST(Diagnostics, DumpWritesEveryKindOfValue)
{
    CTraceCatcher catcher;
    afxDump << static_cast<BYTE>(1) << " " << static_cast<WORD>(2) << " " << static_cast<DWORD>(3) << " " << 255U << " "
            << static_cast<LONG>(-4) << " " << static_cast<LONGLONG>(-5) << " " << static_cast<ULONGLONG>(6) << " "
            << 1.5F;
    EXPECT_STREQ(L"1 2 3 0xFF -4 -5 6 1.5", g_strOutput);
    g_strOutput.Empty();
    const CDumped dumped;
    AfxDump(&dumped);
    EXPECT_STREQ(L"narrow wide 7 2.5", g_strOutput);
    g_strOutput.Empty();
    afxDump << static_cast<const CObject*>(nullptr) << static_cast<LPCWSTR>(nullptr);
    EXPECT_STREQ(L"(null)(null)", g_strOutput);
}

TEST(Diagnostics, DefaultDumpNamesTheClass)
{
    CTraceCatcher catcher;
    const CByteArray array;
    afxDump << array;
    EXPECT_EQ(0, g_strOutput.Find(L"a CByteArray at $"));
}

TEST(MemoryTracking, DifferenceFindsAPlantedLeakOfEachKind)
{
    CTracking tracking;
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
    CTracking tracking;
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
    CTracking tracking;
    CTraceCatcher catcher;
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
    CTraceCatcher catcher;
    CMemoryState state;
    state.m_lCounts[CMemoryState::objectBlock] = 3;
    state.m_lSizes[CMemoryState::objectBlock] = 120;
    state.DumpStatistics();
    EXPECT_STREQ(L"120 bytes in 3 objects, 0 bytes in 0 other blocks\n", g_strOutput);
}

TEST(MemoryTracking, DamageBehindABlockIsFound)
{
    CTracking tracking;
    CTraceCatcher catcher;
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
        CTracking tracking;
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
