#include "MemoryDc.h"
#include "resource.h"

TEST(Bitmap, LoadsFromTheResourceChainByIdAndName)
{
    BITMAP info = {};
    CBitmap byId;
    ASSERT_TRUE(byId.LoadBitmap(IDB_STRIP));
    ASSERT_NE(byId.GetBitmap(&info), 0);
    EXPECT_EQ(info.bmWidth, 24);
    EXPECT_EQ(info.bmHeight, 8);
    CBitmap byName;
    EXPECT_TRUE(byName.LoadBitmap(TEXT("NAMED_STRIP")));
}

TEST(Bitmap, MissingResourceIsRefused)
{
    CBitmap bitmap;
    EXPECT_FALSE(bitmap.LoadBitmap(9999));
    EXPECT_FALSE(bitmap.LoadBitmap(TEXT("NO_SUCH_BITMAP")));
    EXPECT_FALSE(bitmap.LoadMappedBitmap(9999));
    EXPECT_EQ(bitmap.GetSafeHandle(), nullptr);
    BITMAP info = {};
    EXPECT_EQ(bitmap.GetBitmap(&info), 0);
}

TEST(Bitmap, OemBitmapIsTheSystems)
{
    CBitmap bitmap;
    EXPECT_TRUE(bitmap.LoadOEMBitmap(32754)); // OBM_CLOSE
}

TEST(Bitmap, MappedBitmapTakesTheGivenColours)
{
    COLORMAP map = {RGB(128, 128, 128), kRed};
    CBitmap bitmap;
    ASSERT_TRUE(bitmap.LoadMappedBitmap(IDB_GREYS, 0, &map, 1));
    CDC source;
    source.CreateCompatibleDC(nullptr);
    CBitmap* former = source.SelectObject(&bitmap);
    EXPECT_EQ(source.GetPixel(0, 0), kRed);
    EXPECT_EQ(source.GetPixel(7, 0), RGB(192, 192, 192));
    source.SelectObject(former);
}

TEST(Bitmap, MappedBitmapTakesTheSystemsColoursByItself)
{
    CBitmap bitmap;
    ASSERT_TRUE(bitmap.LoadMappedBitmap(IDB_GREYS));
    CDC source;
    source.CreateCompatibleDC(nullptr);
    CBitmap* former = source.SelectObject(&bitmap);
    EXPECT_EQ(source.GetPixel(0, 0), ::GetSysColor(COLOR_BTNSHADOW));
    EXPECT_EQ(source.GetPixel(7, 0), ::GetSysColor(COLOR_BTNFACE));
    source.SelectObject(former);
}

TEST(Bitmap, BitsCanBeReadAndWritten)
{
    CBitmap bitmap;
    ASSERT_TRUE(bitmap.CreateBitmap(2, 1, 1, 32, nullptr));
    const DWORD written[2] = {0x00FF0000, 0x000000FF};
    EXPECT_EQ(bitmap.SetBitmapBits(sizeof(written), written), sizeof(written));
    DWORD read[2] = {};
    EXPECT_EQ(bitmap.GetBitmapBits(sizeof(read), read), sizeof(read));
    EXPECT_EQ(read[0], written[0]);
    EXPECT_EQ(read[1], written[1]);
}

TEST(Bitmap, DimensionIsRemembered)
{
    CBitmap bitmap;
    ASSERT_TRUE(bitmap.CreateBitmap(1, 1, 1, 1, nullptr));
    EXPECT_EQ(bitmap.SetBitmapDimension(30, 40), CSize(0, 0));
    EXPECT_EQ(bitmap.SetBitmapDimension(1, 2), CSize(30, 40));
    EXPECT_EQ(bitmap.GetBitmapDimension(), CSize(1, 2));
}

TEST(Bitmap, IsMadeInEveryWay)
{
    CClientDC screen(nullptr);
    BITMAP info = {};
    CBitmap compatible;
    ASSERT_TRUE(compatible.CreateCompatibleBitmap(&screen, 5, 6));
    compatible.GetBitmap(&info);
    EXPECT_EQ(info.bmHeight, 6);
    info.bmBits = nullptr;
    CBitmap indirect;
    EXPECT_TRUE(indirect.CreateBitmapIndirect(&info));
    CBitmap discardable;
    EXPECT_TRUE(discardable.CreateDiscardableBitmap(&screen, 5, 6));
    EXPECT_FALSE(CBitmap().CreateBitmapIndirect(nullptr));
    EXPECT_FALSE(CBitmap().CreateCompatibleBitmap(nullptr, 5, 6));
    EXPECT_FALSE(CBitmap().CreateDiscardableBitmap(nullptr, 5, 6));
}
