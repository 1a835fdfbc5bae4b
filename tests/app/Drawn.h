#pragma once

#include <afxwin.h>
#include <tests/support/Support.h>

/** A background that is no colour of the look. */
constexpr COLORREF kPaper = RGB(1, 2, 3);

/** What a function draws onto the background above. */
inline ts::Picture Drawn(int cx, int cy, const std::function<void(CDC&)>& draw)
{
    return ts::DrawTo(
        cx, cy, [&draw](HDC dc) { draw(*CDC::FromHandle(dc)); }, kPaper);
}

/** Takes all GDI handles that the process may still have, and gives them back in the end. */
class NoGdiHandles
{
  public:
    NoGdiHandles()
    {
        m_pens.reserve(kMost);
        while (const HPEN pen = m_pens.size() < kMost ? ::CreatePen(PS_SOLID, 1, 0) : nullptr)
            m_pens.push_back(pen);
    }
    ~NoGdiHandles()
    {
        for (const HPEN pen : m_pens)
            ::DeleteObject(pen);
    }
    NoGdiHandles(const NoGdiHandles&) = delete;
    NoGdiHandles& operator=(const NoGdiHandles&) = delete;

    /** Whether there really is none left. */
    bool AreGone() const { return m_pens.size() < kMost; }

  private:
    static constexpr size_t kMost = 70000;
    std::vector<HPEN> m_pens;
};

/** A bitmap of a module's resources. */
inline ts::Picture ResourcePicture(HINSTANCE module, UINT id)
{
    CBitmap bitmap;
    bitmap.Attach(::LoadBitmapW(module, MAKEINTRESOURCEW(id)));
    return ts::PictureOf(bitmap);
}
