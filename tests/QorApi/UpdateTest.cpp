#include "StoreFixture.h"

namespace
{

class UpdateTest : public StoreTest
{
  protected:
    /** Sets the source to a file with this content. */
    void Offer(const std::string& content)
    {
        ts::WriteBytes(File(L"update.xml"), content);
        SetSource(File(L"update.xml"));
    }

    static void SetSource(const std::wstring& source)
    {
        LogonBuiltin();
        ASSERT_EQ(QorSetInfo(QORINFO_UPDATE_SOURCE, source.c_str(), static_cast<int>(source.size() + 1) * 2), 0U);
    }

    static std::wstring Found()
    {
        WCHAR text[100] = {};
        EXPECT_EQ(QorGetInfo(QORINFO_UPDATE_VERSION, text, sizeof(text)), 0U);
        return text;
    }
};

} // namespace

TEST_F(UpdateTest, WithoutSourceNothingIsReached)
{
    EXPECT_EQ(QorCheckUpdate(), DWORD(ERROR_HOST_UNREACHABLE));
}

TEST_F(UpdateTest, NewerVersionIsKept)
{
    Offer("<QorUpdate Version=\"99.1\"/>");
    EXPECT_EQ(QorCheckUpdate(), 0U);
    EXPECT_EQ(Found(), L"99.1");
}

TEST_F(UpdateTest, SameOrOlderVersionIsNone)
{
    Offer("<QorUpdate Version=\"99.1\"/>");
    ASSERT_EQ(QorCheckUpdate(), 0U);
    Offer("<QorUpdate Version=\"0.9\"/>");
    EXPECT_EQ(QorCheckUpdate(), 0U);
    EXPECT_EQ(Found(), L"");
}

TEST_F(UpdateTest, DamagedDescriptionsAreRefused)
{
    for (const char* content :
         {"", "<QorUpdate", "<Other Version=\"99\"/>", "<QorUpdate/>", "<QorUpdate Version=\"x\"/>"}) {
        Offer(content);
        EXPECT_EQ(QorCheckUpdate(), DWORD(ERROR_INVALID_DATA)) << content;
    }
    EXPECT_EQ(Found(), L"");
}

TEST_F(UpdateTest, MissingFileGivesTheSystemsCode)
{
    SetSource(File(L"none.xml"));
    EXPECT_EQ(QorCheckUpdate(), DWORD(ERROR_FILE_NOT_FOUND));
}

TEST_F(UpdateTest, FileUrlIsRead)
{
    Offer("<QorUpdate Version=\"99.2\"/>");
    std::wstring url = L"file:///" + File(L"update.xml");
    std::replace(url.begin(), url.end(), L'\\', L'/');
    SetSource(url);
    EXPECT_EQ(QorCheckUpdate(), 0U);
    EXPECT_EQ(Found(), L"99.2");
}

TEST_F(UpdateTest, UnreachableServerGivesAnError)
{
    SetSource(L"http://127.0.0.1:9/update.xml");
    EXPECT_NE(QorCheckUpdate(), 0U);
    EXPECT_EQ(Found(), L"");
}

TEST_F(UpdateTest, UnknownProtocolGivesAnError)
{
    SetSource(L"none://server/update.xml");
    EXPECT_NE(QorCheckUpdate(), 0U);
}

TEST_F(UpdateTest, RunningCheckIsToldAndRefusesAnother)
{
    // A pipe without data keeps the first check reading for as long as the test wants.
    const std::wstring pipe = L"\\\\.\\pipe\\qor-update-" + std::to_wstring(GetCurrentProcessId());
    const HANDLE server =
        CreateNamedPipeW(pipe.c_str(), PIPE_ACCESS_OUTBOUND, PIPE_TYPE_BYTE | PIPE_WAIT, 1, 4096, 4096, 0, nullptr);
    ASSERT_NE(server, INVALID_HANDLE_VALUE);
    SetSource(pipe);
    DWORD value = 0;
    ASSERT_EQ(QorGetInfo(QORINFO_UPDATE_CHECK, &value, 4), 0U);
    EXPECT_EQ(value, 1U);

    const HANDLE thread = CreateThread(
        nullptr, 0, [](void*) { return QorCheckUpdate(); }, nullptr, 0, nullptr);
    ASSERT_TRUE(ConnectNamedPipe(server, nullptr) || GetLastError() == ERROR_PIPE_CONNECTED);
    ASSERT_EQ(QorGetInfo(QORINFO_UPDATE_CHECK, &value, 4), 0U);
    EXPECT_EQ(value, 0x0101U);
    EXPECT_EQ(QorCheckUpdate(), DWORD(ERROR_BUSY));

    CloseHandle(server);
    EXPECT_EQ(WaitForSingleObject(thread, 30000), WAIT_OBJECT_0);
    CloseHandle(thread);
    ASSERT_EQ(QorGetInfo(QORINFO_UPDATE_CHECK, &value, 4), 0U);
    EXPECT_EQ(value, 1U);
}
