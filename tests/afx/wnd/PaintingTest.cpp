#include <tests/afx/TestWindows.h>

TEST(WindowPainting, InvalidAreaIsToldAndValidated)
{
    TopWnd top;
    top.UpdateWindow();
    top.ValidateRect(nullptr);
    EXPECT_FALSE(top.GetUpdateRect(nullptr));
    top.InvalidateRect(CRect(5, 6, 20, 30));
    CRect rect;
    EXPECT_TRUE(top.GetUpdateRect(&rect));
    EXPECT_EQ(CRect(5, 6, 20, 30), rect);
    CRgn region;
    region.CreateRectRgn(0, 0, 1, 1);
    EXPECT_EQ(SIMPLEREGION, top.GetUpdateRgn(&region));
    top.ValidateRect(CRect(5, 6, 20, 30));
    EXPECT_FALSE(top.GetUpdateRect(nullptr));
}

TEST(WindowPainting, PrintsItselfIntoAnotherContext)
{
    TopWnd top;
    CClientDC screen(&top);
    CDC memory;
    memory.CreateCompatibleDC(&screen);
    CBitmap bitmap;
    bitmap.CreateCompatibleBitmap(&screen, 20, 20);
    CBitmap* pFormer = memory.SelectObject(&bitmap);
    memory.FillSolidRect(0, 0, 20, 20, RGB(1, 2, 3));
    const HWND hLabel = MakeControl(top, _T("STATIC"), SS_WHITERECT, 1);
    CWnd::FromHandle(hLabel)->PrintClient(&memory, PRF_CLIENT);
    EXPECT_EQ(::GetSysColor(COLOR_WINDOW), memory.GetPixel(5, 5));
    memory.SelectObject(pFormer);
}
