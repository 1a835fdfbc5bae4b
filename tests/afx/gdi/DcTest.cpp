#include "MemoryDc.h"

TEST(Dc, DestructorDeletesTheContext)
{
    HDC handle = nullptr;
    {
        CDC dc;
        ASSERT_TRUE(dc.CreateCompatibleDC(nullptr));
        handle = dc;
        EXPECT_EQ(dc.m_hAttribDC, handle);
        EXPECT_EQ(CDC::FromHandle(handle), &dc);
    }
    EXPECT_EQ(::GetObjectType(handle), 0u);
}

TEST(Dc, DetachKeepsTheContext)
{
    HDC handle = nullptr;
    {
        CDC dc;
        dc.CreateCompatibleDC(nullptr);
        handle = dc.Detach();
        EXPECT_EQ(dc.GetSafeHdc(), nullptr);
        EXPECT_EQ(dc.m_hAttribDC, nullptr);
    }
    EXPECT_EQ(::GetObjectType(handle), static_cast<DWORD>(OBJ_MEMDC));
    CDC again;
    EXPECT_TRUE(again.Attach(handle));
    EXPECT_FALSE(again.Attach(handle));
    EXPECT_TRUE(again.DeleteDC());
    EXPECT_FALSE(again.DeleteDC());
}

TEST(Dc, TemporaryObjectDoesNotDeleteTheContext)
{
    HDC handle = ::CreateCompatibleDC(nullptr);
    CDC* temporary = CDC::FromHandle(handle);
    EXPECT_EQ(temporary->m_hDC, handle);
    EXPECT_EQ(temporary->m_hAttribDC, handle);
    CDC::DeleteTempMap();
    EXPECT_NE(::GetObjectType(handle), 0u);
    ::DeleteDC(handle);
}

TEST(Dc, EmptyContextFailsQuietly)
{
    CDC dc;
    CPen pen(PS_SOLID, 1, kRed);
    CRect rect(0, 0, 5, 5);
    EXPECT_EQ(dc.SelectObject(&pen), nullptr);
    EXPECT_EQ(dc.SelectStockObject(NULL_BRUSH), nullptr);
    EXPECT_EQ(dc.GetCurrentPen(), nullptr);
    EXPECT_EQ(dc.SaveDC(), 0);
    EXPECT_FALSE(dc.RestoreDC(-1));
    EXPECT_EQ(dc.SetTextColor(kRed), CLR_INVALID);
    EXPECT_EQ(dc.SetBkMode(TRANSPARENT), 0);
    EXPECT_FALSE(dc.LineTo(1, 1));
    EXPECT_FALSE(dc.Rectangle(nullptr));
    EXPECT_EQ(dc.DrawText(TEXT("x"), 1, rect, DT_LEFT), 0);
    EXPECT_EQ(dc.DrawText(TEXT("x"), 1, nullptr, DT_LEFT), 0);
    EXPECT_EQ(dc.GetTextExtent(TEXT("x"), 1), CSize(0, 0));
    EXPECT_FALSE(dc.DrawEdge(nullptr, EDGE_ETCHED, BF_RECT));
    EXPECT_EQ(dc.GetPixel(0, 0), CLR_INVALID);
    EXPECT_EQ(dc.GetWindow(), nullptr);
    EXPECT_FALSE(dc.BitBlt(0, 0, 1, 1, nullptr, 0, 0, SRCCOPY));
    dc.FillSolidRect(rect, kRed);
    dc.Draw3dRect(rect, kRed, kBlue);
    dc.FillRect(rect, nullptr);
    dc.DrawFocusRect(nullptr);
    dc.DrawDragRect(rect, CSize(1, 1), nullptr, CSize(1, 1));
    SIZE size = {96, 96};
    dc.DPtoHIMETRIC(&size);
    EXPECT_GT(size.cx, 0);
    dc.LPtoDP(static_cast<LPSIZE>(nullptr));
}

TEST(Dc, CompatibleWithAnEmptyContextIsRefused)
{
    CDC empty;
    CDC dc;
    EXPECT_FALSE(dc.CreateCompatibleDC(&empty));
}

TEST(Dc, SaveAndRestoreBringBackTheState)
{
    MemoryDc dc;
    dc.SetTextColor(kRed);
    const int first = dc.SaveDC();
    EXPECT_GT(first, 0);
    dc.SetTextColor(kBlue);
    dc.SaveDC();
    dc.SetTextColor(kGreen);
    EXPECT_TRUE(dc.RestoreDC(-1));
    EXPECT_EQ(dc.GetTextColor(), kBlue);
    EXPECT_TRUE(dc.RestoreDC(first));
    EXPECT_EQ(dc.GetTextColor(), kRed);
    EXPECT_FALSE(dc.RestoreDC(7));
}

TEST(Dc, GivesNoHandleThroughANullPointer)
{
    CDC* volatile none = nullptr;
    EXPECT_EQ(none->GetSafeHdc(), nullptr);
}
