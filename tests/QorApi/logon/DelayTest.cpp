#include "LogonFixture.h"

namespace
{

using DelayTest = LogonTest;

} // namespace

TEST_F(DelayTest, FirstFiveFailuresAreAnsweredAtOnce)
{
    Add(L"Anna", nullptr);
    FailTimes(5, L"Anna");
    EXPECT_TRUE(Delays().empty());
}

TEST_F(DelayTest, FurtherFailuresAreDelayedTwiceAsLongEach)
{
    Add(L"Anna", nullptr);
    FailTimes(12, L"Anna");
    EXPECT_EQ(Delays(), (std::vector<DWORD>{2000, 4000, 8000, 16000, 32000, 32000, 32000}));
}

TEST_F(DelayTest, RightPasswordAfterFiveFailuresIsDelayedOnce)
{
    Add(L"Anna", nullptr);
    FailTimes(5, L"Anna");
    EXPECT_EQ(QorLogonUser(L"Anna", nullptr), kSuccess);
    EXPECT_EQ(Delays(), std::vector<DWORD>{2000});
    FailTimes(5, L"Anna");
    EXPECT_EQ(Delays().size(), 1U);
}

TEST_F(DelayTest, FailuresInARowAreCountedPerAccount)
{
    Add(L"Anna", nullptr);
    FailTimes(5, L"Anna");
    FailTimes(5, L"Administrator");
    EXPECT_TRUE(Delays().empty());
    FailTimes(1, L"Anna");
    EXPECT_EQ(Delays().size(), 1U);
}

TEST_F(DelayTest, UnknownNamesShareOneCount)
{
    FailTimes(3, L"first");
    FailTimes(3, L"second");
    EXPECT_EQ(Delays(), std::vector<DWORD>{2000});
}

TEST_F(DelayTest, RightPasswordEndsTheRowOfUnknownNames)
{
    FailTimes(5, L"first");
    LogonBuiltin();
    FailTimes(5, L"second");
    EXPECT_TRUE(Delays().empty());
    FailTimes(1, L"third");
    EXPECT_EQ(Delays(), std::vector<DWORD>{2000});
}

TEST_F(DelayTest, CountIsKeptInTheStore)
{
    Add(L"Anna", nullptr);
    ASSERT_EQ(ts::RunProcess(HelperCommand(L"fail 5 Anna")).status, kSuccess);
    FailTimes(1, L"Anna");
    EXPECT_EQ(Delays(), std::vector<DWORD>{2000});
}

TEST_F(DelayTest, WaitProcedureIsReplacedAndGivenBack)
{
    const QORWAITPROC former = QorSetLogonWait(nullptr);
    EXPECT_NE(former, nullptr);
    EXPECT_EQ(QorSetLogonWait(former), nullptr);
}

TEST_F(DelayTest, WithoutWaitProcedureTheDelayIsReal)
{
    Add(L"Anna", nullptr);
    FailTimes(5, L"Anna");
    QorSetLogonWait(nullptr);
    const ULONGLONG start = GetTickCount64();
    FailTimes(1, L"Anna");
    EXPECT_GE(GetTickCount64() - start, 1900U);
}
