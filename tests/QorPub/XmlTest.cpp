#include <QorPub/QorPub.h>
#include <tests/support/Leaks.h>
#include <tests/support/MemoryShortage.h>
#include <tests/support/Surroundings.h>

#include <gtest/gtest.h>

#include <thread>

namespace
{

DWORD LoadText(CQorXml& xml, std::string_view text)
{
    return xml.LoadMemory(text.data(), text.size());
}

std::string ToUtf16(std::wstring_view text, bool lowFirst)
{
    std::string bytes;
    for (wchar_t c : text) {
        char low = static_cast<char>(c & 0xFF);
        char high = static_cast<char>(c >> 8);
        bytes += lowFirst ? low : high;
        bytes += lowFirst ? high : low;
    }
    return bytes;
}

class Elem : public testing::Test
{
  protected:
    void SetUp() override
    {
        ASSERT_EQ(0u, LoadText(m_xml, "<Strings lang='en' n='42' hex='0x1F' bad='4x'>"
                                      "<STR_OK>OK</STR_OK><STR_EMPTY/><c id='1'>One</c><c id='2'>Two</c>"
                                      "<STR_OK>second</STR_OK></Strings>"));
        m_root = m_xml.GetRoot();
    }

    CQorXml m_xml;
    CXmlElem* m_root = nullptr;
};

} // namespace

TEST_F(Elem, ChildDataOfAnExistingKey)
{
    EXPECT_STREQ(L"OK", m_root->GetChildData(L"STR_OK", 1));
    EXPECT_STREQ(L"OK", m_root->GetChildData(L"STR_OK", 0));
    EXPECT_STREQ(L"", m_root->GetChildData(L"STR_EMPTY", 1));
}

TEST_F(Elem, AMissingKeyGivesTheKeyWithFlagOneAndNullWithout)
{
    EXPECT_STREQ(L"STR_NONE", m_root->GetChildData(L"STR_NONE", 1));
    EXPECT_EQ(nullptr, m_root->GetChildData(L"STR_NONE", 0));
    EXPECT_STREQ(L"", m_root->GetChildData(nullptr, 1));
    EXPECT_EQ(nullptr, m_root->GetChildData(nullptr, 0));
}

TEST_F(Elem, TheMissingKeysTextOutlivesTheCallersText)
{
    LPCWSTR found = nullptr;
    {
        CString key = L"STR_TEMPORARY";
        found = m_root->GetChildData(key, 1);
        EXPECT_NE(key.GetString(), found);
        key.SetAt(0, L'x');
    }
    for (int i = 0; i < 1000; ++i) {
        CString other;
        other.Format(L"STR_%d", i);
        m_root->GetChildData(other, 1);
    }
    EXPECT_STREQ(L"STR_TEMPORARY", found);
    EXPECT_EQ(found, m_root->GetChildData(L"STR_TEMPORARY", 1));
}

TEST_F(Elem, MissingKeysMayBeAskedFromSeveralThreads)
{
    auto ask = [&](int from) {
        for (int i = from; i < from + 2000; ++i) {
            CString key;
            key.Format(L"K%d", i);
            EXPECT_STREQ(key.GetString(), m_root->GetChildData(key, 1));
        }
    };
    std::thread other(ask, 1000);
    ask(0);
    other.join();
}

TEST_F(Elem, KeysAreComparedWithRegardToCase)
{
    EXPECT_EQ(nullptr, m_root->GetChildData(L"str_ok", 0));
}

TEST_F(Elem, Attributes)
{
    EXPECT_STREQ(L"en", m_root->GetAttr(L"lang"));
    EXPECT_EQ(nullptr, m_root->GetAttr(L"none"));
    EXPECT_STREQ(L"dflt", m_root->GetAttr(L"none", L"dflt"));
    EXPECT_EQ(nullptr, m_root->GetAttr(nullptr));
    EXPECT_EQ(42, m_root->GetAttrInt(L"n"));
    EXPECT_EQ(31, m_root->GetAttrInt(L"hex"));
    EXPECT_EQ(-1, m_root->GetAttrInt(L"bad", -1));
    EXPECT_EQ(-1, m_root->GetAttrInt(L"none", -1));
    ASSERT_EQ(4, m_root->GetAttrCount());
    EXPECT_STREQ(L"hex", m_root->GetAttrName(2));
    EXPECT_STREQ(L"0x1F", m_root->GetAttrValue(2));
    EXPECT_EQ(nullptr, m_root->GetAttrName(4));
    EXPECT_EQ(nullptr, m_root->GetAttrValue(-1));
}

TEST_F(Elem, NumbersOutOfRangeAreNoNumbers)
{
    m_root->SetAttr(L"n", L"2147483648");
    EXPECT_EQ(-1, m_root->GetAttrInt(L"n", -1));
    m_root->SetAttr(L"n", L"-2147483648");
    EXPECT_EQ(INT_MIN, m_root->GetAttrInt(L"n", -1));
    m_root->SetAttr(L"n", L"99999999999999999999999");
    EXPECT_EQ(-1, m_root->GetAttrInt(L"n", -1));
    m_root->SetAttr(L"n", L"");
    EXPECT_EQ(-1, m_root->GetAttrInt(L"n", -1));
}

TEST_F(Elem, ChildrenInOrder)
{
    ASSERT_EQ(5, m_root->GetChildCount());
    EXPECT_STREQ(L"STR_OK", m_root->GetChild(0)->GetName());
    EXPECT_STREQ(L"second", m_root->GetChild(4)->GetData());
    EXPECT_EQ(nullptr, m_root->GetChild(5));
    EXPECT_EQ(nullptr, m_root->GetChild(-1));
    EXPECT_EQ(m_root, m_root->GetChild(0)->GetParent());
    EXPECT_EQ(nullptr, m_root->GetParent());
}

TEST_F(Elem, ChildByNameAndByAttribute)
{
    EXPECT_EQ(m_root->GetChild(0), m_root->FindChild(L"STR_OK"));
    EXPECT_EQ(nullptr, m_root->FindChild(L"none"));
    EXPECT_EQ(nullptr, m_root->FindChild(nullptr));
    EXPECT_STREQ(L"Two", m_root->FindChildByAttr(L"c", L"id", L"2")->GetData());
    EXPECT_STREQ(L"One", m_root->FindChildByAttr(nullptr, L"id", L"1")->GetData());
    EXPECT_EQ(nullptr, m_root->FindChildByAttr(L"d", L"id", L"1"));
    EXPECT_EQ(nullptr, m_root->FindChildByAttr(L"c", L"id", L"3"));
}

TEST_F(Elem, ChangesOfAttributesAndChildren)
{
    EXPECT_TRUE(m_root->SetAttr(L"lang", L"de"));
    EXPECT_STREQ(L"de", m_root->GetAttr(L"lang"));
    EXPECT_EQ(4, m_root->GetAttrCount());
    EXPECT_TRUE(m_root->RemoveAttr(L"lang"));
    EXPECT_FALSE(m_root->RemoveAttr(L"lang"));
    CXmlElem other(L"x");
    EXPECT_FALSE(m_root->RemoveChild(&other));
    EXPECT_FALSE(m_root->RemoveChild(nullptr));
    EXPECT_TRUE(m_root->RemoveChild(m_root->GetChild(0)));
    EXPECT_STREQ(L"second", m_root->GetChildData(L"STR_OK", 0));
}

TEST_F(Elem, BadNamesAreRefused)
{
    for (LPCWSTR name : {L"", L"1a", L"a b", L"<a", L"-a"}) {
        EXPECT_EQ(nullptr, m_root->AddChild(name));
        EXPECT_FALSE(m_root->SetAttr(name, L"x"));
    }
    EXPECT_EQ(nullptr, m_root->AddChild(nullptr));
    EXPECT_NE(nullptr, m_root->AddChild(L"a-1.b_\u4E2D"));
}

TEST(CQorXml, ReadsUtf8WithAndWithoutMark)
{
    CQorXml xml;
    EXPECT_EQ(0u, LoadText(xml, "<?xml version='1.0' encoding='utf-8'?>\n<a>\xE4\xB8\xAD</a>"));
    EXPECT_STREQ(L"\u4E2D", xml.GetRoot()->GetData());
    EXPECT_EQ(0u, LoadText(xml, "\xEF\xBB\xBF<a>\xF0\x9F\x98\x80</a>"));
    EXPECT_STREQ(L"\U0001F600", xml.GetRoot()->GetData());
}

TEST(CQorXml, ReadsUtf16OfBothOrdersWithAndWithoutMark)
{
    for (bool lowFirst : {true, false}) {
        for (LPCWSTR text :
             {L"\uFEFF<?xml version='1.0' encoding='UTF-16'?><a>\u4E2D\U0001F600</a>", L"<a>\u4E2D\U0001F600</a>"}) {
            CQorXml xml;
            EXPECT_EQ(0u, LoadText(xml, ToUtf16(text, lowFirst)));
            ASSERT_NE(nullptr, xml.GetRoot());
            EXPECT_STREQ(L"\u4E2D\U0001F600", xml.GetRoot()->GetData());
        }
    }
}

TEST(CQorXml, TextKeepsEntitiesCdataAndLineFeeds)
{
    CQorXml xml;
    EXPECT_EQ(0u, LoadText(xml, "<a t='&quot;&#x4E2D;'>&lt;1&amp;2&gt;<![CDATA[<raw>]]>\r\nx<!-- c --> y</a>"));
    EXPECT_STREQ(L"<1&2><raw>\nx y", xml.GetRoot()->GetData());
    EXPECT_STREQ(L"\"\u4E2D", xml.GetRoot()->GetAttr(L"t"));
}

TEST(CQorXml, OnlyWhatIsAReferenceIsReplaced)
{
    CQorXml xml;
    ASSERT_EQ(0u, LoadText(xml, "<a t='&#65;&#x7F;&#xe4;&#x4E2d;&#128512;&apos;'>&&amp;amp;&no;&#;&#x;&#1a;&#X41; &lt"
                                "<![CDATA[&#0;&lt;]]></a>"));
    EXPECT_STREQ(L"A\x7F\u00E4\u4E2D\U0001F600'", xml.GetRoot()->GetAttr(L"t"));
    EXPECT_STREQ(L"&&amp;&no;&#;&#x;&#1a;&#X41; &lt&#0;&lt;", xml.GetRoot()->GetData());
}

TEST(CQorXml, BlanksCountOnlyWhereThereIsNothingElse)
{
    CQorXml xml;
    EXPECT_EQ(0u, LoadText(xml, "<a>\n  <b> </b>\n</a>"));
    EXPECT_STREQ(L"", xml.GetRoot()->GetData());
    EXPECT_STREQ(L" ", xml.GetRoot()->GetChildData(L"b", 0));
}

TEST(CQorXml, DamagedDocumentsAreRefusedWithAReason)
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

TEST(CQorXml, TheErrorOffsetPointsToTheDamage)
{
    CQorXml xml;
    LoadText(xml, "<a>\xFF</a>");
    EXPECT_EQ(3u, xml.GetErrorOffset());
    EXPECT_EQ(0u, LoadText(xml, "<a/>"));
    EXPECT_STREQ(L"", xml.GetErrorText());
    EXPECT_EQ(0u, xml.GetErrorOffset());
}

TEST(CQorXml, NullDataIsRefused)
{
    CQorXml xml;
    EXPECT_EQ(static_cast<DWORD>(ERROR_INVALID_DATA), xml.LoadMemory(nullptr, 0));
    EXPECT_EQ(static_cast<DWORD>(ERROR_INVALID_DATA), xml.LoadMemory(nullptr, 10));
}

TEST(CQorXml, EveryPrefixOfADocumentIsRefusedAndNothingCrashes)
{
    std::string text = "<?xml version='1.0'?><!DOCTYPE a [<!ENTITY x 'y'>]><a b='c'>&amp;&#65;<![CDATA[d]]>"
                       "<!-- e --><?pi f?><g/>\xE4\xB8\xAD</a>";
    CQorXml xml;
    EXPECT_EQ(0u, LoadText(xml, text));
    for (size_t size = 0; size < text.size(); ++size) {
        EXPECT_NE(0u, LoadText(xml, text.substr(0, size))) << size;
    }
}

TEST(CQorXml, DeepNestingHasALimit)
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
    EXPECT_EQ(0u, LoadText(xml, nested(200)));
    EXPECT_EQ(static_cast<DWORD>(ERROR_INVALID_DATA), LoadText(xml, nested(201)));
    EXPECT_EQ(static_cast<DWORD>(ERROR_INVALID_DATA), LoadText(xml, nested(100000)));
}

TEST(CQorXml, AttributesHaveALimit)
{
    auto many = [](int count) {
        std::string text = "<a";
        for (int i = 0; i < count; ++i) {
            text += " a" + std::to_string(i) + "=''";
        }
        return text + "/>";
    };
    CQorXml xml;
    EXPECT_EQ(0u, LoadText(xml, many(256)));
    EXPECT_EQ(static_cast<DWORD>(ERROR_INVALID_DATA), LoadText(xml, many(257)));
}

TEST(CQorXml, LargeDocumentsAreRead)
{
    std::string text = "<a>";
    for (int i = 0; i < 20000; ++i) {
        text += "<b id='" + std::to_string(i) + "'>text of an element</b>";
    }
    CQorXml xml;
    EXPECT_EQ(0u, LoadText(xml, text + "</a>"));
    ASSERT_EQ(20000, xml.GetRoot()->GetChildCount());
    EXPECT_EQ(19999, xml.GetRoot()->GetChild(19999)->GetAttrInt(L"id"));
}

TEST(CQorXml, TooLargeDataIsRefusedUnread)
{
    CQorXml xml;
    EXPECT_EQ(static_cast<DWORD>(ERROR_FILE_TOO_LARGE), xml.LoadMemory("<a/>", 64 * 1024 * 1024 + 1));
}

TEST(CQorXml, SavedDocumentsComeBack)
{
    ts::TempFolder folder;
    std::wstring path = folder.File(L"doc.xml");
    CQorXml xml;
    CXmlElem* root = xml.CreateRoot(L"root");
    ASSERT_NE(nullptr, root);
    root->SetAttr(L"special", L"<&>\"'\u4E2D\n");
    root->AddChild(L"text", L"a < b & c \U0001F600\nsecond line");
    root->AddChild(L"blank", L"  ");
    root->AddChild(L"empty");
    ASSERT_EQ(0u, xml.Save(path.c_str()));
    EXPECT_EQ(0u, ts::ReadBytes(path).find("<?xml version=\"1.0\" encoding=\"UTF-8\"?>"));

    CQorXml read;
    ASSERT_EQ(0u, read.Load(path.c_str()));
    EXPECT_STREQ(L"<&>\"'\u4E2D\n", read.GetRoot()->GetAttr(L"special"));
    EXPECT_STREQ(L"a < b & c \U0001F600\nsecond line", read.GetRoot()->GetChildData(L"text", 0));
    EXPECT_STREQ(L"  ", read.GetRoot()->GetChildData(L"blank", 0));
    EXPECT_STREQ(L"", read.GetRoot()->GetChildData(L"empty", 0));
}

TEST(CQorXml, AFailedSaveKeepsTheOldFile)
{
    ts::TempFolder folder;
    std::wstring path = folder.File(L"doc.xml");
    ts::WriteBytes(path, "old");
    HANDLE held = CreateFileW(path.c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr);
    CQorXml xml;
    xml.CreateRoot(L"a");
    EXPECT_NE(0u, xml.Save(path.c_str()));
    CloseHandle(held);
    EXPECT_EQ("old", ts::ReadBytes(path));
    EXPECT_FALSE(ts::FileExists(path + L".part"));
}

TEST(CQorXml, SavingKeepsAFileThatLooksLikeAPart)
{
    ts::TempFolder folder;
    ts::WriteBytes(folder.File(L"x.xml.part"), "mine");
    CQorXml xml;
    xml.CreateRoot(L"a");
    EXPECT_EQ(0u, xml.Save(folder.File(L"x.xml").c_str()));
    EXPECT_EQ(0u, xml.Load(folder.File(L"x.xml").c_str()));
    EXPECT_EQ("mine", ts::ReadBytes(folder.File(L"x.xml.part")));
    EXPECT_FALSE(ts::FileExists(folder.File(L"x.xml.part2")));
}

TEST(CQorXml, ShortMemoryIsAnError)
{
    ts::TempFolder folder;
    std::wstring path = folder.File(L"x.xml");
    ts::WriteBytes(path, "<a><b/></a>");
    CQorXml xml;
    CQorXml saved;
    CStringA text;
    saved.CreateRoot(L"a")->AddChild(L"b");
    const ts::MemoryShortage shortage(L"QorPub.dll");
    EXPECT_EQ(static_cast<DWORD>(ERROR_NOT_ENOUGH_MEMORY), LoadText(xml, "<a><b/></a>"));
    EXPECT_EQ(nullptr, xml.GetRoot());
    EXPECT_EQ(static_cast<DWORD>(ERROR_NOT_ENOUGH_MEMORY), xml.Load(path.c_str()));
    EXPECT_EQ(static_cast<DWORD>(ERROR_NOT_ENOUGH_MEMORY), saved.Save(path.c_str()));
    EXPECT_FALSE(saved.SaveMemory(text));
    EXPECT_EQ("<a><b/></a>", ts::ReadBytes(path));
}

TEST(CQorXml, WhatCannotBeSaved)
{
    ts::TempFolder folder;
    CQorXml xml;
    CStringA text;
    EXPECT_EQ(static_cast<DWORD>(ERROR_INVALID_DATA), xml.Save(folder.File(L"x.xml").c_str()));
    EXPECT_FALSE(xml.SaveMemory(text));
    EXPECT_EQ(nullptr, xml.CreateRoot(L"a b"));
    xml.CreateRoot(L"a");
    EXPECT_NE(0u, xml.Save(folder.File(L"none\\x.xml").c_str()));
    EXPECT_NE(0u, xml.Save(L""));
    EXPECT_NE(0u, xml.Save(nullptr));
    EXPECT_FALSE(ts::FileExists(folder.File(L"x.xml")));
}

TEST(CQorXml, FilesThatCannotBeReadGiveTheSystemsCode)
{
    ts::TempFolder folder;
    CQorXml xml;
    LoadText(xml, "<a/>");
    EXPECT_EQ(static_cast<DWORD>(ERROR_FILE_NOT_FOUND), xml.Load(folder.File(L"none.xml").c_str()));
    EXPECT_EQ(nullptr, xml.GetRoot());
    EXPECT_NE(0u, xml.Load(folder.Path().c_str()));
    EXPECT_NE(0u, xml.Load(nullptr));
    ts::WriteBytes(folder.File(L"empty.xml"), "");
    EXPECT_EQ(static_cast<DWORD>(ERROR_INVALID_DATA), xml.Load(folder.File(L"empty.xml").c_str()));
}

TEST(CQorXml, EntitiesForTheFiveSpecialCharacters)
{
    CString text = L"a<b>&\"c'&amp;";
    CQorXml::ReplaceEntityChar(text);
    EXPECT_STREQ(L"a&lt;b&gt;&amp;&quot;c&apos;&amp;amp;", text.GetString());
    text = L"plain \u4E2D";
    CQorXml::ReplaceEntityChar(text);
    EXPECT_STREQ(L"plain \u4E2D", text.GetString());
    text.Empty();
    CQorXml::ReplaceEntityChar(text);
    EXPECT_TRUE(text.IsEmpty());
}

TEST(CQorXml, FilesAreClosedOnEveryPath)
{
    ts::TempFolder folder;
    const std::wstring good = folder.File(L"good.xml");
    const std::wstring damaged = folder.File(L"damaged.xml");
    ts::WriteBytes(damaged, "<a>");
    EXPECT_TRUE(ts::NoLeak([&] {
        CQorXml xml;
        xml.CreateRoot(L"a");
        EXPECT_EQ(0u, xml.Save(good.c_str()));
        EXPECT_NE(0u, xml.Save(folder.File(L"none\\x.xml").c_str()));
        EXPECT_EQ(0u, xml.Load(good.c_str()));
        EXPECT_NE(0u, xml.Load(damaged.c_str()));
    }));
}
