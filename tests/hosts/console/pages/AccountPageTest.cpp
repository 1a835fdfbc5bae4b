#include <hosts/console/ControlIds.h>
#include <tests/hosts/console/PagesFixture.h>

namespace
{

using namespace ids::account;

class AccountPage : public Pages
{
  protected:
    void SetUp() override
    {
        Pages::SetUp();
        Show(L"account");
    }

    void TearDown() override
    {
        QorLogoff();
        Pages::TearDown();
    }
};

TEST_F(AccountPage, LogsOnAndOffByKeyboard)
{
    Press(kLogon, VK_RETURN); // the account of the fresh store has no password
    EXPECT_EQ(0, Text(kUser).Find(L"Logged on: Administrator"));
    Press(kLogoff, VK_SPACE);
    EXPECT_STREQ(L"Nobody is logged on.", Text(kUser));
}

TEST_F(AccountPage, EnterInThePasswordFieldLogsOn)
{
    Press(kPassword, VK_RETURN);
    EXPECT_EQ(0, Text(kUser).Find(L"Logged on: Administrator"));
}

TEST_F(AccountPage, AWrongPasswordIsRefusedInABox)
{
    TypeInto(kPassword, L"wrong");
    ts::ModalDriver driver;
    driver.InDialog([](HWND) { ts::Key(VK_ESCAPE); });
    Press(kLogon, VK_SPACE);
    EXPECT_TRUE(driver.Finished());
    EXPECT_STREQ(L"Nobody is logged on.", Text(kUser));
    EXPECT_EQ(Control(kLogon), ::GetFocus());
    Press(kPassword, VK_DELETE);
    Press(kLogon, VK_SPACE);
    EXPECT_STRNE(L"Nobody is logged on.", Text(kUser));
}

} // namespace
