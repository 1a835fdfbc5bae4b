#include "ZipFixture.h"

TEST_F(Zip, ShortMemoryIsAnError)
{
    Make(L"a.txt", "1");
    const ts::MemoryShortage shortage(L"QorPub.dll");
    EXPECT_EQ(HRESULT_FROM_WIN32(ERROR_NOT_ENOUGH_MEMORY),
              m_zip.Start(nullptr, Source().c_str(), Archive().c_str(), kAll));
    EXPECT_TRUE(IsCleanFailure());
}

TEST_F(Zip, StartRefusesBadParameters)
{
    Make(L"a.txt", "1");
    EXPECT_EQ(E_INVALIDARG, m_zip.Start(nullptr, nullptr, Archive().c_str(), kAll));
    EXPECT_EQ(E_INVALIDARG, m_zip.Start(nullptr, Source().c_str(), L"", kAll));
    EXPECT_EQ(HRESULT_FROM_WIN32(ERROR_FILE_NOT_FOUND),
              m_zip.Start(nullptr, m_folder.File(L"none").c_str(), Archive().c_str(), kAll));
    EXPECT_EQ(HRESULT_FROM_WIN32(ERROR_PATH_NOT_FOUND),
              m_zip.Start(nullptr, Source().c_str(), m_folder.File(L"none\\x.zip").c_str(), kAll));
    EXPECT_EQ(HRESULT_FROM_WIN32(ERROR_INVALID_PARAMETER),
              m_zip.Start(nullptr, InSource(L"a.txt").c_str(), InSource(L"A.txt").c_str(), kAll));
    EXPECT_EQ(HRESULT_FROM_WIN32(ERROR_ACCESS_DENIED),
              m_zip.Start(nullptr, InSource(L"a.txt").c_str(), Source().c_str(), kAll));
    EXPECT_EQ(HRESULT_FROM_WIN32(ERROR_INVALID_WINDOW_HANDLE),
              m_zip.Start(reinterpret_cast<HWND>(0x7FFE), Source().c_str(), Archive().c_str(), kAll));
    EXPECT_FALSE(m_zip.IsRunning());
    EXPECT_TRUE(IsCleanFailure());
    EXPECT_EQ("1", ts::ReadBytes(InSource(L"a.txt")));
}

TEST_F(Zip, WorksWithoutWindow)
{
    Make(L"a.txt", "1");
    ASSERT_EQ(0, m_zip.Start(nullptr, Source().c_str(), Archive().c_str(), kAll));
    EXPECT_TRUE(m_zip.Wait(kLimit));
    EXPECT_FALSE(m_zip.IsRunning());
    EXPECT_EQ(0, m_zip.GetResult());
    EXPECT_EQ((List{L"a.txt"}), Names());
}

TEST_F(Zip, CancelEndsSoonAndLeavesNothing)
{
    Make(L"a.bin", std::string(2 * kMb, 'a'));
    Make(L"b.bin", std::string(2 * kMb, 'b'));
    ReportWindow window([&](const ReportLine& line) {
        if (line.kind == ZIPREPORT_FILE) {
            m_zip.Cancel();
        }
        return 0;
    });
    EXPECT_EQ(HRESULT_FROM_WIN32(ERROR_CANCELLED), Pack(window));
    EXPECT_EQ(1u, window.Count(ZIPREPORT_FILE));
    EXPECT_TRUE(IsCleanFailure());
}

TEST_F(Zip, OnlyOneJobAtATime)
{
    Make(L"a.txt", "1");
    LONG second = 0;
    ReportWindow window([&](const ReportLine& line) {
        if (line.kind == ZIPREPORT_FILE) {
            EXPECT_TRUE(m_zip.IsRunning());
            second = m_zip.Start(nullptr, Source().c_str(), m_folder.File(L"2.zip").c_str(), kAll);
        }
        return 0;
    });
    EXPECT_EQ(0, Pack(window));
    EXPECT_EQ(HRESULT_FROM_WIN32(ERROR_BUSY), second);
    EXPECT_FALSE(ts::FileExists(m_folder.File(L"2.zip")));
}

TEST_F(Zip, AnotherJobMayStartWhenTheEndIsReported)
{
    Make(L"a.txt", "1");
    ReportWindow window;
    EXPECT_EQ(0, Pack(window));
    ReportWindow again;
    EXPECT_EQ(0, Pack(again));
}

TEST_F(Zip, WaitServesTheReports)
{
    Make(L"a.txt", "1");
    ReportWindow window;
    ASSERT_EQ(0, m_zip.Start(window.Get(), Source().c_str(), Archive().c_str(), kAll));
    EXPECT_TRUE(m_zip.Wait(kLimit));
    EXPECT_EQ((List{L"a.txt"}), window.Texts(ZIPREPORT_FILE));
    EXPECT_EQ(0u, window.Count(ZIPREPORT_FINISHED));
    EXPECT_TRUE(ts::PumpUntil([&] { return window.IsFinished(); }));
}

TEST_F(Zip, WaitGivesUpAfterItsTime)
{
    Make(L"a.txt", "1");
    ReportWindow window;
    ASSERT_EQ(0, m_zip.Start(window.Get(), Source().c_str(), Archive().c_str(), kAll));
    // The window's thread does not look for messages meanwhile, so the job stands still at its first report.
    BOOL ended = TRUE;
    std::thread other([&] { ended = m_zip.Wait(20); });
    other.join();
    EXPECT_FALSE(ended);
    EXPECT_TRUE(m_zip.IsRunning());
    EXPECT_TRUE(m_zip.Wait(kLimit));
}

TEST_F(Zip, WaitInsideAReportDoesNotHang)
{
    Make(L"a.txt", "1");
    BOOL ended = FALSE;
    ReportWindow window([&](const ReportLine& line) {
        if (line.kind == ZIPREPORT_FILE) {
            m_zip.Cancel();
            ended = m_zip.Wait(kLimit);
        }
        return 0;
    });
    EXPECT_EQ(HRESULT_FROM_WIN32(ERROR_CANCELLED), Pack(window));
    EXPECT_TRUE(ended);
}

TEST_F(Zip, TheDestructorEndsTheJobQuietly)
{
    Make(L"a.bin", std::string(4 * kMb, 'a'));
    ReportWindow window;
    {
        CQorZip zip;
        ASSERT_EQ(0, zip.Start(window.Get(), Source().c_str(), Archive().c_str(), kAll));
    }
    ts::PumpPending();
    EXPECT_FALSE(window.IsFinished());
    EXPECT_TRUE(IsCleanFailure());
}

TEST_F(Zip, TheObjectMayBeDestroyedInsideAReport)
{
    Make(L"a.txt", "1");
    auto zip = std::make_unique<CQorZip>();
    ReportWindow window([&](const ReportLine& line) {
        if (line.kind == ZIPREPORT_FILE) {
            zip.reset();
        }
        return 0;
    });
    ASSERT_EQ(0, zip->Start(window.Get(), Source().c_str(), Archive().c_str(), kAll));
    EXPECT_TRUE(ts::PumpUntil([&] { return zip == nullptr; }));
    EXPECT_TRUE(IsCleanFailure());
}

TEST_F(Zip, ADestroyedWindowIsNotMissed)
{
    Make(L"a.txt", "1");
    ReportWindow window;
    ASSERT_EQ(0, m_zip.Start(window.Get(), Source().c_str(), Archive().c_str(), kAll));
    window.Destroy();
    EXPECT_TRUE(m_zip.Wait(kLimit));
    EXPECT_EQ(0, m_zip.GetResult());
}

TEST_F(Zip, ADestroyedWindowAnswersNoQuestionSoThePackingEnds)
{
    Make(L"held.txt", "1");
    HeldFile held(InSource(L"held.txt"));
    ReportWindow window;
    ASSERT_EQ(0, m_zip.Start(window.Get(), Source().c_str(), Archive().c_str(), kAll));
    window.Destroy();
    EXPECT_TRUE(m_zip.Wait(kLimit));
    EXPECT_EQ(HRESULT_FROM_WIN32(ERROR_CANCELLED), m_zip.GetResult());
}

TEST_F(Zip, AnIdleObjectAnswersQuietly)
{
    m_zip.Cancel();
    EXPECT_TRUE(m_zip.Wait(0));
    EXPECT_FALSE(m_zip.IsRunning());
    EXPECT_EQ(0, m_zip.GetResult());
}

TEST_F(Zip, PackingAndUnpackingLeaveNoHandles)
{
    Make(L"a.txt", "1");
    Make(L"held.txt", "2");
    HeldFile held(InSource(L"held.txt"));
    EXPECT_TRUE(ts::NoLeak(
        [&] {
            CQorZip zip;
            ReportWindow window([](const ReportLine& line) { return line.kind == ZIPREPORT_QUESTION ? IDIGNORE : 0; });
            EXPECT_EQ(0, zip.Start(window.Get(), Source().c_str(), Archive().c_str(), kAll));
            EXPECT_TRUE(zip.Wait(kLimit));
            EXPECT_EQ(0, CQorZip::Extract(Archive().c_str(), m_folder.File(L"out").c_str(), QORZIP_OVERWRITE));
        },
        50));
}
