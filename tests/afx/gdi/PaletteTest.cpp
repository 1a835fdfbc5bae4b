#include "MemoryDc.h"

TEST(Palette, EntriesCanBeReadAndChanged)
{
    struct
    {
        WORD version = 0x300;
        WORD count = 2;
        PALETTEENTRY entries[2] = {{255, 0, 0, 0}, {0, 0, 255, 0}};
    } wanted;
    CPalette palette;
    ASSERT_TRUE(palette.CreatePalette(reinterpret_cast<LPLOGPALETTE>(&wanted)));
    EXPECT_EQ(palette.GetEntryCount(), 2);
    EXPECT_EQ(palette.GetNearestPaletteIndex(RGB(0, 0, 250)), 1u);
    PALETTEENTRY green = {0, 255, 0, 0};
    EXPECT_EQ(palette.SetPaletteEntries(0, 1, &green), 1u);
    PALETTEENTRY read = {};
    EXPECT_EQ(palette.GetPaletteEntries(0, 1, &read), 1u);
    EXPECT_EQ(read.peGreen, 255);
    EXPECT_TRUE(palette.ResizePalette(4));
    EXPECT_EQ(palette.GetEntryCount(), 4);
    EXPECT_FALSE(CPalette().CreatePalette(nullptr));
    EXPECT_EQ(CPalette().GetEntryCount(), 0);
}
