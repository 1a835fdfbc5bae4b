#include <QorApi/QorApi.h>
#include <tests/support/Support.h>

#include <gtest/gtest.h>

#include <algorithm>

namespace
{

/** The product's own language data, in one language. */
class LanguageData : public testing::TestWithParam<LPCWSTR>
{
  protected:
    LanguageData() : m_default(L"QOR_LANG_DIR", nullptr) { EXPECT_TRUE(QorSetLanguage(GetParam())); }
    ~LanguageData() override { QorSetLanguage(nullptr); }

    static void ExpectKeys(LPCWSTR module, LPCWSTR section, std::initializer_list<LPCWSTR> keys)
    {
        const CXmlElem* element = QorGetModuleLang(module, section);
        for (LPCWSTR key : keys) {
            EXPECT_STRNE(element->GetChildData(key, 1), key) << section;
            EXPECT_STRNE(element->GetChildData(key, 1), L"") << section << " " << key;
        }
    }

    static void ExpectDialog(LPCWSTR dialog, std::initializer_list<LPCWSTR> keys)
    {
        ExpectKeys(L"QorUI.dll", dialog, keys);
    }

  private:
    ts::EnvironmentVariable m_default;
};

} // namespace

INSTANTIATE_TEST_SUITE_P(Languages, LanguageData, testing::Values(L"en", L"de", L"zh-CN"), [](const auto& info) {
    std::string name = ts::ToUtf8(info.param);
    name.erase(std::remove(name.begin(), name.end(), '-'), name.end());
    return name;
});

TEST_P(LanguageData, LanguageHasItsOwnFolder)
{
    EXPECT_STREQ(QorGetLanguage(), GetParam());
}

TEST_P(LanguageData, ProductTexts)
{
    ExpectKeys(L"Product", L"Strings",
               {L"STR_ERROR", L"STR_WARN", L"STR_INFO", L"STR_CONFIRM", L"STR_WAITING", L"STR_PWD_MISMATCH",
                L"STR_TASK_RESET", L"STR_TASK_SNAP", L"STR_TASK_DEFRAG", L"STR_NAME", L"STR_SIZE", L"STR_TYPE",
                L"STR_LOCATION"});
}

TEST_P(LanguageData, LibraryTexts)
{
    ExpectKeys(L"QorUI.dll", L"Strings",
               {L"STR_OK", L"STR_CANCEL", L"STR_RETRY", L"STR_IGNORE", L"STR_YES", L"STR_NO", L"STR_BACK", L"STR_NEXT",
                L"STR_FINISH", L"STR_OPERATE_FAIL", L"STR_INVALID_TEXT", L"STR_CHECKING_UPDATE", L"STR_PACKING"});
}

TEST_P(LanguageData, FormatsTakeOneText)
{
    CString text;
    text.Format(QorGetModuleLang(L"QorUI.dll", L"Strings")->GetChildData(L"STR_INVALID_TEXT", 1), L"<*>");
    EXPECT_NE(text.Find(L"<*>"), -1);
    text.Format(QorGetModuleLang(L"QorUI.dll", L"IDD_DLG_ABOUTEX")->GetChildData(L"STR_STATIC_SUPPOART", 1), L"<*>");
    EXPECT_NE(text.Find(L"<*>"), -1);
}

TEST_P(LanguageData, LogonDialog)
{
    ExpectDialog(L"IDD_DLG_LOGON", {L"Text", L"Ctrl1151", L"Ctrl1152", L"Ctrl1154", L"Ctrl1260", L"STR_LOGON_FAIL"});
}

TEST_P(LanguageData, RestrictDialog)
{
    ExpectDialog(L"IDD_DLG_RESTRICT", {L"Text", L"Ctrl1240", L"Ctrl1241", L"Ctrl1242", L"Ctrl1243", L"Ctrl1244",
                                       L"Ctrl1245", L"Ctrl1246", L"Ctrl1247", L"Ctrl1248"});
}

TEST_P(LanguageData, UpdateDialogs)
{
    ExpectDialog(L"IDD_DLG_CHKUPDATE", {L"Text", L"Ctrl1151", L"Ctrl1460"});
    ExpectDialog(L"IDD_DLG_UPDATE_SET",
                 {L"Text", L"Ctrl1476", L"Ctrl1478", L"Ctrl1479", L"Ctrl1480", L"Ctrl1482", L"Ctrl1483"});
}

TEST_P(LanguageData, InformationAndAboutBox)
{
    ExpectDialog(L"IDD_DLG_WEB_MSG", {L"Ctrl1225"});
    ExpectDialog(L"IDD_DLG_ABOUTEX", {L"STR_VERSION", L"STR_FREEWARE", L"STR_STATIC_SUPPOART"});
}

TEST_P(LanguageData, UserDialog)
{
    ExpectDialog(L"IDD_DLG_USERINFO",
                 {L"Ctrl1152",           L"Ctrl1154",           L"Ctrl1388",          L"Ctrl1390",
                  L"Ctrl1392",           L"Ctrl1394",           L"Ctrl1395",          L"Ctrl1396",
                  L"STR_USER_ADD",       L"STR_USER_PROP",      L"STR_PWD_CHANGED",   L"STR_RIGHT_ROLLSYS",
                  L"STR_RIGHT_TAKESNAP", L"STR_RIGHT_DELSNAP",  L"STR_RIGHT_RESETBL", L"STR_RIGHT_UPDATEBL",
                  L"STR_RIGHT_RESFILES", L"STR_RIGHT_SECURITY", L"STR_RIGHT_SCHROLL", L"STR_RIGHT_SCHSNAP",
                  L"STR_RIGHT_PASSWORD", L"STR_RIGHT_SETTINGS", L"STR_RIGHT_DELLOGS", L"STR_RIGHT_UNINSTALL"});
}

TEST_P(LanguageData, TaskDialog)
{
    ExpectDialog(
        L"IDD_DLG_TASKINFO",
        {L"Ctrl1400",         L"Ctrl1402",           L"Ctrl1404",          L"Ctrl1408",         L"Ctrl1410",
         L"Ctrl1412",         L"Ctrl1414",           L"Ctrl1416",          L"Ctrl1418",         L"Ctrl1420",
         L"Ctrl1421",         L"Ctrl1422",           L"Ctrl1424",          L"Ctrl1425",         L"Ctrl1426",
         L"Ctrl1428",         L"Ctrl1429",           L"Ctrl1430",          L"Ctrl1431",         L"Ctrl1434",
         L"STR_TASK_ADD",     L"STR_TASK_PROP",      L"STR_SUNDAY",        L"STR_MONDAY",       L"STR_TUESDAY",
         L"STR_WEDNESDAY",    L"STR_THURSDAY",       L"STR_FRIDAY",        L"STR_SATURDAY",     L"STR_EVERYDAY",
         L"STR_ONETIME",      L"STR_HOURLY",         L"STR_DAILY",         L"STR_WEEKLY",       L"STR_MONTHLY",
         L"STR_RESTART",      L"STR_LOGOFF",         L"STR_SHUTDOWN",      L"STR_SUSPEND_ROLL", L"STR_SUSPEND_DEFRAG",
         L"STR_SUSPEND_FROM", L"STR_SUSPEND_EXCEPT", L"STR_SETTING_ROLL",  L"STR_SETTING_SNAP", L"STR_SETTING_DEFRAG",
         L"STR_DAYS",         L"STR_HOURS",          L"STR_ROLL_BASELINE", L"STR_INVALID_TIME"});
}

TEST_P(LanguageData, RegistryKeysDialog)
{
    ExpectDialog(L"IDD_DLG_SYNCREG", {L"Text", L"STR_ADD", L"STR_DEL", L"STR_MISSING", L"STR_CANT_ADD_KEY"});
}
