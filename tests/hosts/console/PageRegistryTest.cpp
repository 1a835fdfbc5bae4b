#include <hosts/console/PageRegistry.h>
#include <tests/hosts/console/PagesFixture.h>

#include <regex>
#include <set>
#include <string>

namespace
{

/** Words in small letters: a picture's name says what it shows. */
bool IsSpeakingName(const std::wstring& name)
{
    return std::regex_match(name, std::wregex(L"[a-z]+(-[a-z]+)*"));
}

TEST(PageRegistry, FindsPagesByNameWhateverTheCase)
{
    EXPECT_EQ(0u, FindPage(L"buttons"));
    EXPECT_EQ(AllPages().size() - 1, FindPage(L"Info"));
    EXPECT_FALSE(FindPage(L"button"));
    EXPECT_FALSE(FindPage(L""));
}

class PageShots : public Pages
{
};

TEST_F(PageShots, EveryPictureHasASpeakingNameOfItsOwn)
{
    std::set<std::wstring> names;
    size_t count = 0;
    const auto add = [&](const CString& name) {
        EXPECT_TRUE(IsSpeakingName(name.GetString())) << ts::ToUtf8(name.GetString());
        names.insert(name.GetString());
        ++count;
    };
    for (const PageInfo& info : AllPages()) {
        Show(info.name);
        CConsolePage& page = *m_frame.CurrentPage();
        for (const PageState& state : page.States()) {
            add(CString(info.name) + L"-" + state.name);
        }
        for (const PopupShot& popup : page.Popups()) {
            add(popup.name);
        }
        for (const ModalShot& modal : page.Modals()) {
            add(modal.name);
        }
    }
    EXPECT_EQ(count, names.size());
    EXPECT_GT(count, AllPages().size());
}

TEST_F(PageShots, StateThatAPageDoesNotHaveIsRefused)
{
    Show(L"calendar");
    EXPECT_TRUE(m_frame.CurrentPage()->ShowState(L"twelve-months"));
    EXPECT_FALSE(m_frame.CurrentPage()->ShowState(L"twelve"));
    EXPECT_FALSE(m_frame.CurrentPage()->ShowState(L""));
}

} // namespace
