#include <QorApi/QorApi.h>
#include <tests/support/Status.h>

#include <gtest/gtest.h>

namespace
{

std::wstring Converted(LPCWSTR entry)
{
    CString text(entry);
    EXPECT_EQ(QorConvertKeyName(text), kSuccess) << entry;
    return text.GetString();
}

DWORD Refusal(const CString& entry)
{
    CString text(entry);
    const DWORD status = QorConvertKeyName(text);
    EXPECT_STREQ(text, entry);
    return status;
}

} // namespace

TEST(KeyName, StoredFormStaysAsItIs)
{
    EXPECT_EQ(Converted(L"HKCU\\Software\\"), L"HKCU\\Software\\");
    EXPECT_EQ(Converted(L"HKLM\\SOFTWARE\\Qor\\"), L"HKLM\\SOFTWARE\\Qor\\");
    EXPECT_EQ(Converted(L"HKU\\.DEFAULT\\Environment\\TEMP"), L"HKU\\.DEFAULT\\Environment\\TEMP");
    EXPECT_EQ(Converted(L"HKCC\\Software\\Value"), L"HKCC\\Software\\Value");
}

TEST(KeyName, RootsAreTakenInAnyCaseAndByTheirLongNames)
{
    EXPECT_EQ(Converted(L"hkcu\\Software\\"), L"HKCU\\Software\\");
    EXPECT_EQ(Converted(L"HKEY_LOCAL_MACHINE\\SOFTWARE\\Qor\\"), L"HKLM\\SOFTWARE\\Qor\\");
    EXPECT_EQ(Converted(L"hkey_users\\S-1\\Qor"), L"HKU\\S-1\\Qor");
    EXPECT_EQ(Converted(L"HKEY_CURRENT_USER\\A\\"), L"HKCU\\A\\");
    EXPECT_EQ(Converted(L"HKEY_CURRENT_CONFIG\\A\\"), L"HKCC\\A\\");
}

TEST(KeyName, ClassesAreRewrittenToTheMachinesKey)
{
    EXPECT_EQ(Converted(L"HKCR\\.txt\\"), L"HKLM\\SOFTWARE\\Classes\\.txt\\");
    EXPECT_EQ(Converted(L"HKEY_CLASSES_ROOT\\.txt\\Content Type"), L"HKLM\\SOFTWARE\\Classes\\.txt\\Content Type");
}

TEST(KeyName, RepeatedBackslashesBecomeOne)
{
    EXPECT_EQ(Converted(L"HKCU\\\\Software\\\\\\Qor\\\\"), L"HKCU\\Software\\Qor\\");
}

TEST(KeyName, UnknownRootsAreRefused)
{
    for (LPCWSTR entry : {L"", L"Software\\Qor\\", L"HKXX\\Software\\", L"HKCU", L"HKCUSoftware\\",
                          L"\\HKCU\\Software\\", L"HKEY_PERFORMANCE_DATA\\A\\"}) {
        EXPECT_EQ(Refusal(entry), static_cast<DWORD>(ERROR_INVALID_PARAMETER)) << entry;
    }
}

TEST(KeyName, WholeRootsAreRefused)
{
    for (LPCWSTR entry : {L"HKCU\\", L"HKLM\\", L"HKU\\", L"HKCC\\", L"HKCR\\", L"HKCU\\\\\\"}) {
        EXPECT_EQ(Refusal(entry), static_cast<DWORD>(ERROR_NOT_SUPPORTED)) << entry;
    }
}

TEST(KeyName, DirectChildrenOfMachineAndUsersAreRefused)
{
    for (LPCWSTR entry : {L"HKLM\\SOFTWARE\\", L"HKLM\\Value", L"HKU\\.DEFAULT\\", L"HKU\\\\.DEFAULT\\"}) {
        EXPECT_EQ(Refusal(entry), static_cast<DWORD>(ERROR_NOT_SUPPORTED)) << entry;
    }
}

TEST(KeyName, TooLongNamesAreRefused)
{
    const CString longest(L'k', 255);
    EXPECT_EQ(Refusal(L"HKCU\\" + CString(L'k', 256) + L"\\"), static_cast<DWORD>(ERROR_INVALID_NAME));
    EXPECT_EQ(Refusal(L"HKCU\\A\\" + CString(L'v', 16384)), static_cast<DWORD>(ERROR_INVALID_NAME));
    EXPECT_EQ(Converted(L"HKCU\\" + longest + L"\\"), std::wstring((L"HKCU\\" + longest + L"\\").GetString()));
    const CString longValue = L"HKCU\\A\\" + CString(L'v', 16383);
    EXPECT_EQ(Converted(longValue), longValue.GetString());
}

TEST(KeyName, NullCharacterIsRefused)
{
    EXPECT_EQ(Refusal(CString(L"HKCU\\A\0B\\", 9)), static_cast<DWORD>(ERROR_INVALID_NAME));
}
