#include "Checks.h"
#include "ext/Shared.h"

namespace
{
class CAnimal : public CObject
{
    DECLARE_DYNAMIC(CAnimal)
};

class CDog : public CAnimal
{
    DECLARE_DYNCREATE(CDog)

  public:
    int m_nLegs = 4;
};

class CCat : public CAnimal
{
    DECLARE_DYNCREATE(CCat)
};

/** Its class is in a DLL. */
class CSharedDerived : public CSharedBase
{
    DECLARE_DYNCREATE(CSharedDerived)

  public:
    int Answer() const override { return 43; }
};

class CHungry : public CObject
{
    DECLARE_DYNCREATE(CHungry)

  public:
    CHungry() { AfxThrowMemoryException(); }
};

IMPLEMENT_DYNAMIC(CAnimal, CObject)
IMPLEMENT_DYNCREATE(CDog, CAnimal)
IMPLEMENT_DYNCREATE(CCat, CAnimal)
IMPLEMENT_DYNCREATE(CSharedDerived, CSharedBase)
IMPLEMENT_DYNCREATE(CHungry, CObject)
} // namespace

TEST(RuntimeClass, TellsNameSizeAndBase)
{
    const CDog dog;
    const CRuntimeClass* const pClass = dog.GetRuntimeClass();
    EXPECT_EQ(RUNTIME_CLASS(CDog), pClass);
    EXPECT_STREQ("CDog", pClass->m_lpszClassName);
    EXPECT_EQ(static_cast<int>(sizeof(CDog)), pClass->m_nObjectSize);
    EXPECT_EQ(RUNTIME_CLASS(CAnimal), pClass->m_pfnGetBaseClass());
    EXPECT_EQ(0xFFFFU, pClass->m_wSchema);
    EXPECT_FALSE(dog.IsSerializable());
}

TEST(RuntimeClass, KindFollowsTheBases)
{
    const CDog dog;
    EXPECT_TRUE(dog.IsKindOf(RUNTIME_CLASS(CDog)));
    EXPECT_TRUE(dog.IsKindOf(RUNTIME_CLASS(CAnimal)));
    EXPECT_TRUE(dog.IsKindOf(RUNTIME_CLASS(CObject)));
    EXPECT_FALSE(dog.IsKindOf(RUNTIME_CLASS(CCat)));
    EXPECT_FALSE(dog.IsKindOf(nullptr));
    EXPECT_FALSE(RUNTIME_CLASS(CAnimal)->IsDerivedFrom(RUNTIME_CLASS(CDog)));
}

TEST(RuntimeClass, CreatesOnlyDynamicallyCreatableClasses)
{
    CObject* const pObject = RUNTIME_CLASS(CDog)->CreateObject();
    ASSERT_NE(nullptr, pObject);
    EXPECT_EQ(4, static_cast<CDog*>(pObject)->m_nLegs);
    delete pObject;
    EXPECT_EQ(nullptr, RUNTIME_CLASS(CAnimal)->CreateObject());
    EXPECT_EQ(nullptr, RUNTIME_CLASS(CHungry)->CreateObject());
}

TEST(RuntimeClass, IsFoundByName)
{
    EXPECT_EQ(RUNTIME_CLASS(CDog), CRuntimeClass::FromName("CDog"));
    EXPECT_EQ(RUNTIME_CLASS(CDog), CRuntimeClass::FromName(L"CDog"));
    EXPECT_EQ(RUNTIME_CLASS(CObject), CRuntimeClass::FromName("CObject"));
    EXPECT_EQ(nullptr, CRuntimeClass::FromName("CNobody"));
    EXPECT_EQ(nullptr, CRuntimeClass::FromName(static_cast<LPCSTR>(nullptr)));
    CObject* const pObject = CRuntimeClass::CreateObject("CCat");
    ASSERT_NE(nullptr, pObject);
    EXPECT_TRUE(pObject->IsKindOf(RUNTIME_CLASS(CCat)));
    delete pObject;
    EXPECT_EQ(nullptr, CRuntimeClass::CreateObject(L"CNobody"));
}

TEST(RuntimeClass, CastsDown)
{
    CDog dog;
    CObject* const pObject = &dog;
    EXPECT_EQ(&dog, DYNAMIC_DOWNCAST(CDog, pObject));
    EXPECT_EQ(nullptr, DYNAMIC_DOWNCAST(CCat, pObject));
    EXPECT_EQ(nullptr, DYNAMIC_DOWNCAST(CDog, static_cast<CObject*>(nullptr)));
    EXPECT_EQ(&dog, STATIC_DOWNCAST(CAnimal, pObject));
}

TEST(RuntimeClass, ReachesAcrossTheBorderOfADll)
{
    const CSharedDerived derived;
    EXPECT_TRUE(derived.IsKindOf(RUNTIME_CLASS(CSharedBase)));
    EXPECT_TRUE(derived.IsKindOf(RUNTIME_CLASS(CObject)));
    CObject* const pBase = RUNTIME_CLASS(CSharedBase)->CreateObject();
    ASSERT_NE(nullptr, pBase);
    EXPECT_EQ(42, DYNAMIC_DOWNCAST(CSharedBase, pBase)->Answer());
    EXPECT_EQ(nullptr, DYNAMIC_DOWNCAST(CSharedDerived, pBase));
    delete pBase;
    EXPECT_EQ(RUNTIME_CLASS(CSharedBase), CRuntimeClass::FromName("CSharedBase"));
}

TEST(Object, TooLargeAnObjectRaisesMemoryException)
{
    EXPECT_TRUE(Raises<CMemoryException>([] { CObject::operator new(static_cast<size_t>(PTRDIFF_MAX)); }));
}

TEST(Object, StringsCrossTheBorderOfADllWithoutCopying)
{
    const CString str(L"over the border");
    EXPECT_EQ(str.GetString(), SharedEcho(str).GetString());
}
