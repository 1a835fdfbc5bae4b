#pragma once

#include <tests/support/Support.h>

#include <afxwin.h>

namespace ts
{

/** A background that is no colour of the look. */
constexpr COLORREF kPaper = RGB(1, 2, 3);

/** What a function draws onto the background above. */
inline Picture Drawn(int cx, int cy, const std::function<void(CDC&)>& draw)
{
    return DrawTo(
        cx, cy, [&draw](HDC dc) { draw(*CDC::FromHandle(dc)); }, kPaper);
}

/** A bitmap of a module's resources. */
inline Picture ResourcePicture(HINSTANCE module, UINT id)
{
    CBitmap bitmap;
    bitmap.Attach(::LoadBitmapW(module, MAKEINTRESOURCEW(id)));
    return PictureOf(bitmap);
}

} // namespace ts
