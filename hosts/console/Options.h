#pragma once

#include <afxwin.h>

/** What the command line asks for. */
struct ConsoleOptions
{
    bool help = false;
    bool demo = false;   ///< fill the store with sample data
    CString language;    ///< locale name; empty for the user's own
    CString shotsFolder; ///< where to leave pictures of everything; empty for the interactive program
    CString page;        ///< name of the page to open first; empty for the first one
};

/** Exit status for a command line that is not understood. */
inline constexpr int kExitBadOptions = 2;

/**
 * Reads the command line.
 * @param argc,argv as `CommandLineToArgvW` gives them, the program's name first.
 * @param[out] message what is wrong, for the user; empty on success.
 * @return whether all of it was understood.
 */
bool ParseOptions(int argc, const LPWSTR* argv, ConsoleOptions& options, CString& message);

/** The text of `--help`. @param pages the names that `--page` takes, for the user. */
CString OptionsHelp(const CString& pages);
