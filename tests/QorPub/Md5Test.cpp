#include <QorPub/QorPub.h>
#include <tests/support/Imports.h>

#include <gtest/gtest.h>

namespace
{

CString HexOf(const char* text)
{
    BYTE digest[MD5_DIGEST_SIZE] = {};
    EXPECT_TRUE(CQorMd5::Digest(text, static_cast<DWORD>(strlen(text)), digest));
    return CQorMd5::ToHex(digest);
}

} // namespace

// The digests are those of the test suite in RFC 1321.
TEST(CQorMd5, DigestsOfKnownTexts)
{
    EXPECT_STREQ(L"d41d8cd98f00b204e9800998ecf8427e", HexOf("").GetString());
    EXPECT_STREQ(L"900150983cd24fb0d6963f7d28e17f72", HexOf("abc").GetString());
    EXPECT_STREQ(L"57edf4a22be3c955ac49da2e2107b67a",
                 HexOf("12345678901234567890123456789012345678901234567890123456789012345678901234567890").GetString());
}

TEST(CQorMd5, PiecesGiveTheDigestOfTheWhole)
{
    CQorMd5 md5;
    BYTE digest[MD5_DIGEST_SIZE] = {};
    EXPECT_TRUE(md5.Update("message", 7));
    EXPECT_TRUE(md5.Update(nullptr, 0));
    EXPECT_TRUE(md5.Update(" digest", 7));
    EXPECT_TRUE(md5.Final(digest));
    EXPECT_STREQ(L"f96b697d7cb7938d525a2f31aaf161d0", CQorMd5::ToHex(digest).GetString());
}

TEST(CQorMd5, AFinishedObjectStartsAnew)
{
    CQorMd5 md5;
    BYTE digest[MD5_DIGEST_SIZE] = {};
    md5.Update("something else", 14);
    md5.Final(digest);
    md5.Update("abc", 3);
    EXPECT_TRUE(md5.Final(digest));
    EXPECT_STREQ(L"900150983cd24fb0d6963f7d28e17f72", CQorMd5::ToHex(digest).GetString());
    EXPECT_TRUE(md5.Final(digest));
    EXPECT_STREQ(L"d41d8cd98f00b204e9800998ecf8427e", CQorMd5::ToHex(digest).GetString());
}

TEST(CQorMd5, BadPointersAreRefused)
{
    CQorMd5 md5;
    BYTE digest[MD5_DIGEST_SIZE] = {};
    EXPECT_FALSE(md5.Update(nullptr, 1));
    EXPECT_FALSE(md5.Final(nullptr));
    EXPECT_FALSE(CQorMd5::Digest(nullptr, 1, digest));
    EXPECT_FALSE(CQorMd5::Digest("a", 1, nullptr));
    EXPECT_TRUE(CQorMd5::ToHex(nullptr).IsEmpty());
}

TEST(CQorMd5, CryptographyIsLoadedOnlyWhenUsed)
{
    const auto imports = ts::ImportsOf(GetModuleHandleW(L"QorPub.dll"));
    EXPECT_TRUE(imports.contains("kernel32.dll"));
    EXPECT_FALSE(imports.contains("bcrypt.dll")) << "attaching would pay for what few programs use";
}
