#include "XmlText.h"

#include <common/Owner.h>
#include <tests/support/Leaks.h>
#include <tests/support/Surroundings.h>

TEST(File, AFailedSaveKeepsTheOldFile)
{
    ts::TempFolder folder;
    std::wstring path = folder.File(L"doc.xml");
    ts::WriteBytes(path, "old");
    own::File held(CreateFileW(path.c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr));
    CQorXml xml;
    xml.CreateRoot(L"a");
    EXPECT_NE(kSuccess, xml.Save(path.c_str()));
    held.Reset();
    EXPECT_EQ("old", ts::ReadBytes(path));
    EXPECT_FALSE(ts::FileExists(path + L".part"));
}

TEST(File, SavingKeepsAFileThatLooksLikeAPart)
{
    ts::TempFolder folder;
    ts::WriteBytes(folder.File(L"x.xml.part"), "mine");
    CQorXml xml;
    xml.CreateRoot(L"a");
    EXPECT_EQ(kSuccess, xml.Save(folder.File(L"x.xml").c_str()));
    EXPECT_EQ(kSuccess, xml.Load(folder.File(L"x.xml").c_str()));
    EXPECT_EQ("mine", ts::ReadBytes(folder.File(L"x.xml.part")));
    EXPECT_FALSE(ts::FileExists(folder.File(L"x.xml.part2")));
}

TEST(File, FilesThatCannotBeReadGiveTheSystemsCode)
{
    ts::TempFolder folder;
    CQorXml xml;
    LoadText(xml, "<a/>");
    EXPECT_EQ(static_cast<DWORD>(ERROR_FILE_NOT_FOUND), xml.Load(folder.File(L"none.xml").c_str()));
    EXPECT_EQ(nullptr, xml.GetRoot());
    EXPECT_NE(kSuccess, xml.Load(folder.Path().c_str()));
    EXPECT_NE(kSuccess, xml.Load(nullptr));
    ts::WriteBytes(folder.File(L"empty.xml"), "");
    EXPECT_EQ(static_cast<DWORD>(ERROR_INVALID_DATA), xml.Load(folder.File(L"empty.xml").c_str()));
}
