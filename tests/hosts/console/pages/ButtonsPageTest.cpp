#include <hosts/console/ControlIds.h>
#include <tests/hosts/console/PagesFixture.h>

#include <vector>

namespace
{

using namespace ids::buttons;

class ButtonsPage : public Pages
{
  protected:
    void SetUp() override
    {
        Pages::SetUp();
        Show(L"buttons");
    }

    void ExpectClick(const wchar_t* name)
    {
        CString text;
        text.Format(L"%s: click number %d", name, ++m_clicks);
        EXPECT_STREQ(text, Text(kResult));
    }

    bool IsChecked(UINT id) { return ::SendMessageW(Control(id), BM_GETCHECK, 0, 0) == BST_CHECKED; }

    int m_clicks = 0;
};

TEST_F(ButtonsPage, SpaceAndEnterPressEveryKind)
{
    struct
    {
        UINT id;
        const wchar_t* name;
    } const buttons[] = {{kLivePush, L"Press me"},
                         {kLiveCommand, L"Take a snapshot"},
                         {kLiveCheck, L"Check me"},
                         {kLiveBitmap, L"Bitmap"}};
    for (const auto& button : buttons) {
        Press(button.id, VK_SPACE);
        ExpectClick(button.name);
        EXPECT_EQ(button.id == kLiveCheck, IsChecked(kLiveCheck));
        ts::Key(VK_RETURN);
        ExpectClick(button.name);
        EXPECT_FALSE(IsChecked(kLiveCheck));
    }
}

TEST_F(ButtonsPage, ArrowKeysChooseAmongTheRadioButtons)
{
    ASSERT_TRUE(TabTo(kLiveRadioFirst));
    m_clicks = 0;
    for (const UINT id : {kLiveRadioFirst + 1, kLiveRadioLast, kLiveRadioFirst}) {
        ts::Key(VK_DOWN);
        EXPECT_EQ(Control(id), ::GetFocus());
        for (UINT other = kLiveRadioFirst; other <= kLiveRadioLast; ++other) {
            EXPECT_EQ(other == id, IsChecked(other)) << id << ' ' << other;
        }
    }
    EXPECT_STREQ(L"Choice 1", ts::TextOf(::GetFocus()));
    ts::Key(VK_UP);
    EXPECT_TRUE(IsChecked(kLiveRadioLast));
}

TEST_F(ButtonsPage, SamplesOfFocusedCheckAndRadioButtonsLookFocused)
{
    constexpr int kNormalLeft = 100;
    constexpr int kFocusedLeft = 548;
    const ts::Picture page = ts::CaptureWindow(*m_frame.CurrentPage());
    for (const int top : {96, 122, 148, 174}) {
        EXPECT_FALSE(ts::SamePicture(page.Crop(CRect(kNormalLeft, top, kNormalLeft + 100, top + 18)),
                                     page.Crop(CRect(kFocusedLeft, top, kFocusedLeft + 100, top + 18))))
            << top;
    }
}

TEST_F(ButtonsPage, CommandButtonsHaveASampleOfEachLook)
{
    constexpr COLORREF kHotFill = RGB(229, 244, 252);
    std::vector<HWND> samples;
    std::vector<bool> hot;
    for (const LONG x : {96, 274, 452, 630}) {
        samples.push_back(::ChildWindowFromPoint(*m_frame.CurrentPage(), {x, 318}));
        hot.push_back(ts::CaptureWindow(samples.back()).Count(kHotFill) > 1000);
    }
    EXPECT_EQ((std::vector<bool>{false, true, false, false}), hot);
    EXPECT_FALSE(::IsWindowEnabled(samples[2]));
}

} // namespace
