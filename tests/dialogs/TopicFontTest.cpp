#include "TestDialogs.h"

#include <tests/support/Imports.h>

// The topic font is made once in a process, so what happens when it cannot be made needs a program of its own, and the
// steps of its one test follow from each other.
namespace
{

int g_failures = 0; // how many calls fail from now on

HFONT WINAPI MakeOrFail(const LOGFONTW* font)
{
    if (g_failures > 0) {
        --g_failures;
        return nullptr;
    }
    return ::CreateFontIndirectW(font);
}

HFONT FontHandle(CWnd& dialog, UINT id)
{
    return reinterpret_cast<HFONT>(dialog.SendDlgItemMessage(static_cast<int>(id), WM_GETFONT));
}

LOGFONTW FontOf(CWnd& dialog, UINT id)
{
    LOGFONTW font = {};
    ::GetObjectW(FontHandle(dialog, id), sizeof(font), &font);
    return font;
}

TEST(TopicFont, IsTriedAgainUntilItOrTheStockFaceCanBeMade)
{
    CTestBaseDlg dialog;
    ASSERT_TRUE(dialog.Create(IDD_PLAIN));
    const ts::ReplacedImport hook(L"afx.dll", "CreateFontIndirectW", &MakeOrFail);

    const HFONT before = FontHandle(dialog, IDC_FIRST);
    g_failures = 2;
    QorSetTopicCtrl(&dialog, IDC_FIRST, L"Topic", -30);
    EXPECT_EQ(0, g_failures) << "both faces were tried";
    EXPECT_EQ(before, FontHandle(dialog, IDC_FIRST));
    CString text;
    dialog.GetDlgItemText(IDC_FIRST, text);
    EXPECT_STREQ(L"Topic", text) << "the text does not need the font";

    // A control that does not exist needs no font and fixes no height.
    QorSetTopicCtrl(&dialog, 4242, nullptr, -31);

    LOGFONTW stock = {};
    ASSERT_NE(0, ::GetObjectW(::GetStockObject(DEFAULT_GUI_FONT), sizeof(stock), &stock));
    g_failures = 1;
    QorSetTopicCtrl(&dialog, IDC_FIRST, nullptr, -18);
    const LOGFONTW made = FontOf(dialog, IDC_FIRST);
    EXPECT_EQ(-18, made.lfHeight);
    EXPECT_EQ(700, made.lfWeight);
    EXPECT_STREQ(stock.lfFaceName, made.lfFaceName);
    EXPECT_EQ(stock.lfCharSet, made.lfCharSet);

    QorSetTopicCtrl(&dialog, IDC_SECOND, nullptr, -20);
    EXPECT_EQ(FontHandle(dialog, IDC_FIRST), FontHandle(dialog, IDC_SECOND));
}

} // namespace
