#include "Checks.h"
#include "ExtensionDll.h"

TEST(ExtensionModule, ClassesAreFoundByNameWhileItIsLoaded)
{
    EXPECT_EQ(nullptr, CRuntimeClass::FromName("CFirstAnimal"));
    {
        const ExtensionDll ext1(1);
        const ExtensionDll ext2(2);
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
    const ExtensionDll ext1(1);
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
