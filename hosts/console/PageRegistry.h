#pragma once

#include "ConsolePage.h"

#include <memory>
#include <optional>
#include <vector>

/** An entry of the console's list of pages. */
struct PageInfo
{
    LPCWSTR name;     ///< for the command line and file names
    LPCWSTR titleKey; ///< key of the title in the console's language data
    std::unique_ptr<CConsolePage> (*make)();
};

/** All pages, in the order of the list. */
const std::vector<PageInfo>& AllPages();

/** Index of the page of that name, whatever its case. */
std::optional<size_t> FindPage(LPCWSTR name);

/** @name The pages
 * @{ */
std::unique_ptr<CConsolePage> MakeButtonsPage();
std::unique_ptr<CConsolePage> MakeLinksPage();
std::unique_ptr<CConsolePage> MakeLayoutPage();
std::unique_ptr<CConsolePage> MakeMessagesPage();
std::unique_ptr<CConsolePage> MakeDrawingPage();
std::unique_ptr<CConsolePage> MakeAccountPage();
std::unique_ptr<CConsolePage> MakeEditsPage();
std::unique_ptr<CConsolePage> MakePickersPage();
std::unique_ptr<CConsolePage> MakeCalendarPage();
std::unique_ptr<CConsolePage> MakeClockPage();
std::unique_ptr<CConsolePage> MakeListPage();
std::unique_ptr<CConsolePage> MakeProgressPage();
std::unique_ptr<CConsolePage> MakeInfoPage();
/** @} */
