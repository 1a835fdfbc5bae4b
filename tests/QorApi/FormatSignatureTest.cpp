#include <QorApi/FormatSignature.h>

#include <gtest/gtest.h>

namespace
{

std::wstring Signature(std::wstring_view text)
{
    std::wstring signature = L"untouched";
    EXPECT_TRUE(GetFormatSignature(text, signature));
    return signature;
}

} // namespace

TEST(FormatSignature, TextWithoutPlaceholdersIsEmpty)
{
    EXPECT_EQ(Signature(L""), L"");
    EXPECT_EQ(Signature(L"No placeholder"), L"");
}

TEST(FormatSignature, DoubledPercentSignIsText)
{
    EXPECT_EQ(Signature(L"100%%"), L"");
    EXPECT_EQ(Signature(L"%%d"), L"");
    EXPECT_EQ(Signature(L"%%%d"), L"d;");
}

TEST(FormatSignature, KindsStandInOrder)
{
    EXPECT_EQ(Signature(L"%s of %d, %u"), L"s;d;u;");
    EXPECT_EQ(Signature(L"%d of %s, %u"), L"d;s;u;");
}

TEST(FormatSignature, KindsThatReadAlikeAreAlike)
{
    EXPECT_EQ(Signature(L"%i"), Signature(L"%d"));
    EXPECT_EQ(Signature(L"%X"), Signature(L"%x"));
    EXPECT_EQ(Signature(L"%ls"), Signature(L"%s"));
    EXPECT_EQ(Signature(L"%ld"), Signature(L"%d"));
    EXPECT_EQ(Signature(L"%hs"), Signature(L"%S"));
    EXPECT_EQ(Signature(L"%I64d"), Signature(L"%lld"));
    EXPECT_EQ(Signature(L"%g"), Signature(L"%f"));
}

TEST(FormatSignature, KindsThatReadOtherwiseDiffer)
{
    EXPECT_NE(Signature(L"%s"), Signature(L"%d"));
    EXPECT_NE(Signature(L"%s"), Signature(L"%S"));
    EXPECT_NE(Signature(L"%d"), Signature(L"%I64d"));
    EXPECT_NE(Signature(L"%d"), Signature(L"%f"));
    EXPECT_NE(Signature(L"%d"), Signature(L"%zd"));
    EXPECT_NE(Signature(L"%c"), Signature(L"%s"));
    EXPECT_NE(Signature(L"%p"), Signature(L"%x"));
}

TEST(FormatSignature, FlagsWidthAndPrecisionDoNotCount)
{
    EXPECT_EQ(Signature(L"%-08.3f"), L"f;");
    EXPECT_EQ(Signature(L"%+5d"), L"d;");
    EXPECT_EQ(Signature(L"%.10s"), L"s;");
}

TEST(FormatSignature, WidthAndPrecisionFromArgumentsCount)
{
    EXPECT_EQ(Signature(L"%*d"), L"*d;");
    EXPECT_EQ(Signature(L"%*.*s"), L"**s;");
    EXPECT_EQ(Signature(L"%.*s"), L"*s;");
}

TEST(FormatSignature, PercentSignWithoutPlaceholderIsTold)
{
    EXPECT_EQ(Signature(L"100%"), L"?;");
    EXPECT_EQ(Signature(L"100%!"), L"?!;");
    EXPECT_EQ(Signature(L"%y %d"), L"?y;d;");
    EXPECT_EQ(Signature(L"%1$s"), L"?1;");
    EXPECT_EQ(Signature(L"%5"), L"?5;");
}

TEST(FormatSignature, WritingPlaceholderIsRefused)
{
    std::wstring signature;
    EXPECT_FALSE(GetFormatSignature(L"%n", signature));
    EXPECT_FALSE(GetFormatSignature(L"%s %lln", signature));
    EXPECT_FALSE(GetFormatSignature(L"%*n", signature));
}
