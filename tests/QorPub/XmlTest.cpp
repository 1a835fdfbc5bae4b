#include "XmlText.h"

#include <tests/support/Leaks.h>
#include <tests/support/MemoryShortage.h>
#include <tests/support/Surroundings.h>

#include <thread>

namespace
{

class Elem : public testing::Test
{
  protected:
    void SetUp() override
    {
        ASSERT_EQ(kSuccess, LoadText(m_xml, "<Strings lang='en' n='42' hex='0x1F' bad='4x'>"
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

TEST(CQorXml, NullDataIsRefused)
{
    CQorXml xml;
    EXPECT_EQ(static_cast<DWORD>(ERROR_INVALID_DATA), xml.LoadMemory(nullptr, 0));
    EXPECT_EQ(static_cast<DWORD>(ERROR_INVALID_DATA), xml.LoadMemory(nullptr, 10));
}

TEST(CQorXml, LargeDocumentsAreRead)
{
    std::string text = "<a>";
    for (int i = 0; i < 20000; ++i) {
        text += "<b id='" + std::to_string(i) + "'>text of an element</b>";
    }
    CQorXml xml;
    EXPECT_EQ(kSuccess, LoadText(xml, text + "</a>"));
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
    ASSERT_EQ(kSuccess, xml.Save(path.c_str()));
    EXPECT_EQ(0u, ts::ReadBytes(path).find("<?xml version=\"1.0\" encoding=\"UTF-8\"?>"));

    CQorXml read;
    ASSERT_EQ(kSuccess, read.Load(path.c_str()));
    EXPECT_STREQ(L"<&>\"'\u4E2D\n", read.GetRoot()->GetAttr(L"special"));
    EXPECT_STREQ(L"a < b & c \U0001F600\nsecond line", read.GetRoot()->GetChildData(L"text", 0));
    EXPECT_STREQ(L"  ", read.GetRoot()->GetChildData(L"blank", 0));
    EXPECT_STREQ(L"", read.GetRoot()->GetChildData(L"empty", 0));
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
    EXPECT_NE(kSuccess, xml.Save(folder.File(L"none\\x.xml").c_str()));
    EXPECT_NE(kSuccess, xml.Save(L""));
    EXPECT_NE(kSuccess, xml.Save(nullptr));
    EXPECT_FALSE(ts::FileExists(folder.File(L"x.xml")));
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
        EXPECT_EQ(kSuccess, xml.Save(good.c_str()));
        EXPECT_NE(kSuccess, xml.Save(folder.File(L"none\\x.xml").c_str()));
        EXPECT_EQ(kSuccess, xml.Load(good.c_str()));
        EXPECT_NE(kSuccess, xml.Load(damaged.c_str()));
    }));
}
