#include "QorApiDouble.h"

#include <tests/support/Status.h>
#include <tests/support/Support.h>

#include <gtest/gtest.h>

namespace
{

class QorApiDouble : public testing::Test
{
  protected:
    QorApiDouble() : m_store(L"QOR_STORE", m_folder.File(L"store.db").c_str()) {}
    ~QorApiDouble() override
    {
        qordouble::Reset();
        QorLogoff();
    }

  private:
    ts::TempFolder m_folder;
    ts::EnvironmentVariable m_store;
};

} // namespace

TEST_F(QorApiDouble, WorksAsTheLibraryWhenNothingIsToFail)
{
    EXPECT_EQ(QorLogonUser(QORUSER_BUILTIN_NAME, nullptr), kSuccess);
    EXPECT_TRUE(QorHasUserRight(QORRIGHT_ALL));
    EXPECT_STRNE(QorGetString(L"STR_ERROR"), L"STR_ERROR");
}

TEST_F(QorApiDouble, CallFailsWithItsStatusAsOftenAsWanted)
{
    qordouble::Fail("QorOpen", ERROR_BUSY, 2);
    EXPECT_EQ(QorOpen(), DWORD(ERROR_BUSY));
    EXPECT_EQ(QorOpen(), DWORD(ERROR_BUSY));
    EXPECT_EQ(QorOpen(), kSuccess);
    QorClose();
}

TEST_F(QorApiDouble, OtherCallsGoOn)
{
    qordouble::Fail("QorSetMultiString", ERROR_DISK_FULL);
    CStringArray texts;
    EXPECT_EQ(QorGetMultiString(QORINFO_SYNC_REG, texts), kSuccess);
    EXPECT_EQ(QorSetMultiString(QORINFO_SYNC_REG, texts, 1), DWORD(ERROR_DISK_FULL));
}

TEST_F(QorApiDouble, FailuresOfOtherKindsHaveTheirOwnAnswers)
{
    for (const char* call : {"QorHasUserRight", "QorGetAllInfo", "QorGetModuleLang", "QorSetDlgLang", "QorGetString"}) {
        qordouble::Fail(call, ERROR_GEN_FAILURE);
    }
    EXPECT_EQ(QorLogonUser(QORUSER_BUILTIN_NAME, nullptr), kSuccess);
    EXPECT_FALSE(QorHasUserRight(0));
    EXPECT_EQ(QorGetAllInfo(QORLIST_USERS, 256, nullptr, 0), nullptr);
    EXPECT_EQ(GetLastError(), DWORD(ERROR_GEN_FAILURE));
    EXPECT_EQ(QorGetModuleLang(L"QorUI.dll", L"Strings")->GetChildCount(), 0);
    EXPECT_EQ(QorSetDlgLang(nullptr, L"QorUI.dll", L"IDD_DLG_LOGON", 1)->GetChildCount(), 0);
    EXPECT_STREQ(QorGetString(L"STR_ERROR"), L"STR_ERROR");
}

TEST_F(QorApiDouble, CallsAreCountedUntilReset)
{
    QorHasUserRight(0);
    QorHasUserRight(0);
    EXPECT_EQ(qordouble::CountCalls("QorHasUserRight"), 2);
    EXPECT_EQ(qordouble::CountCalls("QorOpen"), 0);
    qordouble::Reset();
    EXPECT_EQ(qordouble::CountCalls("QorHasUserRight"), 0);
}
