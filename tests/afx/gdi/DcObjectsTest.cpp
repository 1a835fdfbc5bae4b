#include "MemoryDc.h"

TEST(Draw, HalftoneBrushIsEveryOtherPixel)
{
    MemoryDc dc(8, 8);
    ASSERT_NE(CDC::GetHalftoneBrush(), nullptr);
    dc.FillRect(CRect(0, 0, 8, 8), CDC::GetHalftoneBrush());
    EXPECT_EQ(dc.Count(kBlack), 32);
    EXPECT_EQ(dc.Count(kWhite), 32);
}

TEST(Dc, SelectObjectReturnsWhatWasSelected)
{
    MemoryDc dc;
    CPen first(PS_SOLID, 1, kRed);
    CPen second(PS_SOLID, 1, kBlue);
    CPen* stock = dc.SelectObject(&first);
    EXPECT_EQ(stock->m_hObject, ::GetStockObject(BLACK_PEN));
    EXPECT_EQ(dc.SelectObject(&second), &first);
    EXPECT_EQ(dc.GetCurrentPen(), &second);
    EXPECT_EQ(dc.SelectObject(stock), &second);
    EXPECT_EQ(dc.SelectObject(static_cast<CPen*>(nullptr)), nullptr);

    CBrush brush(kRed);
    EXPECT_EQ(dc.SelectObject(&brush)->m_hObject, ::GetStockObject(WHITE_BRUSH));
    EXPECT_EQ(dc.SelectStockObject(NULL_BRUSH), &brush);
    CFont font;
    font.CreatePointFont(80, TEXT("Tahoma"));
    CFont* formerFont = dc.SelectObject(&font);
    EXPECT_EQ(formerFont->m_hObject, ::GetStockObject(SYSTEM_FONT));
    EXPECT_EQ(dc.SelectObject(formerFont), &font);
}

TEST(DcObjects, SelectObjectTakesObjectsByValueAndGivesTheFormerHandle)
{
    CDC dc;
    ASSERT_TRUE(dc.CreateCompatibleDC(nullptr));
    CFont font;
    ASSERT_TRUE(font.CreateStockObject(DEFAULT_GUI_FONT));
    const HGDIOBJ former = ::GetCurrentObject(dc.m_hDC, OBJ_FONT);
    EXPECT_EQ(dc.SelectObject(font), former);
    EXPECT_EQ(::GetCurrentObject(dc.m_hDC, OBJ_FONT), font.m_hObject);
}
