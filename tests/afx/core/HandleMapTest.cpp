#include "Checks.h"

#include <thread>

namespace
{
class CWrapper : public CObject
{
  public:
    static int s_nAlive;
    HANDLE m_h;
    explicit CWrapper(HANDLE h) : m_h(h) { ++s_nAlive; }
    ~CWrapper() override { --s_nAlive; }
};
int CWrapper::s_nAlive = 0;

const AFX_HANDLE_FACTORY kFactory = {[](HANDLE h) -> CObject* {
                                         if (h == INVALID_HANDLE_VALUE) {
                                             AfxThrowMemoryException();
                                         }
                                         return new CWrapper(h);
                                     },
                                     [](CObject* pTemporary) { delete pTemporary; }};

HANDLE H(UINT_PTR n)
{
    return reinterpret_cast<HANDLE>(n);
}
} // namespace

TEST(HandleMap, NullHandleHasNoObject)
{
    CHandleMap map(kFactory);
    EXPECT_EQ(nullptr, map.FromHandle(nullptr));
    EXPECT_EQ(0U, map.GetTemporaryCount());
}

TEST(HandleMap, TemporaryObjectIsMadeOnceAndFreedByDeleteTemp)
{
    CHandleMap map(kFactory);
    CObject* const pObject = map.FromHandle(H(4));
    ASSERT_NE(nullptr, pObject);
    EXPECT_EQ(H(4), static_cast<CWrapper*>(pObject)->m_h);
    EXPECT_EQ(pObject, map.FromHandle(H(4)));
    EXPECT_EQ(pObject, map.LookupTemporary(H(4)));
    EXPECT_EQ(nullptr, map.LookupPermanent(H(4)));
    EXPECT_EQ(1, CWrapper::s_nAlive);
    map.DeleteTemp();
    EXPECT_EQ(0, CWrapper::s_nAlive);
    EXPECT_EQ(nullptr, map.LookupTemporary(H(4)));
}

TEST(HandleMap, PermanentObjectIsPreferredAndKept)
{
    CHandleMap map(kFactory);
    CObject* const pTemporary = map.FromHandle(H(8));
    CWrapper owner(H(8));
    map.SetPermanent(H(8), &owner);
    EXPECT_EQ(&owner, map.FromHandle(H(8)));
    EXPECT_EQ(pTemporary, map.LookupTemporary(H(8)));
    map.DeleteTemp();
    EXPECT_EQ(&owner, map.LookupPermanent(H(8)));
    map.RemoveHandle(H(8));
    EXPECT_EQ(nullptr, map.LookupPermanent(H(8)));
}

TEST(HandleMap, FailedFactoryLeavesNoEntry)
{
    CHandleMap map(kFactory);
    EXPECT_TRUE(Raises<CMemoryException>([&] { map.FromHandle(INVALID_HANDLE_VALUE); }));
    EXPECT_EQ(0U, map.GetTemporaryCount());
}

TEST(HandleMap, EndFreesTemporaryObjects)
{
    {
        CHandleMap map(kFactory);
        map.FromHandle(H(4));
    }
    EXPECT_EQ(0, CWrapper::s_nAlive);
}

TEST(HandleMap, ThreadsHaveTheirOwnMapsThatEndWithThem)
{
    EXPECT_EQ(nullptr, AfxGetHandleMap(AFX_HANDLE_HSOCKET, nullptr));
    CHandleMap* const pMap = AfxGetHandleMap(AFX_HANDLE_HSOCKET, &kFactory);
    ASSERT_NE(nullptr, pMap);
    EXPECT_EQ(pMap, AfxGetHandleMap(AFX_HANDLE_HSOCKET, nullptr));
    std::thread([pMap] {
        CHandleMap* const pOther = AfxGetHandleMap(AFX_HANDLE_HSOCKET, &kFactory);
        EXPECT_NE(pMap, pOther);
        pOther->FromHandle(H(4));
        EXPECT_EQ(1, CWrapper::s_nAlive);
    }).join();
    EXPECT_EQ(0, CWrapper::s_nAlive);
}

TEST(HandleMap, LocksKeepTemporaryObjectsUntilTheLastOneEnds)
{
    CHandleMap* const pMap = AfxGetHandleMap(AFX_HANDLE_HSOCKET, &kFactory);
    AfxLockTempMaps();
    AfxLockTempMaps();
    pMap->FromHandle(H(4));
    EXPECT_TRUE(AfxUnlockTempMaps());
    EXPECT_EQ(1, CWrapper::s_nAlive);
    EXPECT_FALSE(AfxUnlockTempMaps(FALSE));
    EXPECT_EQ(1, CWrapper::s_nAlive);
    AfxLockTempMaps();
    EXPECT_FALSE(AfxUnlockTempMaps());
    EXPECT_EQ(0, CWrapper::s_nAlive);
    EXPECT_FALSE(AfxUnlockTempMaps());
}
