#include "PageRegistry.h"

const std::vector<PageInfo>& AllPages()
{
    static const std::vector<PageInfo> kPages = {
        {L"buttons", L"STR_CON_BUTTONS", &MakeButtonsPage},    {L"links", L"STR_CON_LINK_PAGE", &MakeLinksPage},
        {L"layout", L"STR_CON_LAYOUT", &MakeLayoutPage},       {L"messages", L"STR_CON_MESSAGES", &MakeMessagesPage},
        {L"drawing", L"STR_CON_DRAWING", &MakeDrawingPage},    {L"account", L"STR_CON_ACCOUNT", &MakeAccountPage},
        {L"edits", L"STR_CON_EDIT_PAGE", &MakeEditsPage},      {L"pickers", L"STR_CON_PICKER_PAGE", &MakePickersPage},
        {L"calendar", L"STR_CON_CALENDAR", &MakeCalendarPage}, {L"clock", L"STR_CON_CLOCK", &MakeClockPage},
        {L"list", L"STR_CON_LIST_PAGE", &MakeListPage},        {L"progress", L"STR_CON_PROG_PAGE", &MakeProgressPage},
        {L"info", L"STR_CON_INFO_PAGE", &MakeInfoPage},
    };
    return kPages;
}

std::optional<size_t> FindPage(LPCWSTR name)
{
    const std::vector<PageInfo>& pages = AllPages();
    for (size_t i = 0; i < pages.size(); ++i) {
        if (::lstrcmpiW(pages[i].name, name) == 0) {
            return i;
        }
    }
    return std::nullopt;
}
