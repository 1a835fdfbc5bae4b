#include "Inputs.h"

#include <QorUI/inputs/FlatBorder.h>

namespace
{

constexpr COLORREF kBack = RGB(10, 200, 30);

/** A window without border painting of its own, with a client edge or without. */
class CPlain : public CWnd
{
  public:
    CPlain(CWnd& parent, DWORD exStyle)
    {
        CreateEx(exStyle, AfxRegisterWndClass(0), L"", WS_CHILD | WS_VISIBLE, CRect(10, 10, 60, 40), &parent,
                 ts::kOtherId);
    }

  protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message == WM_NCPAINT) {
            CWindowDC dc(this);
            dc.FillSolidRect(0, 0, 50, 30, kBack);
            return 0;
        }
        if (message == WM_PAINT) {
            ValidateRect(nullptr);
            return 0;
        }
        return CWnd::WindowProc(message, wParam, lParam);
    }
};

class FlatBorder : public testing::Test
{
  protected:
    static ts::Picture Drawn(CPlain& window, BOOL inner)
    {
        window.SendMessage(WM_NCPAINT, 1);
        QorDrawFlatBorder(&window, inner);
        return ts::CaptureFrame(window);
    }

    ts::AfxHost m_host{200, 100};
};

TEST_F(FlatBorder, OuterLineIsGreyOnTheOutermostPixels)
{
    CPlain window(m_host, WS_EX_CLIENTEDGE);
    const ts::Picture picture = Drawn(window, FALSE);
    EXPECT_TRUE(ts::FrameIs(picture, {0, 0, 50, 30}, kGrey));
    EXPECT_TRUE(ts::AreaIs(picture, {1, 1, 49, 29}, kBack));
}

TEST_F(FlatBorder, InnerLineHasTheColourOfWindows)
{
    const OddLook odd;
    CPlain window(m_host, WS_EX_CLIENTEDGE);
    const ts::Picture picture = Drawn(window, TRUE);
    EXPECT_TRUE(ts::FrameIs(picture, {0, 0, 50, 30}, kGrey));
    EXPECT_TRUE(ts::FrameIs(picture, {1, 1, 49, 29}, OddLook::kWindow));
    EXPECT_TRUE(ts::AreaIs(picture, {2, 2, 48, 28}, kBack));
}

TEST_F(FlatBorder, NothingIsDrawnWithoutClientEdge)
{
    CPlain window(m_host, 0);
    EXPECT_TRUE(ts::AreaIs(Drawn(window, TRUE), {0, 0, 50, 30}, kBack));
}

TEST_F(FlatBorder, MissingAndDestroyedWindowsAreIgnored)
{
    CPlain window(m_host, WS_EX_CLIENTEDGE);
    window.DestroyWindow();
    EXPECT_NO_THROW(QorDrawFlatBorder(&window, TRUE));
    EXPECT_NO_THROW(QorDrawFlatBorder(nullptr, TRUE));
}

} // namespace
