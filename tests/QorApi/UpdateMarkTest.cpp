#include "SettingsFixture.h"
#include "UpdateFixture.h"

#include <common/Owner.h>

namespace
{

using UpdateMarkSettingsTest = SettingsTest;
using UpdateMarkTest = UpdateTest;

} // namespace

TEST_F(UpdateMarkSettingsTest, RunningUpdateCheckIsNotStored)
{
    LogonBuiltin();
    ASSERT_EQ(WriteNumber(QORINFO_UPDATE_CHECK, 0x0100), kSuccess);
    EXPECT_EQ(ReadNumber(QORINFO_UPDATE_CHECK), 0U);
}

TEST_F(UpdateMarkTest, RunningCheckIsToldAndRefusesAnother)
{
    // A pipe without data keeps the first check reading for as long as the test wants.
    const std::wstring pipe = L"\\\\.\\pipe\\qor-update-" + std::to_wstring(GetCurrentProcessId());
    own::File server(
        CreateNamedPipeW(pipe.c_str(), PIPE_ACCESS_OUTBOUND, PIPE_TYPE_BYTE | PIPE_WAIT, 1, 4096, 4096, 0, nullptr));
    ASSERT_TRUE(server);
    SetSource(pipe);
    DWORD value = 0;
    ASSERT_EQ(QorGetInfo(QORINFO_UPDATE_CHECK, &value, 4), kSuccess);
    EXPECT_EQ(value, 1U);

    const own::KernelObject thread(CreateThread(
        nullptr, 0, [](void*) { return QorCheckUpdate(); }, nullptr, 0, nullptr));
    ASSERT_TRUE(ConnectNamedPipe(server.Get(), nullptr) || GetLastError() == ERROR_PIPE_CONNECTED);
    ASSERT_EQ(QorGetInfo(QORINFO_UPDATE_CHECK, &value, 4), kSuccess);
    EXPECT_EQ(value, 0x0101U);
    EXPECT_EQ(QorCheckUpdate(), DWORD(ERROR_BUSY));

    server.Reset();
    EXPECT_EQ(WaitForSingleObject(thread.Get(), 30000), WAIT_OBJECT_0);
    ASSERT_EQ(QorGetInfo(QORINFO_UPDATE_CHECK, &value, 4), kSuccess);
    EXPECT_EQ(value, 1U);
}
