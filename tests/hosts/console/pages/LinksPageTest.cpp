#include <hosts/console/ControlIds.h>
#include <tests/hosts/console/PagesFixture.h>
#include <tests/support/ShellOpenings.h>

#include <string>
#include <vector>

namespace
{

using namespace ids::links;

class LinksPage : public Pages
{
  protected:
    void SetUp() override
    {
        Pages::SetUp();
        Show(L"links");
    }

    bool LinkShows(COLORREF colour)
    {
        ::UpdateWindow(Control(kLink));
        return ts::CaptureWindow(Control(kLink)).Count(colour) > 0;
    }

    int LinkWidth()
    {
        CRect rect;
        ::GetWindowRect(Control(kLink), rect);
        return rect.Width();
    }
};

TEST_F(LinksPage, AddressIsTypedAndOpened)
{
    const ts::ShellOpenings openings;
    TypeInto(kAddress, L"http://other.example");
    Press(kOpen, VK_SPACE);
    Press(kSet, VK_RETURN);
    Press(kOpen, VK_RETURN);
    EXPECT_EQ((std::vector<std::wstring>{L"http://www.example.org/help", L"http://other.example"}), openings.Files());
}

TEST_F(LinksPage, ChoicesChangeTheLink)
{
    constexpr COLORREF kVisitedColour = RGB(85, 26, 139);
    EXPECT_FALSE(LinkShows(kVisitedColour));
    Press(kVisited, VK_SPACE);
    EXPECT_TRUE(LinkShows(kVisitedColour));
    const ts::Picture plain = ts::CaptureWindow(Control(kLink));
    Press(kUnderlined, VK_SPACE);
    EXPECT_FALSE(ts::SamePicture(plain, ts::CaptureWindow(Control(kLink))));
    const int fitted = LinkWidth();
    Press(kAutoSize, VK_SPACE);
    EXPECT_GT(LinkWidth(), fitted);
    ts::Key(VK_SPACE);
    EXPECT_EQ(fitted, LinkWidth());
}

TEST_F(LinksPage, VisitedLinkIsPaintedWithWhatIsUnderIt)
{
    constexpr COLORREF kTrace = RGB(255, 0, 255);
    ASSERT_TRUE(TabTo(kVisited));
    {
        CClientDC dc(CWnd::FromHandle(Control(kLink)));
        dc.FillSolidRect(CRect(0, 0, 4, 4), kTrace);
    }
    ASSERT_TRUE(LinkShows(kTrace));
    ts::Key(VK_SPACE);
    EXPECT_FALSE(LinkShows(kTrace));
}

TEST_F(LinksPage, AButtonClicksTheLabel)
{
    Press(kClickLabel, VK_SPACE);
    EXPECT_STREQ(L"Click this label: click number 1", Text(kResult));
}

} // namespace
