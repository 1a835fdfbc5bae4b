#include "MsgBoxes.h"

#include <tests/support/Imports.h>
#include <tests/support/Resources.h>

#include <stdexcept>

// Where the resources of the library's dialogs come from, seen by its message box.
namespace
{

TEST(MsgBox, ComesFromTheLibraryThoughTheHostHasADialogOfThatNumber)
{
    ASSERT_NE(nullptr, ::FindResourceW(nullptr, MAKEINTRESOURCEW(IDD_OF_THE_HOST), RT_DIALOG));
    Shown shown;
    EXPECT_EQ(UINT{IDOK}, Answer(L"What happened", QOR_MSG_INFO, 0, IDOK, shown));
    EXPECT_STREQ(L"What happened", shown.text);
}

TEST(MsgBox, ResourcesComeFromTheHostWhileItIsOpenAndAfterwards)
{
    const HINSTANCE host = ts::Program();
    const HINSTANCE before = AfxGetModuleState()->m_hCurrentResourceHandle;
    AfxGetModuleState()->m_hCurrentResourceHandle = ::GetModuleHandleW(L"kernel32.dll");
    HINSTANCE during = nullptr;
    ts::ModalDriver driver;
    driver.InDialog([&during](HWND box) {
        during = AfxGetModuleState()->m_hCurrentResourceHandle;
        ::PostMessageW(box, WM_COMMAND, IDOK, 0);
    });
    QorMsgBox(L"x", QOR_MSG_INFO, 0, nullptr);
    EXPECT_EQ(host, during);
    EXPECT_EQ(host, AfxGetModuleState()->m_hCurrentResourceHandle);
    AfxGetModuleState()->m_hCurrentResourceHandle = before;
}

HWND WINAPI ThrowInstead(HINSTANCE, LPCDLGTEMPLATEW, HWND, DLGPROC, LPARAM)
{
    throw std::runtime_error("no dialog");
}

TEST(MsgBox, ResourcesComeFromTheHostWhenAnExceptionLeaves)
{
    const HINSTANCE before = AfxGetModuleState()->m_hCurrentResourceHandle;
    const ts::ReplacedImport hook(L"afx.dll", "CreateDialogIndirectParamW", &ThrowInstead);
    EXPECT_THROW(QorMsgBox(L"x", QOR_MSG_INFO, 0, nullptr), std::runtime_error);
    EXPECT_EQ(ts::Program(), AfxGetModuleState()->m_hCurrentResourceHandle);
    AfxGetModuleState()->m_hCurrentResourceHandle = before;
}

} // namespace
