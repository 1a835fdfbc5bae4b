#include <QorUI/app/draw/ImageStrip.h>
#include <tests/app/res/resource.h>
#include <tests/support/Imports.h>
#include <tests/support/Resources.h>
#include <tests/support/ui/Drawn.h>

#include <gtest/gtest.h>

namespace
{

TEST(ImageList, StripOf80By16GivesFiveSquareImages)
{
    CImageList list;
    UINT size = 0;
    EXPECT_EQ(5, QorCreateImageList(list, IDB_ICONS, ts::Program(), RGB(255, 255, 255), &size));
    EXPECT_EQ(16u, size);
    int cx = 0;
    int cy = 0;
    ASSERT_TRUE(::ImageList_GetIconSize(list.m_hImageList, &cx, &cy));
    EXPECT_EQ(16, cx);
    EXPECT_EQ(16, cy);
}

TEST(ImageList, NullModuleMeansTheProgram)
{
    CImageList list;
    EXPECT_EQ(5, QorCreateImageList(list, IDB_ICONS, nullptr, RGB(255, 255, 255), nullptr));
}

TEST(ImageList, MaskColourIsTransparent)
{
    CImageList list;
    ASSERT_EQ(5, QorCreateImageList(list, IDB_ICONS, ts::Program(), RGB(255, 255, 255), nullptr));
    const ts::Picture picture =
        ts::Drawn(16, 16, [&](CDC& dc) { ::ImageList_Draw(list.m_hImageList, 1, dc, 0, 0, ILD_TRANSPARENT); });
    EXPECT_EQ(ts::kPaper, picture.At(0, 5));
    EXPECT_EQ(RGB(0, 255, 0), picture.At(1, 5));
}

TEST(ImageList, MissingBitmapGivesNoImages)
{
    CImageList list;
    UINT size = 77;
    EXPECT_EQ(0, QorCreateImageList(list, IDB_MISSING, ts::Program(), 0, &size));
    EXPECT_EQ(77u, size);
    EXPECT_EQ(nullptr, list.m_hImageList);
}

TEST(ImageList, StripWithoutHeightGivesNoImages)
{
    CImageList list;
    EXPECT_EQ(0, QorCreateImageList(list, IDB_FLAT, ts::Program(), 0, nullptr));
}

/** Width, height, flags, initial number and growth of the image lists that were made. */
std::vector<std::vector<UINT>> g_imageLists;

HIMAGELIST WINAPI RecordImageList(int cx, int cy, UINT flags, int initial, int grow)
{
    g_imageLists.push_back(
        {static_cast<UINT>(cx), static_cast<UINT>(cy), flags, static_cast<UINT>(initial), static_cast<UINT>(grow)});
    return ::ImageList_Create(cx, cy, flags, initial, grow);
}

TEST(ImageList, IsMadeForTheImagesOfTheStripAndGrowsByOne)
{
    const ts::ReplacedImport record(L"afx.dll", "ImageList_Create", &RecordImageList);
    g_imageLists.clear();
    CImageList list;
    EXPECT_EQ(5, QorCreateImageList(list, IDB_ICONS, ts::Program(), 0, nullptr));
    EXPECT_EQ((std::vector<std::vector<UINT>>{{16, 16, ILC_COLORDDB | ILC_MASK, 5, 1}}), g_imageLists);
}

HIMAGELIST WINAPI NoImageList(int, int, UINT, int, int)
{
    return nullptr;
}

TEST(ImageList, ThatCannotBeMadeGivesNoImagesAndLeavesNothingBehind)
{
    const ts::ReplacedImport none(L"afx.dll", "ImageList_Create", &NoImageList);
    UINT size = 77;
    EXPECT_TRUE(ts::NoLeak([&] {
        CImageList list;
        EXPECT_EQ(0, QorCreateImageList(list, IDB_ICONS, ts::Program(), 0, &size));
        EXPECT_EQ(nullptr, list.m_hImageList);
    }));
    EXPECT_EQ(77u, size);
}

int WINAPI NoImages(HIMAGELIST, HBITMAP, COLORREF)
{
    return -1;
}

TEST(ImageList, ThatTakesNoImagesHasNoneButTheirSizeIsTold)
{
    const ts::ReplacedImport none(L"afx.dll", "ImageList_AddMasked", &NoImages);
    CImageList list;
    UINT size = 77;
    EXPECT_EQ(0, QorCreateImageList(list, IDB_ICONS, ts::Program(), 0, &size));
    EXPECT_EQ(16u, size);
}

TEST(ImageList, BitmapIsFreedOnEveryPath)
{
    EXPECT_TRUE(ts::NoLeak([] {
        CImageList list;
        EXPECT_EQ(5, QorCreateImageList(list, IDB_ICONS, ts::Program(), 0, nullptr));
        CImageList none;
        EXPECT_EQ(0, QorCreateImageList(none, IDB_FLAT, ts::Program(), 0, nullptr));
    }));
}

TEST(ImageList, WithoutGdiHandlesIsRefused)
{
    CImageList list;
    UINT size = 77;
    const ts::GdiShortage shortage;
    EXPECT_EQ(0, QorCreateImageList(list, IDB_ICONS, ts::Program(), 0, &size));
    EXPECT_EQ(77u, size);
}

} // namespace
