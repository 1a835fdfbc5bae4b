#include <tests/support/Picture.h>
#include <tests/support/PngFile.h>
#include <tests/support/Pump.h>
#include <tests/support/Surroundings.h>

#include <algorithm>
#include <cstdlib>
#include <map>
#include <sstream>
#include <utility>

namespace ts
{
namespace
{
constexpr int kTextColumns = 100;
constexpr int kTextRows = 60;

/** A 32-bit picture in memory with a DC to draw on it. */
class Canvas
{
  public:
    Canvas(int cx, int cy) : m_cx(cx), m_cy(cy), m_dc(CreateCompatibleDC(nullptr))
    {
        BITMAPINFO info = {};
        info.bmiHeader.biSize = sizeof(info.bmiHeader);
        info.bmiHeader.biWidth = cx;
        info.bmiHeader.biHeight = -cy;
        info.bmiHeader.biPlanes = 1;
        info.bmiHeader.biBitCount = 32;
        m_bitmap = CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &m_bits, nullptr, 0);
        if (!m_dc || !m_bitmap) {
            ADD_FAILURE() << "no memory picture of " << cx << " x " << cy << ", error " << GetLastError();
        }
        m_old = SelectObject(m_dc, m_bitmap);
    }

    ~Canvas()
    {
        SelectObject(m_dc, m_old);
        DeleteObject(m_bitmap);
        DeleteDC(m_dc);
    }

    Canvas(const Canvas&) = delete;
    Canvas& operator=(const Canvas&) = delete;

    HDC Dc() const { return m_dc; }

    void Fill(COLORREF colour) const
    {
        const RECT all = {0, 0, m_cx, m_cy};
        const HBRUSH brush = CreateSolidBrush(colour);
        FillRect(m_dc, &all, brush);
        DeleteObject(brush);
    }

    Picture Read() const
    {
        GdiFlush();
        std::vector<COLORREF> pixels;
        if (m_bits) {
            const auto* first = static_cast<const DWORD*>(m_bits);
            pixels.resize(static_cast<size_t>(m_cx) * static_cast<size_t>(m_cy));
            std::transform(first, first + pixels.size(), pixels.begin(),
                           [](DWORD bgr) { return RGB((bgr >> 16) & 0xFF, (bgr >> 8) & 0xFF, bgr & 0xFF); });
        }
        return {m_cx, m_cy, std::move(pixels)};
    }

  private:
    int m_cx;
    int m_cy;
    HDC m_dc;
    HBITMAP m_bitmap = nullptr;
    void* m_bits = nullptr;
    HGDIOBJ m_old = nullptr;
};

SIZE ClientSize(HWND window)
{
    RECT client = {};
    GetClientRect(window, &client);
    return {client.right, client.bottom};
}

/** Lets a window and its visible children draw themselves, each on a canvas of its own: many controls clip in device
 * pixels. */
void PrintWithChildren(HWND window, const Canvas& canvas)
{
    SendMessageW(window, WM_PRINT, reinterpret_cast<WPARAM>(canvas.Dc()), PRF_CLIENT | PRF_ERASEBKGND);
    const HWND top = GetWindow(window, GW_CHILD);
    for (HWND child = top ? GetWindow(top, GW_HWNDLAST) : nullptr; child; child = GetWindow(child, GW_HWNDPREV)) {
        const SIZE size = ClientSize(child);
        if (!(GetWindowLongW(child, GWL_STYLE) & WS_VISIBLE) || size.cx <= 0 || size.cy <= 0) {
            continue;
        }
        POINT at = {0, 0};
        MapWindowPoints(child, window, &at, 1);
        const Canvas part(size.cx, size.cy);
        PrintWithChildren(child, part);
        BitBlt(canvas.Dc(), at.x, at.y, size.cx, size.cy, part.Dc(), 0, 0, SRCCOPY);
    }
}

Picture ReadFrom(HDC dc, int cx, int cy)
{
    const Canvas canvas(cx, cy);
    BitBlt(canvas.Dc(), 0, 0, cx, cy, dc, 0, 0, SRCCOPY);
    return canvas.Read();
}

void PaintNow(HWND window)
{
    Settle();
    RedrawWindow(window, nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
}

int Distance(COLORREF one, COLORREF other)
{
    return (std::max)({std::abs(GetRValue(one) - GetRValue(other)), std::abs(GetGValue(one) - GetGValue(other)),
                       std::abs(GetBValue(one) - GetBValue(other))});
}

bool IsInside(const Picture& picture, int x, int y)
{
    return x >= 0 && y >= 0 && x < picture.Width() && y < picture.Height();
}
} // namespace

Picture::Picture(int cx, int cy, std::vector<COLORREF> pixels) : m_cx(cx), m_cy(cy), m_pixels(std::move(pixels))
{
    if (m_pixels.size() != static_cast<size_t>(cx) * static_cast<size_t>(cy)) {
        ADD_FAILURE() << "a picture of " << cx << " x " << cy << " cannot have " << m_pixels.size() << " pixels";
    }
}

COLORREF Picture::At(int x, int y) const
{
    if (!IsInside(*this, x, y)) {
        ADD_FAILURE() << "(" << x << ", " << y << ") lies outside the picture of " << m_cx << " x " << m_cy;
        return CLR_INVALID;
    }
    return m_pixels[static_cast<size_t>(y) * static_cast<size_t>(m_cx) + static_cast<size_t>(x)];
}

Picture Picture::Crop(const RECT& part) const
{
    const RECT all = {0, 0, m_cx, m_cy};
    RECT inside;
    if (!IntersectRect(&inside, &all, &part)) {
        return {};
    }
    std::vector<COLORREF> pixels;
    for (int y = inside.top; y < inside.bottom; ++y) {
        for (int x = inside.left; x < inside.right; ++x) {
            pixels.push_back(At(x, y));
        }
    }
    return {inside.right - inside.left, inside.bottom - inside.top, std::move(pixels)};
}

int Picture::Count(COLORREF colour) const
{
    return static_cast<int>(std::count(m_pixels.begin(), m_pixels.end(), colour));
}

RECT Picture::Bounds(const std::function<bool(COLORREF)>& wanted) const
{
    RECT bounds = {};
    for (int y = 0; y < m_cy; ++y) {
        for (int x = 0; x < m_cx; ++x) {
            const RECT pixel = {x, y, x + 1, y + 1};
            if (wanted(At(x, y))) {
                UnionRect(&bounds, &bounds, &pixel);
            }
        }
    }
    return bounds;
}

RECT Picture::BoundsOf(COLORREF colour) const
{
    return Bounds([colour](COLORREF pixel) { return pixel == colour; });
}

RECT Picture::BoundsOfOthers(COLORREF colour) const
{
    return Bounds([colour](COLORREF pixel) { return pixel != colour; });
}

std::string Picture::Text() const
{
    constexpr std::string_view letters = ".#abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789";
    std::map<COLORREF, char> legend;
    std::ostringstream text;
    for (int y = 0; y < (std::min)(m_cy, kTextRows); ++y) {
        for (int x = 0; x < (std::min)(m_cx, kTextColumns); ++x) {
            const char next = legend.size() < letters.size() ? letters[legend.size()] : '?';
            text << legend.emplace(At(x, y), next).first->second;
        }
        text << '\n';
    }
    for (const auto& [colour, letter] : legend) {
        text << letter << " = " << ColourText(colour) << '\n';
    }
    return text.str();
}

void Picture::SavePng(const std::wstring& path) const
{
    if (!WritePng(path, m_cx, m_cy, m_pixels)) {
        ADD_FAILURE() << "cannot write " << ToUtf8(path);
    }
}

Picture CaptureWindow(HWND window)
{
    const SIZE size = ClientSize(window);
    if (size.cx <= 0 || size.cy <= 0) {
        ADD_FAILURE() << "the window has no client area";
        return {};
    }
    if (!IsWindowVisible(window)) {
        const Canvas canvas(size.cx, size.cy);
        PrintWithChildren(window, canvas);
        return canvas.Read();
    }
    PaintNow(window);
    const HDC dc = GetDC(window);
    Picture picture = ReadFrom(dc, size.cx, size.cy);
    ReleaseDC(window, dc);
    return picture;
}

Picture CaptureFrame(HWND window)
{
    RECT bounds = {};
    GetWindowRect(window, &bounds);
    if (IsRectEmpty(&bounds) || !IsWindowVisible(window)) {
        ADD_FAILURE() << "the window cannot be seen";
        return {};
    }
    PaintNow(window);
    const HDC dc = GetWindowDC(window);
    Picture picture = ReadFrom(dc, bounds.right - bounds.left, bounds.bottom - bounds.top);
    ReleaseDC(window, dc);
    return picture;
}

Picture DrawTo(int cx, int cy, const std::function<void(HDC)>& draw, COLORREF background)
{
    const Canvas canvas(cx, cy);
    canvas.Fill(background);
    const int saved = SaveDC(canvas.Dc());
    draw(canvas.Dc());
    RestoreDC(canvas.Dc(), saved);
    return canvas.Read();
}

Picture PictureOf(HBITMAP bitmap)
{
    BITMAP info = {};
    if (!GetObjectW(bitmap, sizeof(info), &info)) {
        ADD_FAILURE() << "not a bitmap";
        return {};
    }
    return DrawTo(info.bmWidth, info.bmHeight, [&](HDC dc) {
        const HDC source = CreateCompatibleDC(nullptr);
        const HGDIOBJ old = SelectObject(source, bitmap);
        BitBlt(dc, 0, 0, info.bmWidth, info.bmHeight, source, 0, 0, SRCCOPY);
        SelectObject(source, old);
        DeleteDC(source);
    });
}

std::string ColourText(COLORREF colour)
{
    if (colour == CLR_INVALID) {
        return "(none)";
    }
    std::ostringstream text;
    text << "(" << static_cast<int>(GetRValue(colour)) << ", " << static_cast<int>(GetGValue(colour)) << ", "
         << static_cast<int>(GetBValue(colour)) << ")";
    return text.str();
}

testing::AssertionResult PixelIs(const Picture& picture, int x, int y, COLORREF colour, int tolerance)
{
    if (!IsInside(picture, x, y)) {
        return testing::AssertionFailure() << "(" << x << ", " << y << ") lies outside the picture of "
                                           << picture.Width() << " x " << picture.Height();
    }
    const COLORREF found = picture.At(x, y);
    if (Distance(found, colour) <= tolerance) {
        return testing::AssertionSuccess() << "the pixel (" << x << ", " << y << ") is " << ColourText(found);
    }
    return testing::AssertionFailure() << "the pixel (" << x << ", " << y << ") is " << ColourText(found)
                                       << " instead of " << ColourText(colour);
}

testing::AssertionResult AreaIs(const Picture& picture, const RECT& area, COLORREF colour, int tolerance)
{
    if (IsRectEmpty(&area)) {
        return testing::AssertionFailure() << "the area is empty";
    }
    for (int y = area.top; y < area.bottom; ++y) {
        for (int x = area.left; x < area.right; ++x) {
            const testing::AssertionResult pixel = PixelIs(picture, x, y, colour, tolerance);
            if (!pixel) {
                return testing::AssertionFailure() << pixel.message() << "; the area around:\n"
                                                   << picture.Crop({x - 8, y - 8, x + 24, y + 16}).Text();
            }
        }
    }
    return testing::AssertionSuccess() << "the whole area is " << ColourText(colour);
}

testing::AssertionResult FrameIs(const Picture& picture, const RECT& frame, COLORREF colour)
{
    const RECT sides[] = {{frame.left, frame.top, frame.right, frame.top + 1},
                          {frame.left, frame.bottom - 1, frame.right, frame.bottom},
                          {frame.left, frame.top, frame.left + 1, frame.bottom},
                          {frame.right - 1, frame.top, frame.right, frame.bottom}};
    for (const RECT& side : sides) {
        if (testing::AssertionResult result = AreaIs(picture, side, colour); !result) {
            return result;
        }
    }
    return testing::AssertionSuccess();
}

std::optional<POINT> FirstDifference(const Picture& one, const Picture& other, int tolerance)
{
    for (int y = 0; y < (std::min)(one.Height(), other.Height()); ++y) {
        for (int x = 0; x < (std::min)(one.Width(), other.Width()); ++x) {
            if (Distance(one.At(x, y), other.At(x, y)) > tolerance) {
                return POINT{x, y};
            }
        }
    }
    return std::nullopt;
}

testing::AssertionResult SamePicture(const Picture& one, const Picture& other, int tolerance)
{
    if (one.Width() != other.Width() || one.Height() != other.Height()) {
        return testing::AssertionFailure() << "the pictures are " << one.Width() << " x " << one.Height() << " and "
                                           << other.Width() << " x " << other.Height();
    }
    const std::optional<POINT> at = FirstDifference(one, other, tolerance);
    if (!at) {
        return testing::AssertionSuccess() << "the pictures are the same";
    }
    return testing::AssertionFailure() << "the pictures differ first at (" << at->x << ", " << at->y
                                       << "): " << ColourText(one.At(at->x, at->y)) << " and "
                                       << ColourText(other.At(at->x, at->y));
}

} // namespace ts
