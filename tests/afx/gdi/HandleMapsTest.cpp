#include "MemoryDc.h"

#include <thread>

namespace
{
bool Lives(HGDIOBJ object)
{
    return ::GetObjectType(object) != 0;
}
} // namespace

TEST(GdiObject, FromHandleGivesTheOwnerWhileItOwns)
{
    CPen pen(PS_SOLID, 1, kRed);
    HPEN handle = pen;
    EXPECT_EQ(CPen::FromHandle(handle), &pen);
    pen.Detach();
    EXPECT_NE(CPen::FromHandle(handle), &pen);
    ::DeleteObject(handle);
}

TEST(GdiObject, TemporaryObjectDoesNotDeleteItsHandle)
{
    HBRUSH handle = ::CreateSolidBrush(kRed);
    CBrush* temporary = CBrush::FromHandle(handle);
    ASSERT_NE(temporary, nullptr);
    EXPECT_EQ(temporary->m_hObject, handle);
    EXPECT_EQ(CBrush::FromHandle(handle), temporary);
    CGdiObject::DeleteTempMap();
    EXPECT_TRUE(Lives(handle));
    ::DeleteObject(handle);
}

TEST(GdiObject, TemporaryObjectHasTheClassOfItsHandle)
{
    CDC dc;
    ASSERT_TRUE(dc.CreateCompatibleDC(nullptr));
    EXPECT_TRUE(dc.GetCurrentPen()->IsKindOf(RUNTIME_CLASS(CPen)));
    EXPECT_TRUE(dc.GetCurrentBrush()->IsKindOf(RUNTIME_CLASS(CBrush)));
    EXPECT_TRUE(dc.GetCurrentFont()->IsKindOf(RUNTIME_CLASS(CFont)));
    EXPECT_TRUE(dc.GetCurrentBitmap()->IsKindOf(RUNTIME_CLASS(CBitmap)));
    EXPECT_TRUE(dc.GetCurrentPalette()->IsKindOf(RUNTIME_CLASS(CPalette)));
}

TEST(GdiObject, FromHandleOfNullIsNull)
{
    EXPECT_EQ(CGdiObject::FromHandle(nullptr), nullptr);
    EXPECT_EQ(CPen::FromHandle(nullptr), nullptr);
    EXPECT_EQ(CDC::FromHandle(nullptr), nullptr);
}

TEST(GdiObject, MapsAreKeptPerThread)
{
    CPen pen(PS_SOLID, 1, kRed);
    CPen* other = &pen;
    std::thread([&] { other = CPen::FromHandle(pen); }).join();
    EXPECT_NE(other, &pen);
}
