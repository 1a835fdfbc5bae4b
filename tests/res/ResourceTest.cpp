#include <QorUI/res/resource.h>

#include <gtest/gtest.h>

#include <utility>

namespace
{

TEST(ResourceIds, HaveTheirNumbers)
{
    constexpr std::pair<int, int> kNumbers[] = {{IDB_RADIO, 200},
                                                {IDB_CHECK_TREE, 210},
                                                {IDB_PROGRESS, 212},
                                                {IDB_LOGON, 262},
                                                {IDR_AVI_WAITING, 280},
                                                {IDR_PNG_BANNER, 281},
                                                {IDR_PNG_BANNER2, 282},
                                                {IDR_PNG_MENUBAR, 283},
                                                {IDC_SHEET_TAB, 1004},
                                                {IDC_PROGRESS, 1006},
                                                {IDC_BOX_ICON, 1100},
                                                {IDC_BOX_TEXT, 1101},
                                                {IDC_WAIT_ANIMATION, 1150},
                                                {IDC_TEXT, 1151},
                                                {IDC_NAME_LABEL, 1152},
                                                {IDC_NAME, 1153},
                                                {IDC_PASSWORD_LABEL, 1154},
                                                {IDC_PASSWORD, 1155},
                                                {IDC_ABOUT_PRODUCT, 1200},
                                                {IDC_ABOUT_SUPPORT_LABEL, 1215},
                                                {IDC_ABOUT_WEB, 1223},
                                                {IDC_ABOUT_FREEWARE, 1224},
                                                {IDC_RESTRICT_TITLE, 1240},
                                                {IDC_RESTRICT_FIRST, 1241},
                                                {IDC_RESTRICT_LAST, 1248},
                                                {IDC_LOGON_REMEMBER, 1260},
                                                {IDC_LOGON_PICTURE, 1261},
                                                {IDC_USER_DESCRIPTION, 1389},
                                                {IDC_USER_CONFIRM, 1391},
                                                {IDC_USER_RIGHTS, 1393},
                                                {IDC_USER_ACTIVE, 1394},
                                                {IDC_USER_RESET, 1395},
                                                {IDC_USER_CHANGE, 1396},
                                                {IDC_TASK_NAME, 1401},
                                                {IDC_TASK_KIND, 1403},
                                                {IDC_TASK_SCHEDULE, 1405},
                                                {IDC_TASK_DATE, 1406},
                                                {IDC_TASK_TIME, 1407},
                                                {IDC_TASK_SUSPEND, 1408},
                                                {IDC_TASK_SUSPEND_DAY, 1409},
                                                {IDC_TASK_FROM_LABEL, 1410},
                                                {IDC_TASK_FIRST_HOUR, 1411},
                                                {IDC_TASK_TO_LABEL, 1412},
                                                {IDC_TASK_LAST_HOUR, 1413},
                                                {IDC_TASK_HOUR_LABEL, 1414},
                                                {IDC_TASK_DAY, 1415},
                                                {IDC_TASK_DAY_LABEL, 1416},
                                                {IDC_TASK_MINUTE, 1417},
                                                {IDC_TASK_MINUTE_LABEL, 1418},
                                                {IDC_TASK_WEEKDAY, 1419},
                                                {IDC_TASK_AT, 1420},
                                                {IDC_TASK_FIRST_BOOT, 1421},
                                                {IDC_TASK_WEEKDAYS, 1422},
                                                {IDC_TASK_SETTINGS_LABEL, 1423},
                                                {IDC_TASK_LOCK, 1424},
                                                {IDC_TASK_ROLL_LATEST, 1425},
                                                {IDC_TASK_ROLL_SNAPSHOT, 1426},
                                                {IDC_TASK_SNAPSHOT, 1427},
                                                {IDC_TASK_OTHERS_GROUP, 1428},
                                                {IDC_TASK_KEEP_ALL, 1429},
                                                {IDC_TASK_REMOVE_UNLOCKED, 1430},
                                                {IDC_TASK_KEEP, 1431},
                                                {IDC_TASK_KEEP_DAYS, 1432},
                                                {IDC_TASK_KEEP_UNIT, 1433},
                                                {IDC_TASK_SHUTDOWN, 1434},
                                                {IDC_UPDATE_AUTO_CHECK, 1460},
                                                {IDC_UPDATE_HEADING, 1476},
                                                {IDC_UPDATE_YES, 1478},
                                                {IDC_UPDATE_NO, 1479},
                                                {IDC_UPDATE_HEADING2, 1480},
                                                {IDC_UPDATE_NO2, 1482},
                                                {IDC_UPDATE_YES2, 1483}};
    for (const auto& [id, number] : kNumbers) {
        EXPECT_EQ(number, id);
    }
}

} // namespace
