#include <tests/hosts/console/ConsoleFixture.h>

namespace
{

class Shots : public Console
{
};

TEST_F(Shots, LeaveAPictureOfEveryPageAndBox)
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

TEST_F(Shots, IntoAnUnwritableFolderAreStatusOne)
{
    ts::WriteBytes(m_folder.File(L"taken"), "a file");
    EXPECT_EQ(1u, Run(L"--shots \"" + m_folder.File(L"taken") + L"\\below\"").status);
}

} // namespace
