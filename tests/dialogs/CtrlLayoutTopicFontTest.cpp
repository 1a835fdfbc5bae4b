#include "TestDialogs.h"

#include <tests/support/Imports.h>

#include <array>

// The topic font is made once in a process, so what happens when it cannot be made needs a program of its own, and the
// steps of its one test follow from each other.
namespace
{

int g_failures = 0; // how many calls fail from now on
std::vector<LOGFONTW> g_requests;

HFONT WINAPI MakeOrFail(const LOGFONTW* font)
{
    g_requests.push_back(*font);
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

/** All fields but the name of the face. */
std::array<LONG, 13> NumbersOf(const LOGFONTW& font)
{
    return {font.lfHeight,        font.lfWidth,     font.lfEscapement,    font.lfOrientation, font.lfWeight,
            font.lfItalic,        font.lfUnderline, font.lfStrikeOut,     font.lfCharSet,     font.lfOutPrecision,
            font.lfClipPrecision, font.lfQuality,   font.lfPitchAndFamily};
}

void ExpectRequest(const LOGFONTW& expected, const LOGFONTW& request)
{
    EXPECT_EQ(NumbersOf(expected), NumbersOf(request));
    EXPECT_STREQ(expected.lfFaceName, request.lfFaceName);
}

LOGFONTW StockFont()
{
    LOGFONTW font = {};
    EXPECT_NE(0, ::GetObjectW(::GetStockObject(DEFAULT_GUI_FONT), sizeof(font), &font));
    return font;
}

LOGFONTW Topic(LOGFONTW font, LONG height)
{
    font.lfHeight = height;
    font.lfWeight = FW_BOLD;
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
    ASSERT_EQ(2u, g_requests.size());
    LOGFONTW arial = {};
    ::lstrcpynW(arial.lfFaceName, L"Arial", LF_FACESIZE);
    ExpectRequest(Topic(arial, -30), g_requests[0]);
    ExpectRequest(Topic(StockFont(), -30), g_requests[1]);
    EXPECT_EQ(before, FontHandle(dialog, IDC_FIRST));
    CString text;
    dialog.GetDlgItemText(IDC_FIRST, text);
    EXPECT_STREQ(L"Topic", text) << "the text does not need the font";

    // A control that does not exist needs no font and fixes no height.
    QorSetTopicCtrl(&dialog, kNoSuchId, nullptr, -31);

    const LOGFONTW stock = StockFont();
    g_failures = 1;
    QorSetTopicCtrl(&dialog, IDC_FIRST, nullptr, -18);
    const LOGFONTW made = FontOf(dialog, IDC_FIRST);
    EXPECT_EQ(-18, made.lfHeight);
    EXPECT_EQ(FW_BOLD, made.lfWeight);
    EXPECT_STREQ(stock.lfFaceName, made.lfFaceName);
    EXPECT_EQ(stock.lfCharSet, made.lfCharSet);

    QorSetTopicCtrl(&dialog, IDC_SECOND, nullptr, -20);
    EXPECT_EQ(FontHandle(dialog, IDC_FIRST), FontHandle(dialog, IDC_SECOND));
}

} // namespace
