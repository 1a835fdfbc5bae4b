#include "XmlText.h"

TEST(XmlParse, ReadsUtf8WithAndWithoutMark)
{
    CQorXml xml;
    EXPECT_EQ(kSuccess, LoadText(xml, "<?xml version='1.0' encoding='utf-8'?>\n<a>\xE4\xB8\xAD</a>"));
    EXPECT_STREQ(L"\u4E2D", xml.GetRoot()->GetData());
    EXPECT_EQ(kSuccess, LoadText(xml, "\xEF\xBB\xBF<a>\xF0\x9F\x98\x80</a>"));
    EXPECT_STREQ(L"\U0001F600", xml.GetRoot()->GetData());
}

TEST(XmlParse, ReadsUtf16OfBothOrdersWithAndWithoutMark)
{
    for (bool lowFirst : {true, false}) {
        for (LPCWSTR text :
             {L"\uFEFF<?xml version='1.0' encoding='UTF-16'?><a>\u4E2D\U0001F600</a>", L"<a>\u4E2D\U0001F600</a>"}) {
            CQorXml xml;
            EXPECT_EQ(kSuccess, LoadText(xml, ToUtf16(text, lowFirst)));
            ASSERT_NE(nullptr, xml.GetRoot());
            EXPECT_STREQ(L"\u4E2D\U0001F600", xml.GetRoot()->GetData());
        }
    }
}

TEST(XmlParse, TextKeepsEntitiesCdataAndLineFeeds)
{
    CQorXml xml;
    EXPECT_EQ(kSuccess, LoadText(xml, "<a t='&quot;&#x4E2D;'>&lt;1&amp;2&gt;<![CDATA[<raw>]]>\r\nx<!-- c --> y</a>"));
    EXPECT_STREQ(L"<1&2><raw>\nx y", xml.GetRoot()->GetData());
    EXPECT_STREQ(L"\"\u4E2D", xml.GetRoot()->GetAttr(L"t"));
}

TEST(XmlParse, OnlyWhatIsAReferenceIsReplaced)
{
    CQorXml xml;
    ASSERT_EQ(kSuccess,
              LoadText(xml, "<a t='&#65;&#x7F;&#xe4;&#x4E2d;&#128512;&apos;'>&&amp;amp;&no;&#;&#x;&#1a;&#X41; &lt"
                            "<![CDATA[&#0;&lt;]]></a>"));
    EXPECT_STREQ(L"A\x7F\u00E4\u4E2D\U0001F600'", xml.GetRoot()->GetAttr(L"t"));
    EXPECT_STREQ(L"&&amp;&no;&#;&#x;&#1a;&#X41; &lt&#0;&lt;", xml.GetRoot()->GetData());
}

TEST(XmlParse, BlanksCountOnlyWhereThereIsNothingElse)
{
    CQorXml xml;
    EXPECT_EQ(kSuccess, LoadText(xml, "<a>\n  <b> </b>\n</a>"));
    EXPECT_STREQ(L"", xml.GetRoot()->GetData());
    EXPECT_STREQ(L" ", xml.GetRoot()->GetChildData(L"b", 0));
}

TEST(XmlParse, DamagedDocumentsAreRefusedWithAReason)
{
    const std::string damaged[] = {
        "",
        " ",
        "text",
        "<",
        "<a",
        "<a>",
        "</a>",
        "<a></b>",
        "<a><b></a></b>",
        "<a/><b/>",
        "<a/>text",
        "text<a/>",
        "<a b></a>",
        "<a b='1' b='2'/>",
        "<a b='1></a>",
        "<!-- only a comment -->",
        "<?xml version='1.0'?>",
        "<a><![CDATA[open</a>",
        "<a>&#xD800;</a>",
        "<a b='&#x666656666;'/>",
        "<a>AB&#0;CD</a>",
        "<a>&#x0;</a>",
        "<a>&#00000;</a>",
        "<a b='1&#0;2'/>",
        "<a b='&#x000;'/>",
        ToUtf16(L"<a>&#0;</a>", true),
        "<a/>&#32;",
        "<a>\xFF</a>",
        "<a>\xC0\x80</a>",
        "<a>\xED\xA0\x80</a>",
        "<a>\xF5\x80\x80\x80</a>",
        "<a>\xE4\xB8",
        std::string("<a>\0</a>", 8),
        ToUtf16(L"<a>\xD800</a>", true),
        ToUtf16(L"<a>\xDC00</a>", true),
        ToUtf16(L"<a>", true) + "x",
        ToUtf16(L"<a/>\xD83D", true),
        std::string("\xFF\xFE", 2),
    };
    for (const std::string& text : damaged) {
        CQorXml xml;
        EXPECT_EQ(static_cast<DWORD>(ERROR_INVALID_DATA), LoadText(xml, text)) << text;
        EXPECT_EQ(nullptr, xml.GetRoot());
        EXPECT_NE(L'\0', *xml.GetErrorText()) << text;
    }
}

TEST(XmlParse, TheErrorOffsetPointsToTheDamage)
{
    CQorXml xml;
    LoadText(xml, "<a>\xFF</a>");
    EXPECT_EQ(3u, xml.GetErrorOffset());
    EXPECT_EQ(kSuccess, LoadText(xml, "<a/>"));
    EXPECT_STREQ(L"", xml.GetErrorText());
    EXPECT_EQ(0u, xml.GetErrorOffset());
}

TEST(XmlParse, EveryPrefixOfADocumentIsRefusedAndNothingCrashes)
{
    std::string text = "<?xml version='1.0'?><!DOCTYPE a [<!ENTITY x 'y'>]><a b='c'>&amp;&#65;<![CDATA[d]]>"
                       "<!-- e --><?pi f?><g/>\xE4\xB8\xAD</a>";
    CQorXml xml;
    EXPECT_EQ(kSuccess, LoadText(xml, text));
    for (size_t size = 0; size < text.size(); ++size) {
        EXPECT_NE(kSuccess, LoadText(xml, text.substr(0, size))) << size;
    }
}

TEST(XmlParse, DeepNestingHasALimit)
{
    auto nested = [](int depth) {
        std::string text;
        for (int i = 0; i < depth; ++i) {
            text += "<a>";
        }
        for (int i = 0; i < depth; ++i) {
            text += "</a>";
        }
        return text;
    };
    CQorXml xml;
    EXPECT_EQ(kSuccess, LoadText(xml, nested(200)));
    EXPECT_EQ(static_cast<DWORD>(ERROR_INVALID_DATA), LoadText(xml, nested(201)));
    EXPECT_EQ(static_cast<DWORD>(ERROR_INVALID_DATA), LoadText(xml, nested(100000)));
}

TEST(XmlParse, AttributesHaveALimit)
{
    auto many = [](int count) {
        std::string text = "<a";
        for (int i = 0; i < count; ++i) {
            text += " a" + std::to_string(i) + "=''";
        }
        return text + "/>";
    };
    CQorXml xml;
    EXPECT_EQ(kSuccess, LoadText(xml, many(256)));
    EXPECT_EQ(static_cast<DWORD>(ERROR_INVALID_DATA), LoadText(xml, many(257)));
}
