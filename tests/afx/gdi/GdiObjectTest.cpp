#include "MemoryDc.h"

#include <tests/support/Support.h>

namespace
{
bool Lives(HGDIOBJ object)
{
    return ::GetObjectType(object) != 0;
}

template <class Object>
void ExpectEmptyIsHarmless()
{
    Object object;
    EXPECT_EQ(object.GetSafeHandle(), nullptr);
    EXPECT_FALSE(object.DeleteObject());
    EXPECT_EQ(object.Detach(), nullptr);
    EXPECT_FALSE(object.Attach(nullptr));
    EXPECT_EQ(object.GetObject(0, nullptr), 0);
    EXPECT_FALSE(object.UnrealizeObject());
}
} // namespace

TEST(GdiObject, DestructorDeletesTheHandle)
{
    HGDIOBJ handle = nullptr;
    {
        CPen pen(PS_SOLID, 1, kRed);
        handle = pen.m_hObject;
        EXPECT_TRUE(Lives(handle));
    }
    EXPECT_FALSE(Lives(handle));
}

TEST(GdiObject, DetachKeepsTheHandle)
{
    HGDIOBJ handle = nullptr;
    {
        CBrush brush(kRed);
        handle = brush.Detach();
        EXPECT_EQ(brush.GetSafeHandle(), nullptr);
    }
    EXPECT_TRUE(Lives(handle));
    ::DeleteObject(handle);
}

TEST(GdiObject, AttachTakesOwnershipOnceOnly)
{
    HBRUSH handle = ::CreateSolidBrush(kRed);
    CBrush brush;
    EXPECT_TRUE(brush.Attach(handle));
    EXPECT_FALSE(brush.Attach(::GetStockObject(WHITE_BRUSH)));
    EXPECT_EQ(static_cast<HBRUSH>(brush), handle);
    EXPECT_TRUE(brush.DeleteObject());
    EXPECT_FALSE(Lives(handle));
    EXPECT_FALSE(brush.DeleteObject());
}

TEST(GdiObject, OwnerOfAnotherObjectRefusesANewOneAndLeavesNothingBehind)
{
    EXPECT_TRUE(ts::NoLeak([] {
        CBrush brush(kRed);
        EXPECT_FALSE(brush.CreateSolidBrush(0));
        EXPECT_FALSE(brush.CreateHatchBrush(HS_CROSS, 0));
        CPen pen(PS_SOLID, 1, kRed);
        EXPECT_FALSE(pen.CreatePen(PS_DOT, 1, COLORREF(0)));
        CFont font;
        EXPECT_TRUE(font.CreatePointFont(90, TEXT("Arial")));
        EXPECT_FALSE(font.CreatePointFont(90, TEXT("Arial")));
        CBitmap bitmap;
        EXPECT_TRUE(bitmap.CreateBitmap(8, 8, 1, 1, nullptr));
        EXPECT_FALSE(bitmap.CreateBitmap(8, 8, 1, 1, nullptr));
        CRgn region;
        EXPECT_TRUE(region.CreateRectRgn(0, 0, 1, 1));
        EXPECT_FALSE(region.CreateRectRgn(0, 0, 1, 1));
        CDC dc;
        EXPECT_TRUE(dc.CreateCompatibleDC(nullptr));
        EXPECT_FALSE(dc.CreateCompatibleDC(nullptr));
    }));
}

TEST(GdiObject, EmptyObjectsAreHarmless)
{
    ExpectEmptyIsHarmless<CPen>();
    ExpectEmptyIsHarmless<CBrush>();
    ExpectEmptyIsHarmless<CFont>();
    ExpectEmptyIsHarmless<CBitmap>();
    ExpectEmptyIsHarmless<CPalette>();
    ExpectEmptyIsHarmless<CRgn>();
}

TEST(GdiObject, ComparesHandles)
{
    CBrush first(kRed);
    CBrush second(kRed);
    EXPECT_TRUE(first == first);
    EXPECT_TRUE(first != second);
}

TEST(GdiObject, StockObjectIsAttached)
{
    CPen pen;
    ASSERT_TRUE(pen.CreateStockObject(BLACK_PEN));
    EXPECT_EQ(pen.m_hObject, ::GetStockObject(BLACK_PEN));
    EXPECT_EQ(pen.GetObjectType(), static_cast<UINT>(OBJ_PEN));
    EXPECT_FALSE(CPen().CreateStockObject(-1));
}

TEST(GdiObject, LeavesNoHandleBehind)
{
    EXPECT_TRUE(ts::NoLeak([] {
        CPen pen(PS_SOLID, 2, kRed);
        CBrush brush(HS_CROSS, kBlue);
        CFont font;
        font.CreatePointFont(90, TEXT("Tahoma"));
        CRgn region;
        region.CreateRectRgn(0, 0, 5, 5);
        MemoryDc dc;
        CPen* formerPen = dc.SelectObject(&pen);
        CGdiObject* formerFont = dc.CDC::SelectObject(static_cast<CGdiObject*>(&font));
        dc.LineTo(4, 4);
        dc.SelectObject(formerPen);
        dc.CDC::SelectObject(formerFont);
    }));
}

TEST(GdiObject, GivesNoHandleThroughANullPointer)
{
    CGdiObject* volatile none = nullptr;
    EXPECT_EQ(none->GetSafeHandle(), nullptr);
}
