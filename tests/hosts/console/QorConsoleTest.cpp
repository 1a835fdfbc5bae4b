#include <common/Owner.h>
#include <QorApi/QorApi.h>
#include <tests/support/Support.h>

#include <filesystem>
#include <set>

namespace
{

/** Runs the console with a store of its own. */
class Console : public testing::Test
{
  protected:
    ts::ProcessResult Run(const std::wstring& arguments, DWORD limit = 120000)
    {
        const ts::EnvironmentVariable store(L"QOR_STORE", m_folder.File(L"store.db").c_str());
        return ts::RunProcess(L"\"" + ts::ProgramFolder() + L"\\QorConsole.exe\" " + arguments, limit);
    }

    std::set<std::wstring> Pictures()
    {
        std::set<std::wstring> names;
        for (const auto& entry : std::filesystem::directory_iterator(m_folder.File(L"shots"))) {
            EXPECT_GT(entry.file_size(), 500u) << entry.path();
            names.insert(entry.path().filename().wstring());
        }
        return names;
    }

    /** How many snapshots the console's store has now. */
    int SnapshotCount()
    {
        const ts::EnvironmentVariable store(L"QOR_STORE", m_folder.File(L"store.db").c_str());
        int count = 0;
        const own::TaskMemory list(QorGetAllInfo(QORLIST_SNAPSHOTS, sizeof(_QORVEX_SNAP), &count, 0));
        return count;
    }

    ts::TempFolder m_folder;
};

TEST_F(Console, ABadOptionIsAClearMessageAndStatusTwo)
{
    const ts::ProcessResult result = Run(L"--fast");
    EXPECT_EQ(2u, result.status);
    EXPECT_NE(std::string::npos, result.output.find("unknown option '--fast'")) << result.output;
}

TEST_F(Console, AnUnknownLanguageIsStatusTwo)
{
    const ts::ProcessResult result = Run(L"--lang xx-YY");
    EXPECT_EQ(2u, result.status);
    EXPECT_NE(std::string::npos, result.output.find("xx-YY")) << result.output;
}

TEST_F(Console, AnUnknownPageIsStatusTwoAndThePagesAreNamed)
{
    const ts::ProcessResult result = Run(L"--page nothing");
    EXPECT_EQ(2u, result.status);
    EXPECT_NE(std::string::npos, result.output.find("'nothing'")) << result.output;
    EXPECT_NE(std::string::npos, result.output.find("buttons, links")) << result.output;
}

TEST_F(Console, HelpListsTheOptionsAndPages)
{
    const ts::ProcessResult result = Run(L"--help");
    EXPECT_EQ(0u, result.status);
    EXPECT_NE(std::string::npos, result.output.find("--shots")) << result.output;
    EXPECT_NE(std::string::npos, result.output.find("progress, info")) << result.output;
}

TEST_F(Console, ShotsLeavesAPictureOfEveryPageAndBox)
{
    const ts::ProcessResult result = Run(L"--demo --lang de --shots \"" + m_folder.File(L"shots") + L"\"", 480000);
    ASSERT_EQ(0u, result.status) << result.output;
    const std::set<std::wstring> pictures = Pictures();
    for (const wchar_t* name : {L"buttons.png",
                                L"links.png",
                                L"links-visited.png",
                                L"layout.png",
                                L"layout-dialog.png",
                                L"messages.png",
                                L"messagebox-error.png",
                                L"messagebox-yesno.png",
                                L"messagebox-code.png",
                                L"drawing.png",
                                L"drawing-larger-share.png",
                                L"account.png",
                                L"edits-disabled.png",
                                L"pickers-disabled.png",
                                L"calendar-no-selection.png",
                                L"clock-noon.png",
                                L"list.png",
                                L"progress.png",
                                L"info.png",
                                L"info-desktop.png",
                                L"calendar-months.png",
                                L"pickers-combo.png",
                                L"pickers-search.png"}) {
        EXPECT_EQ(1u, pictures.count(name)) << ts::ToUtf8(name);
    }
    EXPECT_EQ(5, SnapshotCount()); // those of --demo
}

TEST_F(Console, AnUnwritableFolderForShotsIsStatusOne)
{
    ts::WriteBytes(m_folder.File(L"taken"), "a file");
    EXPECT_EQ(1u, Run(L"--shots \"" + m_folder.File(L"taken") + L"\\below\"").status);
}

TEST_F(Console, StartsWithADamagedStoreAndLeavesItAlone)
{
    const std::string damage(4096, 'x');
    ts::WriteBytes(m_folder.File(L"store.db"), damage);
    const ts::ProcessResult result = Run(L"--shots \"" + m_folder.File(L"shots") + L"\"", 480000);
    EXPECT_EQ(0u, result.status) << result.output;
    EXPECT_NE(std::string::npos, result.output.find("the store")) << result.output;
    EXPECT_EQ(damage, ts::ReadBytes(m_folder.File(L"store.db")));
}

} // namespace
