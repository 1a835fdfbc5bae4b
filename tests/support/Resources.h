#pragma once

#include <tests/support/Support.h>

#include <string_view>

namespace ts
{

/** The test program as a module: it carries the pictures of the tests. */
inline HINSTANCE Program()
{
    return ::GetModuleHandleW(nullptr);
}

inline HINSTANCE Library()
{
    return ::GetModuleHandleW(L"QorUI.dll");
}

/** The bytes of a picture in the program's resources. */
inline std::string_view PictureBytes(UINT id)
{
    const HRSRC found = ::FindResourceW(nullptr, MAKEINTRESOURCEW(id), L"PNG");
    const auto* data = static_cast<const char*>(::LockResource(::LoadResource(nullptr, found)));
    return {data, ::SizeofResource(nullptr, found)};
}

/** The bytes of a picture in the program's resources, in a file. */
inline std::wstring FileOf(const TempFolder& folder, UINT id, const wchar_t* name)
{
    WriteBytes(folder.File(name), PictureBytes(id));
    return folder.File(name);
}

} // namespace ts
