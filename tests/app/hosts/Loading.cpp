/** @file A program that loads the library at run time and frees it, twice. */
#include "Checks.h"

#include <cstring>

namespace
{

/** Names of exported functions as the compiler writes them. */
constexpr char kBrush[] = "_Z16QorGetDlgBkBrushv";
constexpr char kMsgBox[] = "_Z9QorMsgBoxPKwjmP4CWnd";

template <class Function>
Function* Find(HMODULE library, const char* name)
{
    const FARPROC address = ::GetProcAddress(library, name);
    HOST_CHECK(address != nullptr);
    Function* function = nullptr;
    std::memcpy(&function, &address, sizeof(function));
    return function;
}

void UseLibrary(HMODULE library)
{
    host::CheckResourceSearch();
    if (auto* brush = Find<HBRUSH()>(library, kBrush)) {
        host::CheckBrush(brush());
    }
    if (auto* msgBox = Find<UINT(LPCWSTR, UINT, DWORD, CWnd*)>(library, kMsgBox)) {
        host::CheckResourceRule([&] { return msgBox(L"Text", 2 | 1 << 8, 0, nullptr); });
    }
    host::RunThread();
}

void CheckAbsent()
{
    HOST_CHECK(host::Library() == nullptr);
    HOST_CHECK(host::FindsBitmapIn(host::kOwnBitmap, host::Program()));
    // Not found anywhere: the search then names where it began.
    HOST_CHECK(host::FindsBitmapIn(host::kRadioStrip, host::Program()));
    CBitmap strip;
    HOST_CHECK(!strip.LoadBitmap(host::kRadioStrip));
}

} // namespace

int wmain()
{
    CheckAbsent();
    for (int round = 0; round < 2; ++round) {
        const HMODULE library = ::LoadLibraryW(L"QorUI.dll");
        HOST_CHECK(library != nullptr);
        if (!library) {
            break;
        }
        UseLibrary(library);
        HOST_CHECK(::FreeLibrary(library));
        CheckAbsent();
    }
    return host::g_failures;
}
