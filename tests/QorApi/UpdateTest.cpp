#include "UpdateFixture.h"

#include <algorithm>

TEST_F(UpdateTest, WithoutSourceNothingIsReached)
{
    EXPECT_EQ(QorCheckUpdate(), DWORD(ERROR_HOST_UNREACHABLE));
}

TEST_F(UpdateTest, NewerVersionIsKept)
{
    Offer("<QorUpdate Version=\"99.1\"/>");
    EXPECT_EQ(QorCheckUpdate(), kSuccess);
    EXPECT_EQ(Found(), L"99.1");
}

TEST_F(UpdateTest, SameOrOlderVersionIsNone)
{
    Offer("<QorUpdate Version=\"99.1\"/>");
    ASSERT_EQ(QorCheckUpdate(), kSuccess);
    Offer("<QorUpdate Version=\"0.9\"/>");
    EXPECT_EQ(QorCheckUpdate(), kSuccess);
    EXPECT_EQ(Found(), L"");
}

TEST_F(UpdateTest, DamagedDescriptionsAreRefused)
{
    for (const char* content :
         {"", "<QorUpdate", "<Other Version=\"99\"/>", "<QorUpdate/>", "<QorUpdate Version=\"x\"/>"}) {
        Offer(content);
        EXPECT_EQ(QorCheckUpdate(), DWORD(ERROR_INVALID_DATA)) << content;
    }
    EXPECT_EQ(Found(), L"");
}

TEST_F(UpdateTest, MissingFileGivesTheSystemsCode)
{
    SetSource(File(L"none.xml"));
    EXPECT_EQ(QorCheckUpdate(), DWORD(ERROR_FILE_NOT_FOUND));
}

TEST_F(UpdateTest, FileUrlIsRead)
{
    Offer("<QorUpdate Version=\"99.2\"/>");
    std::wstring url = L"file:///" + File(L"update.xml");
    std::replace(url.begin(), url.end(), L'\\', L'/');
    SetSource(url);
    EXPECT_EQ(QorCheckUpdate(), kSuccess);
    EXPECT_EQ(Found(), L"99.2");
}

TEST_F(UpdateTest, UnreachableServerGivesAnError)
{
    SetSource(L"http://127.0.0.1:9/update.xml");
    EXPECT_NE(QorCheckUpdate(), kSuccess);
    EXPECT_EQ(Found(), L"");
}

TEST_F(UpdateTest, UnknownProtocolGivesAnError)
{
    SetSource(L"none://server/update.xml");
    EXPECT_NE(QorCheckUpdate(), kSuccess);
}
