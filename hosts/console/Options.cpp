#include "Options.h"

namespace
{

struct ValueOption
{
    LPCWSTR name;
    CString ConsoleOptions::*value;
    LPCWSTR missing;
};

const ValueOption* FindValueOption(const CString& name)
{
    static const ValueOption kValueOptions[] = {
        {L"--lang", &ConsoleOptions::language, L"--lang needs the name of a locale, for example: --lang de"},
        {L"--shots", &ConsoleOptions::shotsFolder, L"--shots needs a folder, for example: --shots pictures"},
        {L"--page", &ConsoleOptions::page, L"--page needs the name of a page, for example: --page buttons"},
    };
    for (const ValueOption& option : kValueOptions) {
        if (name == option.name) {
            return &option;
        }
    }
    return nullptr;
}

bool TakeFlag(const CString& name, ConsoleOptions& options)
{
    if (name == L"--help" || name == L"-h") {
        options.help = true;
        return true;
    }
    if (name == L"--demo") {
        options.demo = true;
        return true;
    }
    return false;
}

} // namespace

bool ParseOptions(int argc, const LPWSTR* argv, ConsoleOptions& options, CString& message)
{
    message.Empty();
    for (int i = 1; i < argc; ++i) {
        const CString name(argv[i]);
        if (TakeFlag(name, options)) {
            continue;
        }
        const ValueOption* option = FindValueOption(name);
        if (!option) {
            message.Format(L"unknown option '%s'; --help lists the options", name.GetString());
            return false;
        }
        if (i + 1 >= argc || argv[i + 1][0] == L'\0' || wcsncmp(argv[i + 1], L"--", 2) == 0) {
            message = option->missing;
            return false;
        }
        options.*(option->value) = argv[++i];
    }
    return true;
}

CString OptionsHelp(const CString& pages)
{
    return CString(L"QorConsole [options]\r\n"
                   L"  --demo             fill the store with sample data\r\n"
                   L"  --lang <locale>    choose the language: en, de, zh-CN\r\n"
                   L"  --page <name>      open this page first:\r\n"
                   L"                     ") +
           pages +
           L"\r\n"
           L"  --shots <folder>   walk through every page and dialog in every state, leave a PNG picture of each\r\n"
           L"                     in the folder, and end\r\n"
           L"  --help             show this text\r\n"
           L"Exit status: 0 success, 1 failure, 2 an option was not understood.\r\n";
}
