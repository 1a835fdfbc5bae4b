#include <QorPub/QorPub.h>
#include <tests/support/Leaks.h>

#include <gtest/gtest.h>

namespace
{

constexpr LPCWSTR kTestPath = L"Software\\QorPubTest";

class Key : public testing::Test
{
  protected:
    void SetUp() override
    {
        RegDeleteTreeW(HKEY_CURRENT_USER, kTestPath);
        ASSERT_EQ(ERROR_SUCCESS, m_key.Create(HKEY_CURRENT_USER, kTestPath));
    }
    void TearDown() override
    {
        m_key.Close();
        RegDeleteTreeW(HKEY_CURRENT_USER, kTestPath);
    }

    CQorKey m_key;
};

} // namespace

TEST_F(Key, OpenFindsAnExistingKeyWithAndWithoutLastBackslash)
{
    CQorKey key;
    EXPECT_EQ(ERROR_SUCCESS, key.Open(HKEY_CURRENT_USER, kTestPath));
    EXPECT_TRUE(key.IsOpen());
    EXPECT_EQ(ERROR_SUCCESS, key.Open(HKEY_CURRENT_USER, L"Software\\QorPubTest\\", 0x109, 0));
    EXPECT_NE(nullptr, key.Get());
}

TEST_F(Key, OpenOfAMissingKeyFailsAndClosesTheOldOne)
{
    EXPECT_EQ(ERROR_FILE_NOT_FOUND, m_key.Open(HKEY_CURRENT_USER, L"Software\\QorPubTest\\Missing", KEY_READ, 0));
    EXPECT_FALSE(m_key.IsOpen());
}

TEST_F(Key, OpenWithoutParentFails)
{
    CQorKey key;
    EXPECT_EQ(ERROR_INVALID_HANDLE, key.Open(nullptr, L"x"));
    EXPECT_EQ(ERROR_INVALID_HANDLE, key.Create(nullptr, L"x"));
}

TEST_F(Key, EmptyPathOpensTheParentItself)
{
    CQorKey key;
    ASSERT_EQ(ERROR_SUCCESS, m_key.SetDword(L"n", 7));
    ASSERT_EQ(ERROR_SUCCESS, key.Open(m_key, nullptr));
    DWORD value = 0;
    EXPECT_EQ(ERROR_SUCCESS, key.QueryDword(L"n", value));
    EXPECT_EQ(7u, value);
}

TEST_F(Key, CreateTellsNewFromExisting)
{
    CQorKey key;
    DWORD disposition = 0;
    EXPECT_EQ(ERROR_SUCCESS, key.Create(m_key, L"a\\b\\c", KEY_ALL_ACCESS, 0, &disposition));
    EXPECT_EQ(static_cast<DWORD>(REG_CREATED_NEW_KEY), disposition);
    EXPECT_EQ(ERROR_SUCCESS, key.Create(m_key, L"a\\b\\c", KEY_ALL_ACCESS, 0, &disposition));
    EXPECT_EQ(static_cast<DWORD>(REG_OPENED_EXISTING_KEY), disposition);
}

TEST_F(Key, TextsComeBack)
{
    CString value;
    EXPECT_EQ(ERROR_SUCCESS, m_key.SetString(L"s", L"\u4E2D text"));
    EXPECT_EQ(ERROR_SUCCESS, m_key.QueryString(L"s", value));
    EXPECT_STREQ(L"\u4E2D text", value.GetString());
    EXPECT_EQ(ERROR_SUCCESS, m_key.SetString(L"e", L"%PATH%", REG_EXPAND_SZ));
    EXPECT_EQ(ERROR_SUCCESS, m_key.QueryString(L"e", value));
    EXPECT_STREQ(L"%PATH%", value.GetString());
    EXPECT_EQ(ERROR_SUCCESS, m_key.SetString(L"n", nullptr));
    EXPECT_EQ(ERROR_SUCCESS, m_key.QueryString(L"n", value));
    EXPECT_TRUE(value.IsEmpty());
}

TEST_F(Key, TextWithoutTerminatorIsReadSafely)
{
    ASSERT_EQ(ERROR_SUCCESS,
              RegSetValueExW(m_key, L"s", 0, REG_SZ, reinterpret_cast<const BYTE*>(L"abcd"), 3 * sizeof(WCHAR)));
    CString value;
    EXPECT_EQ(ERROR_SUCCESS, m_key.QueryString(L"s", value));
    EXPECT_STREQ(L"abc", value.GetString());
}

TEST_F(Key, DefaultValueHasNoName)
{
    CString value;
    EXPECT_EQ(ERROR_SUCCESS, m_key.SetString(nullptr, L"default"));
    EXPECT_EQ(ERROR_SUCCESS, m_key.QueryString(L"", value));
    EXPECT_STREQ(L"default", value.GetString());
}

TEST_F(Key, NumbersAndBytesComeBack)
{
    DWORD number = 0;
    EXPECT_EQ(ERROR_SUCCESS, m_key.SetDword(L"d", 0xFEDCBA98));
    EXPECT_EQ(ERROR_SUCCESS, m_key.QueryDword(L"d", number));
    EXPECT_EQ(0xFEDCBA98u, number);

    const BYTE bytes[] = {0, 1, 255};
    std::vector<BYTE> read;
    EXPECT_EQ(ERROR_SUCCESS, m_key.SetBinary(L"b", bytes, sizeof(bytes)));
    EXPECT_EQ(ERROR_SUCCESS, m_key.QueryBinary(L"b", read));
    EXPECT_EQ(std::vector<BYTE>(bytes, bytes + 3), read);
    EXPECT_EQ(ERROR_SUCCESS, m_key.SetBinary(L"b", nullptr, 0));
    EXPECT_EQ(ERROR_SUCCESS, m_key.QueryBinary(L"b", read));
    EXPECT_TRUE(read.empty());
    EXPECT_EQ(ERROR_INVALID_PARAMETER, m_key.SetBinary(L"b", nullptr, 3));
}

TEST_F(Key, MultiStringsComeBackInOrder)
{
    CStringArray written;
    written.Add(L"one");
    written.Add(L"two words");
    CStringArray read;
    read.Add(L"old");
    EXPECT_EQ(ERROR_SUCCESS, m_key.SetMultiString(L"m", written));
    EXPECT_EQ(ERROR_SUCCESS, m_key.QueryMultiString(L"m", read));
    ASSERT_EQ(2, read.GetSize());
    EXPECT_STREQ(L"one", read[0].GetString());
    EXPECT_STREQ(L"two words", read[1].GetString());
    written.RemoveAll();
    EXPECT_EQ(ERROR_SUCCESS, m_key.SetMultiString(L"m", written));
    EXPECT_EQ(ERROR_SUCCESS, m_key.QueryMultiString(L"m", read));
    EXPECT_EQ(0, read.GetSize());
}

TEST_F(Key, EmptyStringInAMultiStringIsRefused)
{
    CStringArray written;
    written.Add(L"a");
    written.Add(L"");
    EXPECT_EQ(ERROR_INVALID_PARAMETER, m_key.SetMultiString(L"m", written));
    EXPECT_EQ(ERROR_FILE_NOT_FOUND, m_key.QueryInfo(L"m", nullptr, nullptr));
}

TEST_F(Key, WrongTypesAreRefusedAndLeaveTheResult)
{
    m_key.SetDword(L"d", 1);
    m_key.SetString(L"s", L"x");
    CString text = L"kept";
    DWORD number = 42;
    CStringArray list;
    list.Add(L"kept");
    EXPECT_EQ(ERROR_INVALID_DATATYPE, m_key.QueryString(L"d", text));
    EXPECT_EQ(ERROR_INVALID_DATATYPE, m_key.QueryDword(L"s", number));
    EXPECT_EQ(ERROR_INVALID_DATATYPE, m_key.QueryMultiString(L"s", list));
    EXPECT_EQ(ERROR_FILE_NOT_FOUND, m_key.QueryString(L"missing", text));
    EXPECT_STREQ(L"kept", text.GetString());
    EXPECT_EQ(42u, number);
    EXPECT_EQ(1, list.GetSize());
}

TEST_F(Key, QueryInfoGivesTypeAndSize)
{
    m_key.SetString(L"s", L"abc");
    DWORD type = 0;
    DWORD size = 0;
    EXPECT_EQ(ERROR_SUCCESS, m_key.QueryInfo(L"s", &type, &size));
    EXPECT_EQ(static_cast<DWORD>(REG_SZ), type);
    EXPECT_EQ(8u, size);
    EXPECT_EQ(ERROR_SUCCESS, m_key.QueryInfo(L"s", nullptr, nullptr));
}

TEST_F(Key, EnumeratesKeysAndValues)
{
    CQorKey child;
    child.Create(m_key, L"child");
    m_key.SetDword(L"number", 1);
    CString name;
    DWORD type = 0;
    EXPECT_EQ(ERROR_SUCCESS, m_key.EnumKey(0, name));
    EXPECT_STREQ(L"child", name.GetString());
    EXPECT_EQ(ERROR_NO_MORE_ITEMS, m_key.EnumKey(1, name));
    EXPECT_EQ(ERROR_SUCCESS, m_key.EnumValue(0, name, &type));
    EXPECT_STREQ(L"number", name.GetString());
    EXPECT_EQ(static_cast<DWORD>(REG_DWORD), type);
    EXPECT_EQ(ERROR_NO_MORE_ITEMS, m_key.EnumValue(1, name));
}

TEST_F(Key, DeletesValuesAndWholeKeys)
{
    CQorKey child;
    child.Create(m_key, L"child\\grandchild");
    child.Close();
    m_key.SetDword(L"number", 1);
    EXPECT_EQ(ERROR_SUCCESS, m_key.DeleteValue(L"number"));
    EXPECT_EQ(ERROR_FILE_NOT_FOUND, m_key.DeleteValue(L"number"));
    EXPECT_EQ(ERROR_SUCCESS, m_key.DeleteKey(L"child\\"));
    EXPECT_EQ(ERROR_FILE_NOT_FOUND, child.Open(m_key, L"child"));
}

TEST_F(Key, DeleteKeyWithoutPathKeepsTheKeysContent)
{
    m_key.SetDword(L"number", 1);
    EXPECT_EQ(ERROR_INVALID_PARAMETER, m_key.DeleteKey(L""));
    EXPECT_EQ(ERROR_INVALID_PARAMETER, m_key.DeleteKey(nullptr));
    EXPECT_EQ(ERROR_SUCCESS, m_key.QueryInfo(L"number", nullptr, nullptr));
}

TEST_F(Key, EverythingFailsWithoutKey)
{
    CQorKey key;
    CString text;
    DWORD number = 0;
    std::vector<BYTE> bytes;
    CStringArray list;
    EXPECT_EQ(ERROR_INVALID_HANDLE, key.QueryInfo(L"x", nullptr, nullptr));
    EXPECT_EQ(ERROR_INVALID_HANDLE, key.QueryString(L"x", text));
    EXPECT_EQ(ERROR_INVALID_HANDLE, key.QueryDword(L"x", number));
    EXPECT_EQ(ERROR_INVALID_HANDLE, key.QueryBinary(L"x", bytes));
    EXPECT_EQ(ERROR_INVALID_HANDLE, key.QueryMultiString(L"x", list));
    EXPECT_EQ(ERROR_INVALID_HANDLE, key.SetString(L"x", L"y"));
    EXPECT_EQ(ERROR_INVALID_HANDLE, key.EnumKey(0, text));
    EXPECT_EQ(ERROR_INVALID_HANDLE, key.EnumValue(0, text));
    EXPECT_EQ(ERROR_INVALID_HANDLE, key.DeleteValue(L"x"));
    EXPECT_EQ(ERROR_INVALID_HANDLE, key.DeleteKey(L"x"));
}

TEST_F(Key, DetachGivesTheKeyAway)
{
    HKEY raw = m_key.Detach();
    EXPECT_FALSE(m_key.IsOpen());
    CQorKey owner(raw);
    EXPECT_EQ(ERROR_SUCCESS, owner.SetDword(L"n", 1));
}

TEST(QorAcronym2PrimaryKey, KnowsTheFiveRoots)
{
    const struct
    {
        LPCWSTR entry;
        HKEY key;
        int length;
    } cases[] = {
        {L"HKCR\\.txt\\", HKEY_CLASSES_ROOT, 5},   {L"HKCU\\Software", HKEY_CURRENT_USER, 5},
        {L"HKLM\\", HKEY_LOCAL_MACHINE, 5},        {L"HKU\\.DEFAULT\\", HKEY_USERS, 4},
        {L"HKCC\\System", HKEY_CURRENT_CONFIG, 5},
    };
    for (const auto& one : cases) {
        int length = -1;
        EXPECT_EQ(one.key, QorAcronym2PrimaryKey(one.entry, &length));
        EXPECT_EQ(one.length, length);
    }
}

TEST(QorAcronym2PrimaryKey, IgnoresLetterCaseAndANullLength)
{
    EXPECT_EQ(HKEY_CURRENT_USER, QorAcronym2PrimaryKey(L"hkcu\\x", nullptr));
    EXPECT_EQ(HKEY_USERS, QorAcronym2PrimaryKey(L"hKu\\", nullptr));
}

TEST(QorAcronym2PrimaryKey, RefusesEverythingElse)
{
    for (LPCWSTR entry : {L"", L"HKCU", L"HKXX\\a", L" HKCU\\a", L"HKEY_CURRENT_USER\\a", L"HKCU/a"}) {
        int length = -1;
        EXPECT_EQ(nullptr, QorAcronym2PrimaryKey(entry, &length));
        EXPECT_EQ(0, length);
    }
    EXPECT_EQ(nullptr, QorAcronym2PrimaryKey(nullptr, nullptr));
}

TEST(QorPrimaryKey2Acronym, NamesTheFiveRoots)
{
    EXPECT_STREQ(L"HKCR\\", QorPrimaryKey2Acronym(HKEY_CLASSES_ROOT));
    EXPECT_STREQ(L"HKCU\\", QorPrimaryKey2Acronym(HKEY_CURRENT_USER));
    EXPECT_STREQ(L"HKLM\\", QorPrimaryKey2Acronym(HKEY_LOCAL_MACHINE));
    EXPECT_STREQ(L"HKU\\", QorPrimaryKey2Acronym(HKEY_USERS));
    EXPECT_STREQ(L"HKCC\\", QorPrimaryKey2Acronym(HKEY_CURRENT_CONFIG));
}

TEST(QorPrimaryKey2Acronym, OtherKeysHaveNone)
{
    EXPECT_EQ(nullptr, QorPrimaryKey2Acronym(nullptr));
    EXPECT_EQ(nullptr, QorPrimaryKey2Acronym(HKEY_PERFORMANCE_DATA));
}

TEST_F(Key, OpenKeysAreClosed)
{
    EXPECT_TRUE(ts::NoLeak(
        [] {
            CQorKey key;
            key.Open(HKEY_CURRENT_USER, kTestPath);
            key.Create(HKEY_CURRENT_USER, kTestPath);
        },
        50));
}
