#include <QorPub/Zip.h>
#include <QorUI/app/module/Messages.h>

#include <gtest/gtest.h>

namespace
{

TEST(Messages, HaveTheirNumbers)
{
    EXPECT_EQ(WM_USER + 300, WM_DRAWPARENTBACK);
    EXPECT_EQ(WM_USER + 301, WM_QORTRAY_CALLBACK);
    EXPECT_EQ(WM_USER + 302, WM_QORWAIT_END);
    EXPECT_EQ(WM_USER + 303, WM_SHEET_APPLY);
    EXPECT_EQ(WM_USER + 304, WM_QORTRAY_RECREATED);
    EXPECT_EQ(WM_USER + 305, WM_TABWND_SELCHANGE);
    EXPECT_EQ(WM_USER + 306, WM_PANEL_NOTIFY);
    EXPECT_EQ(WM_USER + 400, WM_QORZIP_PROGRESS);
    EXPECT_EQ(WM_QORZIP, WM_QORZIP_PROGRESS);
    EXPECT_EQ(0x52C, WM_DRAWPARENTBACK);
}

TEST(Messages, TaskbarCreatedIsTheRegisteredMessage)
{
    EXPECT_EQ(::RegisterWindowMessageW(L"TaskbarCreated"), WM_QOR_TASKBARCREATED);
}

} // namespace
