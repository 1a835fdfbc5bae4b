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
    ExpectPlace(dialog.Item(1100), 17, 28, 20, 20);
    ExpectPlace(dialog.Item(1101), 54, 28, 201, 60);
    ExpectType(dialog, IDOK, BS_DEFPUSHBUTTON);
    ExpectType(dialog, IDCANCEL, BS_PUSHBUTTON);
    ExpectType(dialog, 4, BS_PUSHBUTTON);
    EXPECT_EQ(0u, dialog.Item(4).style & WS_VISIBLE) << "the third button starts hidden";
    EXPECT_EQ(static_cast<DWORD>(SS_ICON), dialog.Item(1100).style & SS_TYPEMASK);
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
    ExpectPlace(dialog.Item(1150), 26, 40, 37, 35);
    ExpectPlace(dialog.Item(1151), 70, 42, 123, 32);
    ExpectPlace(dialog.Item(IDCANCEL), 155, 110, 50, 14);
    ExpectClass(dialog, 1150, L"sysanimate32");
    EXPECT_EQ(static_cast<DWORD>(WS_CHILD | WS_VISIBLE | ACS_TRANSPARENT | ACS_AUTOPLAY), dialog.Item(1150).style);
    EXPECT_FALSE(dialog.Has(IDOK));
}

TEST(ProgressTemplate, HasItsControlsAtTheirPlaces)
{
    const Template dialog = ReadTemplate(IDD_DLG_PROGRESS);
    EXPECT_EQ(271, dialog.cx);
    EXPECT_EQ(98, dialog.cy);
    ExpectPlace(dialog.Item(1151), 13, 28, 241, 8);
    ExpectPlace(dialog.Item(1006), 13, 39, 245, 13);
    ExpectPlace(dialog.Item(IDCANCEL), 208, 72, 50, 14);
    ExpectClass(dialog, 1006, L"msctls_progress32");
    EXPECT_EQ(static_cast<DWORD>(SS_WORDELLIPSIS), dialog.Item(1151).style & SS_ELLIPSISMASK);
    EXPECT_FALSE(dialog.Has(IDOK));
}

TEST(LogonTemplate, HasItsControls)
{
    const Template dialog = ReadTemplate(IDD_DLG_LOGON);
    EXPECT_EQ(266, dialog.cx);
    EXPECT_EQ(141, dialog.cy);
    for (DWORD id : {1151u, 1152u, 1154u}) {
        ExpectClass(dialog, id, L"static");
    }
    ExpectClass(dialog, 1153, L"edit");
    EXPECT_EQ(117, dialog.Item(1153).cx);
    EXPECT_EQ(12, dialog.Item(1153).cy);
    EXPECT_NE(0u, dialog.Item(1155).style & ES_PASSWORD);
    ExpectType(dialog, 1260, BS_AUTOCHECKBOX);
    ExpectType(dialog, IDOK, BS_DEFPUSHBUTTON);
    const TemplateItem& picture = dialog.Item(IDC_LOGON_PICTURE);
    EXPECT_EQ(262, picture.picture);
    EXPECT_LT(picture.x + picture.cx, dialog.Item(1153).x) << "the picture is at the left";
}

TEST(SheetTemplate, HasTheTabControlAndTheTwoButtons)
{
    const Template dialog = ReadTemplate(IDD_DLG_SHEET);
    ExpectClass(dialog, 1004, L"systabcontrol32");
    EXPECT_TRUE(dialog.Has(IDOK));
    EXPECT_EQ(3u, dialog.items.size());
}

TEST(RestrictTemplate, HasATitleAndEightCheckBoxes)
{
    const Template dialog = ReadTemplate(IDD_DLG_RESTRICT);
    EXPECT_EQ(210, dialog.cx);
    EXPECT_EQ(180, dialog.cy);
    ExpectClass(dialog, 1240, L"static");
    for (DWORD id = 1241; id <= 1248; ++id) {
        ExpectType(dialog, id, BS_AUTOCHECKBOX);
    }
}

TEST(UpdateTemplates, HaveTheirControls)
{
    const Template check = ReadTemplate(IDD_DLG_CHKUPDATE);
    EXPECT_EQ(202, check.cx);
    EXPECT_EQ(112, check.cy);
    ExpectClass(check, 1151, L"static");
    ExpectType(check, 1460, BS_AUTOCHECKBOX);
    const Template settings = ReadTemplate(IDD_DLG_UPDATE_SET);
    ExpectClass(settings, 1476, L"static");
    ExpectClass(settings, 1480, L"static");
    for (DWORD id : {1478u, 1479u, 1482u, 1483u}) {
        ExpectType(settings, id, BS_AUTORADIOBUTTON);
    }
}

TEST(BoxTemplates, HaveTheControlsThatTheirCodeFills)
{
    const Template about = ReadTemplate(IDD_DLG_ABOUTEX);
    for (DWORD id : {1200u, 1215u, 1223u, 1224u}) {
        ExpectClass(about, id, L"static");
    }
    EXPECT_TRUE(about.Has(IDOK));
    const Template web = ReadTemplate(IDD_DLG_WEB_MSG);
    EXPECT_EQ(static_cast<DWORD>(SS_ICON), web.Item(1100).style & SS_TYPEMASK);
    EXPECT_TRUE(web.Has(IDOK));
}

TEST(UserTemplate, HasItsControls)
{
    const Template dialog = ReadTemplate(IDD_DLG_USERINFO);
    for (DWORD id : {1153u, 1389u, 1155u, 1391u}) {
        ExpectClass(dialog, id, L"edit");
    }
    EXPECT_NE(0u, dialog.Item(1155).style & ES_PASSWORD);
    EXPECT_NE(0u, dialog.Item(1391).style & ES_PASSWORD);
    ExpectType(dialog, 1395, BS_PUSHBUTTON);
    ExpectType(dialog, 1396, BS_PUSHBUTTON);
    ExpectType(dialog, 1394, BS_AUTOCHECKBOX);
    ExpectClass(dialog, 1393, L"listbox");
    EXPECT_EQ(static_cast<DWORD>(LBS_OWNERDRAWFIXED | LBS_HASSTRINGS),
              dialog.Item(1393).style & (LBS_OWNERDRAWFIXED | LBS_OWNERDRAWVARIABLE | LBS_HASSTRINGS));
}

// A new account has no Reset and Change: the password fields take the description's width.
TEST(UserTemplate, LeavesTheButtonsBesideThePasswordsInTheWidthOfTheDescription)
{
    const Template dialog = ReadTemplate(IDD_DLG_USERINFO);
    const TemplateItem& description = dialog.Item(1389);
    EXPECT_EQ(description.x, dialog.Item(1155).x);
    EXPECT_EQ(description.x + description.cx, dialog.Item(1395).x + dialog.Item(1395).cx);
    EXPECT_EQ(description.cy, dialog.Item(1155).cy);
}

TEST(TaskTemplate, HasTheControlsOfTheTable)
{
    const Template dialog = ReadTemplate(IDD_DLG_TASKINFO);
    for (DWORD id : {1401u, 1411u, 1413u, 1415u, 1417u, 1432u}) {
        ExpectClass(dialog, id, L"edit");
    }
    for (DWORD id : {1403u, 1405u, 1409u, 1419u, 1427u}) {
        ExpectClass(dialog, id, L"combobox");
    }
    for (DWORD id : {1406u, 1407u}) {
        ExpectClass(dialog, id, L"sysdatetimepick32");
    }
    for (DWORD id : {1408u, 1422u, 1424u, 1431u, 1434u}) {
        ExpectType(dialog, id, BS_AUTOCHECKBOX);
    }
    for (DWORD id : {1420u, 1421u, 1425u, 1426u, 1429u, 1430u}) {
        ExpectType(dialog, id, BS_AUTORADIOBUTTON);
    }
    for (DWORD id : {1410u, 1412u, 1414u, 1416u, 1418u, 1423u, 1433u}) {
        ExpectClass(dialog, id, L"static");
    }
    ExpectType(dialog, 1428, BS_GROUPBOX);
}

// A daily task shows 1422 from 30 pixels left of the date and 1420 from 40 pixels left of the time.
TEST(TaskTemplate, LeavesRoomForTheControlsOfADailyTask)
{
    const Template dialog = ReadTemplate(IDD_DLG_TASKINFO);
    const auto pixels = [](int units) { return units * 6 / 4; };
    const int date = pixels(dialog.Item(1406).x), time = pixels(dialog.Item(1407).x);
    EXPECT_GE(date - 30, pixels(kSide));
    EXPECT_LE(date - 30 + pixels(dialog.Item(1422).cx), time - 40);
    EXPECT_LE(time - 40 + pixels(dialog.Item(1420).cx), time);
    EXPECT_GT(dialog.Item(1421).y, dialog.Item(1407).y + 13) << "the second choice is under the time";
    EXPECT_EQ(dialog.Item(1420).x, dialog.Item(1421).x);
}

TEST(TaskTemplate, KeepsTheTwoChoicesOfASnapshotTaskTogether)
{
    const Template dialog = ReadTemplate(IDD_DLG_TASKINFO);
    EXPECT_GE(dialog.Item(1432).x, dialog.Item(1431).x + dialog.Item(1431).cx);
    EXPECT_GE(dialog.Item(1433).x, dialog.Item(1432).x + dialog.Item(1432).cx);
    EXPECT_GE(dialog.Item(1427).x, dialog.Item(1426).x + dialog.Item(1426).cx);
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
