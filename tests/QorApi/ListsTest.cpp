#include "StoreFixture.h"

namespace
{

using ListsTest = StoreTest;

} // namespace

TEST_F(ListsTest, ListingUnknownKindsIsRefused)
{
    int count = 5;
    EXPECT_EQ(QorGetAllInfo(9, 256, &count, 0), nullptr);
    EXPECT_EQ(GetLastError(), DWORD(ERROR_INVALID_PARAMETER));
    EXPECT_EQ(count, 0);
    EXPECT_EQ(QorGetAllInfo(QORLIST_USERS, 128, nullptr, 0), nullptr);
    EXPECT_EQ(GetLastError(), DWORD(ERROR_INVALID_PARAMETER));
    EXPECT_EQ(QorGetAllInfo(QORLIST_USERS, 256, nullptr, 1), nullptr);
    EXPECT_EQ(GetLastError(), DWORD(ERROR_INVALID_PARAMETER));
}

TEST_F(ListsTest, EmptyListIsNoFailure)
{
    int count = 5;
    SetLastError(1);
    EXPECT_EQ(QorGetAllInfo(QORLIST_SNAPSHOTS, 256, &count, 0), nullptr);
    EXPECT_EQ(GetLastError(), kSuccess);
    EXPECT_EQ(count, 0);
}
