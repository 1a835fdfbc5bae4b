#pragma once

#include <gtest/gtest.h>

#include <windows.h>

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace ts
{

/** Pixels read from a window or drawn into memory: what a test looks at. Colours are COLORREF without alpha. */
class Picture
{
  public:
    Picture() = default;
    Picture(int cx, int cy, std::vector<COLORREF> pixels);

    int Width() const { return m_cx; }
    int Height() const { return m_cy; }
    bool IsEmpty() const { return m_pixels.empty(); }

    /** Colour of a pixel. Outside the picture the answer is CLR_INVALID and the test fails. */
    COLORREF At(int x, int y) const;

    /** Part of the picture, as far as it lies inside. */
    Picture Crop(const RECT& part) const;

    /** Number of pixels of a colour. */
    int Count(COLORREF colour) const;

    /** Smallest rectangle around all pixels for which the function is true; empty when there is none. */
    RECT Bounds(const std::function<bool(COLORREF)>& wanted) const;

    /** Smallest rectangle around all pixels of a colour, or of every other colour. */
    RECT BoundsOf(COLORREF colour) const;
    RECT BoundsOfOthers(COLORREF colour) const;

    /** A letter per pixel with a list of the colours below, for failures. Long rows and columns are cut off. */
    std::string Text() const;

    /** Writes a PNG file. @param path Windows or Unix path. */
    void SavePng(const std::wstring& path) const;

    bool operator==(const Picture& other) const = default;

  private:
    int m_cx = 0;
    int m_cy = 0;
    std::vector<COLORREF> m_pixels;
};

/**
 * Reads the client area of a window with its children after all pending paints. A visible window is read from the
 * screen's copy, a hidden one is made to draw itself (WM_PRINT, child by child).
 */
Picture CaptureWindow(HWND window);

/** As CaptureWindow(), with borders and caption. Visible windows only. */
Picture CaptureFrame(HWND window);

/** Lets a function draw into memory. @param background Colour of the picture before that. */
Picture DrawTo(int cx, int cy, const std::function<void(HDC)>& draw, COLORREF background = RGB(255, 255, 255));

/** Pixels of a bitmap, as it would look drawn unscaled. */
Picture PictureOf(HBITMAP bitmap);

/** Colour as "(r, g, b)". */
std::string ColourText(COLORREF colour);

/** Whether a pixel has a colour. @param tolerance Largest difference of a channel. Use with EXPECT_TRUE. */
testing::AssertionResult PixelIs(const Picture& picture, int x, int y, COLORREF colour, int tolerance = 0);

/** Whether every pixel of a rectangle has the colour; names the first that has not. */
testing::AssertionResult AreaIs(const Picture& picture, const RECT& area, COLORREF colour, int tolerance = 0);

/** Whether all outermost pixels of a rectangle have the colour (a frame one pixel wide). */
testing::AssertionResult FrameIs(const Picture& picture, const RECT& frame, COLORREF colour);

/** The first pixel, row by row, in which two pictures of one size differ. */
std::optional<POINT> FirstDifference(const Picture& one, const Picture& other, int tolerance = 0);

/** Whether two pictures are the same; names the first difference. */
testing::AssertionResult SamePicture(const Picture& one, const Picture& other, int tolerance = 0);

} // namespace ts
