#include "TestApp.h"

#include <array>
#include <memory>

namespace
{
/** An application whose profile is in a file of its own. */
class FileProfile : public testing::Test
{
  protected:
    FileProfile() { m_app.m_pszProfileName = m_path.c_str(); }

    ts::TempFolder m_folder;
    std::wstring m_path = m_folder.File(L"program.ini");
    TestApp m_app;
};

/** An application whose profile is in the registry; its keys are gone afterwards. */
class RegistryProfile : public testing::Test
{
  protected:
    RegistryProfile() { m_app.SetRegistryKey(_T("Profile Test Makers")); }
    ~RegistryProfile() override { ::RegDeleteTree(HKEY_CURRENT_USER, _T("Software\\Profile Test Makers")); }

    TestApp m_app;
};

void ExpectBytes(CWinApp& app, LPCTSTR entry, const std::vector<BYTE>& expected)
{
    LPBYTE data = nullptr;
    UINT length = 0;
    ASSERT_TRUE(app.GetProfileBinary(_T("Place"), entry, &data, &length));
    const std::unique_ptr<BYTE[]> owner(data);
    EXPECT_EQ(std::vector<BYTE>(data, data + length), expected);
}

void WriteAndRead(CWinApp& app)
{
    EXPECT_TRUE(app.WriteProfileInt(_T("Place"), _T("left"), -12));
    EXPECT_EQ(static_cast<int>(app.GetProfileInt(_T("Place"), _T("left"), 7)), -12);
    EXPECT_TRUE(app.WriteProfileString(_T("Place"), _T("title"), _T("A title")));
    EXPECT_EQ(app.GetProfileString(_T("Place"), _T("title"), _T("none")), CString(_T("A title")));
    std::array<BYTE, 3> bytes = {0, 18, 255};
    EXPECT_TRUE(app.WriteProfileBinary(_T("Place"), _T("bytes"), bytes.data(), static_cast<UINT>(bytes.size())));
    ExpectBytes(app, _T("bytes"), {0, 18, 255});
}

void ExpectDefaults(CWinApp& app)
{
    EXPECT_EQ(app.GetProfileInt(_T("Place"), _T("missing"), 7), 7u);
    EXPECT_EQ(app.GetProfileString(_T("Place"), _T("missing"), _T("none")), CString(_T("none")));
    EXPECT_EQ(app.GetProfileString(_T("Place"), _T("missing")), CString());
    LPBYTE data = nullptr;
    UINT length = 1;
    EXPECT_FALSE(app.GetProfileBinary(_T("Place"), _T("missing"), &data, &length));
    EXPECT_EQ(data, nullptr);
    EXPECT_EQ(length, 0u);
}

void DeleteEntryAndSection(CWinApp& app)
{
    app.WriteProfileString(_T("Place"), _T("one"), _T("1"));
    app.WriteProfileString(_T("Place"), _T("two"), _T("2"));
    EXPECT_TRUE(app.WriteProfileString(_T("Place"), _T("one"), nullptr));
    EXPECT_EQ(app.GetProfileString(_T("Place"), _T("one")), CString());
    EXPECT_EQ(app.GetProfileString(_T("Place"), _T("two")), CString(_T("2")));
    EXPECT_TRUE(app.WriteProfileString(_T("Place"), nullptr, nullptr));
    EXPECT_EQ(app.GetProfileString(_T("Place"), _T("two")), CString());
}
} // namespace

TEST_F(FileProfile, GivesBackWhatWasWritten)
{
    WriteAndRead(m_app);
    EXPECT_TRUE(ts::FileExists(m_path));
}

TEST_F(FileProfile, GivesTheDefaultOfWhatIsMissing)
{
    ExpectDefaults(m_app);
}

TEST_F(FileProfile, EntriesAndSectionsAreDeletedByNull)
{
    DeleteEntryAndSection(m_app);
}

TEST_F(FileProfile, DamagedBytesAreRefused)
{
    m_app.WriteProfileString(_T("Place"), _T("bytes"), _T("AZ"));
    LPBYTE data = nullptr;
    UINT length = 0;
    EXPECT_FALSE(m_app.GetProfileBinary(_T("Place"), _T("bytes"), &data, &length));
    EXPECT_EQ(data, nullptr);
}

TEST_F(RegistryProfile, GivesBackWhatWasWritten)
{
    WriteAndRead(m_app);
}

TEST_F(RegistryProfile, GivesTheDefaultOfWhatIsMissing)
{
    ExpectDefaults(m_app);
}

TEST_F(RegistryProfile, EntriesAndSectionsAreDeletedByNull)
{
    DeleteEntryAndSection(m_app);
}

TEST_F(RegistryProfile, StandsBelowTheMakersAndTheProgramsName)
{
    m_app.WriteProfileString(_T("Place"), _T("title"), _T("A title"));
    HKEY key = nullptr;
    ASSERT_EQ(::RegOpenKey(HKEY_CURRENT_USER, _T("Software\\Profile Test Makers\\test app\\Place"), &key),
              ERROR_SUCCESS);
    ::RegCloseKey(key);
}

TEST_F(RegistryProfile, ValuesOfAnotherTypeCountAsMissing)
{
    m_app.WriteProfileString(_T("Place"), _T("value"), _T("text"));
    EXPECT_EQ(m_app.GetProfileInt(_T("Place"), _T("value"), 7), 7u);
    m_app.WriteProfileInt(_T("Place"), _T("value"), 3);
    EXPECT_EQ(m_app.GetProfileString(_T("Place"), _T("value"), _T("none")), CString(_T("none")));
}

TEST(ProfileNames, AreMadeFromTheProgramsName)
{
    TestApp app;
    EXPECT_STREQ(app.m_pszProfileName, _T("afx_app_test.INI"));
    EXPECT_EQ(CString(app.m_pszHelpFilePath).Right(17), CString(_T("\\afx_app_test.HLP")));
    EXPECT_EQ(app.GetAppRegistryKey(), nullptr);
}
