#pragma once

#include <gtest/gtest.h>

#include <afxwin.h>

constexpr COLORREF kWhite = RGB(255, 255, 255);
constexpr COLORREF kBlack = RGB(0, 0, 0);
constexpr COLORREF kRed = RGB(255, 0, 0);
constexpr COLORREF kGreen = RGB(0, 255, 0);
constexpr COLORREF kBlue = RGB(0, 0, 255);

/** A white picture in memory to draw on. */
class MemoryDc : public CDC
{
  public:
    explicit MemoryDc(int cx = 40, int cy = 30)
    {
        CClientDC screen(nullptr);
        CreateCompatibleDC(&screen);
        m_bitmap.CreateCompatibleBitmap(&screen, cx, cy);
        m_pFormer = SelectObject(&m_bitmap);
        PatBlt(0, 0, cx, cy, WHITENESS);
    }
    ~MemoryDc() override
    {
        CDC::SelectObject(m_pFormer);
        DeleteDC();
    }

    /** How many pixels have the colour. */
    int Count(COLORREF colour) const
    {
        BITMAP info = {};
        const_cast<CBitmap&>(m_bitmap).GetBitmap(&info);
        int count = 0;
        for (int y = 0; y < info.bmHeight; ++y) {
            for (int x = 0; x < info.bmWidth; ++x) {
                count += GetPixel(x, y) == colour;
            }
        }
        return count;
    }

    CBitmap m_bitmap;

  private:
    CBitmap* m_pFormer = nullptr;
};
