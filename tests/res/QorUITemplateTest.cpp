#include "Template.h"

#include <QorUI/res/resource.h>

#include <gtest/gtest.h>

#include <commctrl.h>

#include <cstdlib>
#include <vector>

namespace
{
constexpr UINT kTemplates[] = {IDD_DLG_MSGBOX,    IDD_DLG_LOGON,    IDD_DLG_WAITING,  IDD_DLG_ABOUTEX,
                               IDD_DLG_SHEET,     IDD_DLG_RESTRICT, IDD_DLG_TASKINFO, IDD_DLG_WEB_MSG,
                               IDD_DLG_CHKUPDATE, IDD_DLG_USERINFO, IDD_DLG_SYNCREG,  IDD_DLG_UPDATE_SET,
                               IDD_DLG_PROGRESS};

// Dialog units that the frame takes with the base unit 6 x 13: the caption band of 32 pixels, the band of 51 pixels
// with the buttons, and 9 pixels at the sides.
constexpr int kCaption = 20, kButtonBand = 31, kSide = 6;

void ExpectPlace(const TemplateItem& item, int x, int y, int cx, int cy)
{
    EXPECT_EQ(x, item.x) << "control " << item.id;
    EXPECT_EQ(y, item.y) << "control " << item.id;
    EXPECT_EQ(cx, item.cx) << "control " << item.id;
    EXPECT_EQ(cy, item.cy) << "control " << item.id;
}

void ExpectClass(const Template& dialog, DWORD id, const wchar_t* name)
{
    EXPECT_EQ(std::wstring(name), dialog.Item(id).className) << "control " << id;
}

void ExpectType(const Template& dialog, DWORD id, DWORD type)
{
    EXPECT_TRUE(dialog.Item(id).IsButton(type)) << "control " << id;
}

} // namespace

class TemplateTest : public testing::TestWithParam<UINT>
{
  protected:
    const Template m_dialog = ReadTemplate(GetParam());
};

INSTANTIATE_TEST_SUITE_P(All, TemplateTest, testing::ValuesIn(kTemplates));

TEST_P(TemplateTest, IsABorderlessPopupInTheShellFontWithoutCaption)
{
    EXPECT_EQ(static_cast<DWORD>(WS_POPUP | WS_SYSMENU | DS_SETFONT | DS_FIXEDSYS), m_dialog.style);
    EXPECT_EQ(L"MS Shell Dlg", m_dialog.font);
    EXPECT_EQ(8, m_dialog.pointSize);
    EXPECT_EQ(L"", m_dialog.caption);
}

TEST_P(TemplateTest, HasCancelAndAtMostOneDefaultButton)
{
    EXPECT_TRUE(m_dialog.Has(IDCANCEL));
    int defaults = 0;
    for (const TemplateItem& item : m_dialog.items) {
        defaults += item.IsButton(BS_DEFPUSHBUTTON);
    }
    EXPECT_LE(defaults, 1);
}

TEST_P(TemplateTest, KeepsItsControlsInsideTheFrame)
{
    for (const TemplateItem& item : m_dialog.items) {
        // A combo box states the height of its open list.
        const int height = item.className == L"combobox" ? 13 : item.cy;
        const bool inBand = item.y >= m_dialog.cy - kButtonBand;
        EXPECT_GE(item.x, kSide) << "control " << item.id;
        EXPECT_GE(item.y, kCaption) << "control " << item.id;
        EXPECT_LE(item.x + item.cx, m_dialog.cx - kSide) << "control " << item.id;
        EXPECT_LE(item.y + height, inBand ? m_dialog.cy - kSide : m_dialog.cy - kButtonBand + 1)
            << "control " << item.id;
    }
}

// A radio button that becomes checked unchecks every control of its group whose style has bit 0 or 3.
TEST_P(TemplateTest, HasOnlyRadioButtonsInTheGroupOfARadioButton)
{
    const TemplateItem* first = nullptr;
    for (const TemplateItem& item : m_dialog.items) {
        const bool radio = item.IsButton(BS_AUTORADIOBUTTON);
        if (item.style & WS_GROUP) {
            first = radio ? &item : nullptr;
        }
        EXPECT_EQ(first != nullptr, radio) << "control " << item.id << " after the start of the last group";
    }
}

TEST_P(TemplateTest, GivesEveryInputTheClientEdgeThatTheFlatBorderReplaces)
{
    for (const TemplateItem& item : m_dialog.items) {
        if (item.className == L"edit" || item.className == L"listbox" || item.className == L"sysdatetimepick32") {
            EXPECT_EQ(static_cast<DWORD>(WS_EX_CLIENTEDGE), item.exStyle) << "control " << item.id;
            EXPECT_EQ(0u, item.style & WS_BORDER) << "control " << item.id;
        }
    }
}

TEST(MessageBoxTemplate, HasItsControlsAtTheirPlaces)
{
    const Template dialog = ReadTemplate(IDD_DLG_MSGBOX);
    EXPECT_EQ(265, dialog.cx);
    EXPECT_EQ(121, dialog.cy);
    EXPECT_EQ(5u, dialog.items.size());
    ExpectPlace(dialog.Item(IDCANCEL), 188, 95, 50, 14);
    ExpectPlace(dialog.Item(IDOK), 134, 95, 50, 14);
    ExpectPlace(dialog.Item(4), 80, 95, 50, 14);
    ExpectPlace(dialog.Item(IDC_BOX_ICON), 17, 28, 20, 20);
    ExpectPlace(dialog.Item(IDC_BOX_TEXT), 54, 28, 201, 60);
    ExpectType(dialog, IDOK, BS_DEFPUSHBUTTON);
    ExpectType(dialog, IDCANCEL, BS_PUSHBUTTON);
    ExpectType(dialog, 4, BS_PUSHBUTTON);
    EXPECT_EQ(0u, dialog.Item(4).style & WS_VISIBLE) << "the third button starts hidden";
    EXPECT_EQ(static_cast<DWORD>(SS_ICON), dialog.Item(IDC_BOX_ICON).style & SS_TYPEMASK);
}

TEST(MessageBoxTemplate, GivesTheDefaultButtonTheFirstFocus)
{
    const Template dialog = ReadTemplate(IDD_DLG_MSGBOX);
    for (const TemplateItem& item : dialog.items) {
        if ((item.style & WS_VISIBLE) && (item.style & WS_TABSTOP)) {
            EXPECT_EQ(static_cast<DWORD>(IDOK), item.id);
            break;
        }
    }
}

TEST(WaitingTemplate, HasItsControlsAtTheirPlaces)
{
    const Template dialog = ReadTemplate(IDD_DLG_WAITING);
    EXPECT_EQ(218, dialog.cx);
    EXPECT_EQ(134, dialog.cy);
    ExpectPlace(dialog.Item(IDC_WAIT_ANIMATION), 26, 40, 37, 35);
    ExpectPlace(dialog.Item(IDC_TEXT), 70, 42, 123, 32);
    ExpectPlace(dialog.Item(IDCANCEL), 155, 110, 50, 14);
    ExpectClass(dialog, IDC_WAIT_ANIMATION, L"sysanimate32");
    EXPECT_EQ(static_cast<DWORD>(WS_CHILD | WS_VISIBLE | ACS_TRANSPARENT | ACS_AUTOPLAY),
              dialog.Item(IDC_WAIT_ANIMATION).style);
    EXPECT_FALSE(dialog.Has(IDOK));
}

TEST(ProgressTemplate, HasItsControlsAtTheirPlaces)
{
    const Template dialog = ReadTemplate(IDD_DLG_PROGRESS);
    EXPECT_EQ(271, dialog.cx);
    EXPECT_EQ(98, dialog.cy);
    ExpectPlace(dialog.Item(IDC_TEXT), 13, 28, 241, 8);
    ExpectPlace(dialog.Item(IDC_PROGRESS), 13, 39, 245, 13);
    ExpectPlace(dialog.Item(IDCANCEL), 208, 72, 50, 14);
    ExpectClass(dialog, IDC_PROGRESS, L"msctls_progress32");
    EXPECT_EQ(static_cast<DWORD>(SS_WORDELLIPSIS), dialog.Item(IDC_TEXT).style & SS_ELLIPSISMASK);
    EXPECT_FALSE(dialog.Has(IDOK));
}

TEST(LogonTemplate, HasItsControls)
{
    const Template dialog = ReadTemplate(IDD_DLG_LOGON);
    EXPECT_EQ(266, dialog.cx);
    EXPECT_EQ(141, dialog.cy);
    for (DWORD id : {IDC_TEXT, IDC_NAME_LABEL, IDC_PASSWORD_LABEL}) {
        ExpectClass(dialog, id, L"static");
    }
    ExpectClass(dialog, IDC_NAME, L"edit");
    EXPECT_EQ(117, dialog.Item(IDC_NAME).cx);
    EXPECT_EQ(12, dialog.Item(IDC_NAME).cy);
    EXPECT_NE(0u, dialog.Item(IDC_PASSWORD).style & ES_PASSWORD);
    ExpectType(dialog, IDC_LOGON_REMEMBER, BS_AUTOCHECKBOX);
    ExpectType(dialog, IDOK, BS_DEFPUSHBUTTON);
    const TemplateItem& picture = dialog.Item(IDC_LOGON_PICTURE);
    EXPECT_EQ(IDB_LOGON, picture.picture);
    EXPECT_LT(picture.x + picture.cx, dialog.Item(IDC_NAME).x) << "the picture is at the left";
}

TEST(SheetTemplate, HasTheTabControlAndTheTwoButtons)
{
    const Template dialog = ReadTemplate(IDD_DLG_SHEET);
    ExpectClass(dialog, IDC_SHEET_TAB, L"systabcontrol32");
    EXPECT_TRUE(dialog.Has(IDOK));
    EXPECT_EQ(3u, dialog.items.size());
}

TEST(RestrictTemplate, HasATitleAndEightCheckBoxes)
{
    const Template dialog = ReadTemplate(IDD_DLG_RESTRICT);
    EXPECT_EQ(210, dialog.cx);
    EXPECT_EQ(180, dialog.cy);
    ExpectClass(dialog, IDC_RESTRICT_TITLE, L"static");
    for (DWORD id = IDC_RESTRICT_FIRST; id <= IDC_RESTRICT_LAST; ++id) {
        ExpectType(dialog, id, BS_AUTOCHECKBOX);
    }
}

TEST(UpdateTemplates, HaveTheirControls)
{
    const Template check = ReadTemplate(IDD_DLG_CHKUPDATE);
    EXPECT_EQ(202, check.cx);
    EXPECT_EQ(112, check.cy);
    ExpectClass(check, IDC_TEXT, L"static");
    ExpectType(check, IDC_UPDATE_AUTO_CHECK, BS_AUTOCHECKBOX);
    const Template settings = ReadTemplate(IDD_DLG_UPDATE_SET);
    ExpectClass(settings, IDC_UPDATE_HEADING, L"static");
    ExpectClass(settings, IDC_UPDATE_HEADING2, L"static");
    for (DWORD id : {IDC_UPDATE_YES, IDC_UPDATE_NO, IDC_UPDATE_NO2, IDC_UPDATE_YES2}) {
        ExpectType(settings, id, BS_AUTORADIOBUTTON);
    }
}

TEST(BoxTemplates, HaveTheControlsThatTheirCodeFills)
{
    const Template about = ReadTemplate(IDD_DLG_ABOUTEX);
    for (DWORD id : {IDC_ABOUT_PRODUCT, IDC_ABOUT_SUPPORT_LABEL, IDC_ABOUT_WEB, IDC_ABOUT_FREEWARE}) {
        ExpectClass(about, id, L"static");
    }
    EXPECT_TRUE(about.Has(IDOK));
    const Template web = ReadTemplate(IDD_DLG_WEB_MSG);
    EXPECT_EQ(static_cast<DWORD>(SS_ICON), web.Item(IDC_BOX_ICON).style & SS_TYPEMASK);
    EXPECT_TRUE(web.Has(IDOK));
}

TEST(UserTemplate, HasItsControls)
{
    const Template dialog = ReadTemplate(IDD_DLG_USERINFO);
    for (DWORD id : {IDC_NAME, IDC_USER_DESCRIPTION, IDC_PASSWORD, IDC_USER_CONFIRM}) {
        ExpectClass(dialog, id, L"edit");
    }
    EXPECT_NE(0u, dialog.Item(IDC_PASSWORD).style & ES_PASSWORD);
    EXPECT_NE(0u, dialog.Item(IDC_USER_CONFIRM).style & ES_PASSWORD);
    ExpectType(dialog, IDC_USER_RESET, BS_PUSHBUTTON);
    ExpectType(dialog, IDC_USER_CHANGE, BS_PUSHBUTTON);
    ExpectType(dialog, IDC_USER_ACTIVE, BS_AUTOCHECKBOX);
    ExpectClass(dialog, IDC_USER_RIGHTS, L"listbox");
    EXPECT_EQ(static_cast<DWORD>(LBS_OWNERDRAWFIXED | LBS_HASSTRINGS),
              dialog.Item(IDC_USER_RIGHTS).style & (LBS_OWNERDRAWFIXED | LBS_OWNERDRAWVARIABLE | LBS_HASSTRINGS));
}

// A new account has no Reset and Change: the password fields take the description's width.
TEST(UserTemplate, LeavesTheButtonsBesideThePasswordsInTheWidthOfTheDescription)
{
    const Template dialog = ReadTemplate(IDD_DLG_USERINFO);
    const TemplateItem& description = dialog.Item(IDC_USER_DESCRIPTION);
    EXPECT_EQ(description.x, dialog.Item(IDC_PASSWORD).x);
    EXPECT_EQ(description.x + description.cx, dialog.Item(IDC_USER_RESET).x + dialog.Item(IDC_USER_RESET).cx);
    EXPECT_EQ(description.cy, dialog.Item(IDC_PASSWORD).cy);
}

TEST(TaskTemplate, HasTheControlsOfTheTable)
{
    const Template dialog = ReadTemplate(IDD_DLG_TASKINFO);
    for (DWORD id :
         {IDC_TASK_NAME, IDC_TASK_FIRST_HOUR, IDC_TASK_LAST_HOUR, IDC_TASK_DAY, IDC_TASK_MINUTE, IDC_TASK_KEEP_DAYS}) {
        ExpectClass(dialog, id, L"edit");
    }
    for (DWORD id : {IDC_TASK_KIND, IDC_TASK_SCHEDULE, IDC_TASK_SUSPEND_DAY, IDC_TASK_WEEKDAY, IDC_TASK_SNAPSHOT}) {
        ExpectClass(dialog, id, L"combobox");
    }
    for (DWORD id : {IDC_TASK_DATE, IDC_TASK_TIME}) {
        ExpectClass(dialog, id, L"sysdatetimepick32");
    }
    for (DWORD id : {IDC_TASK_SUSPEND, IDC_TASK_WEEKDAYS, IDC_TASK_LOCK, IDC_TASK_KEEP, IDC_TASK_SHUTDOWN}) {
        ExpectType(dialog, id, BS_AUTOCHECKBOX);
    }
    for (DWORD id : {IDC_TASK_AT, IDC_TASK_FIRST_BOOT, IDC_TASK_ROLL_LATEST, IDC_TASK_ROLL_SNAPSHOT, IDC_TASK_KEEP_ALL,
                     IDC_TASK_REMOVE_UNLOCKED}) {
        ExpectType(dialog, id, BS_AUTORADIOBUTTON);
    }
    for (DWORD id : {IDC_TASK_FROM_LABEL, IDC_TASK_TO_LABEL, IDC_TASK_HOUR_LABEL, IDC_TASK_DAY_LABEL,
                     IDC_TASK_MINUTE_LABEL, IDC_TASK_SETTINGS_LABEL, IDC_TASK_KEEP_UNIT}) {
        ExpectClass(dialog, id, L"static");
    }
    ExpectType(dialog, IDC_TASK_OTHERS_GROUP, BS_GROUPBOX);
}

// A daily task shows the weekdays from 30 pixels left of the date and "at" from 40 pixels left of the time.
TEST(TaskTemplate, LeavesRoomForTheControlsOfADailyTask)
{
    const Template dialog = ReadTemplate(IDD_DLG_TASKINFO);
    const auto pixels = [](int units) { return units * 6 / 4; };
    const int date = pixels(dialog.Item(IDC_TASK_DATE).x), time = pixels(dialog.Item(IDC_TASK_TIME).x);
    EXPECT_GE(date - 30, pixels(kSide));
    EXPECT_LE(date - 30 + pixels(dialog.Item(IDC_TASK_WEEKDAYS).cx), time - 40);
    EXPECT_LE(time - 40 + pixels(dialog.Item(IDC_TASK_AT).cx), time);
    EXPECT_GT(dialog.Item(IDC_TASK_FIRST_BOOT).y, dialog.Item(IDC_TASK_TIME).y + 13)
        << "the second choice is under the time";
    EXPECT_EQ(dialog.Item(IDC_TASK_AT).x, dialog.Item(IDC_TASK_FIRST_BOOT).x);
}

TEST(TaskTemplate, KeepsTheTwoChoicesOfASnapshotTaskTogether)
{
    const Template dialog = ReadTemplate(IDD_DLG_TASKINFO);
    EXPECT_GE(dialog.Item(IDC_TASK_KEEP_DAYS).x, dialog.Item(IDC_TASK_KEEP).x + dialog.Item(IDC_TASK_KEEP).cx);
    EXPECT_GE(dialog.Item(IDC_TASK_KEEP_UNIT).x,
              dialog.Item(IDC_TASK_KEEP_DAYS).x + dialog.Item(IDC_TASK_KEEP_DAYS).cx);
    EXPECT_GE(dialog.Item(IDC_TASK_SNAPSHOT).x,
              dialog.Item(IDC_TASK_ROLL_SNAPSHOT).x + dialog.Item(IDC_TASK_ROLL_SNAPSHOT).cx);
}

TEST(RegistryTemplate, LeavesItsBodyBelowTheTextToTheCode)
{
    const Template dialog = ReadTemplate(IDD_DLG_SYNCREG);
    for (const TemplateItem& item : dialog.items) {
        if (item.id == IDOK || item.id == IDCANCEL) {
            continue;
        }
        EXPECT_LE((item.y + item.cy) * 13 / 8, 90) << "the menu bar is at 90 pixels";
    }
}
