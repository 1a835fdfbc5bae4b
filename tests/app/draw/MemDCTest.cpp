#include <QorUI/app/draw/MemDC.h>
#include <tests/support/Imports.h>
#include <tests/support/Refusals.h>
#include <tests/support/ui/Drawn.h>

namespace
{

HDC g_memory = nullptr;
int g_deletedSelected = 0; // objects that were selected in the device context when they were deleted
int g_deletedFree = 0;     // others

BOOL WINAPI WatchDeletion(HGDIOBJ object)
{
    ++(GetCurrentObject(g_memory, OBJ_BITMAP) == object ? g_deletedSelected : g_deletedFree);
    return ::DeleteObject(object);
}

} // namespace

TEST(MemDC, DrawsAtTheTargetsCoordinates)
{
    const ts::Picture picture = ts::Drawn(40, 30, [](CDC& dc) {
        CMemDC memory(&dc);
        memory.FillSolidRect(0, 0, 40, 30, RGB(10, 20, 30));
        memory.FillSolidRect(5, 6, 7, 8, RGB(200, 0, 0));
    });
    EXPECT_TRUE(ts::AreaIs(picture, CRect(5, 6, 12, 14), RGB(200, 0, 0)));
    EXPECT_EQ(56, picture.Count(RGB(200, 0, 0)));
    EXPECT_EQ(40 * 30 - 56, picture.Count(RGB(10, 20, 30)));
}

TEST(MemDC, TargetChangesOnlyAtTheEnd)
{
    ts::Drawn(40, 30, [](CDC& dc) {
        {
            CMemDC memory(&dc);
            memory.FillSolidRect(0, 0, 40, 30, RGB(10, 20, 30));
            EXPECT_EQ(ts::kPaper, dc.GetPixel(5, 5));
        }
        EXPECT_EQ(RGB(10, 20, 30), dc.GetPixel(5, 5));
    });
}

TEST(MemDC, PaintsTheClipBoxOnly)
{
    const ts::Picture picture = ts::Drawn(40, 30, [](CDC& dc) {
        dc.IntersectClipRect(10, 5, 20, 15);
        CMemDC memory(&dc);
        EXPECT_EQ(CPoint(10, 5), memory.GetWindowOrg());
        memory.FillSolidRect(0, 0, 40, 30, RGB(10, 20, 30));
    });
    EXPECT_TRUE(ts::AreaIs(picture, CRect(10, 5, 20, 15), RGB(10, 20, 30)));
    EXPECT_EQ(100, picture.Count(RGB(10, 20, 30)));
}

TEST(MemDC, EmptyClipBoxPaintsNothing)
{
    const ts::Picture picture = ts::Drawn(20, 20, [](CDC& dc) {
        dc.IntersectClipRect(10, 5, 10, 5);
        CMemDC memory(&dc);
        memory.FillSolidRect(0, 0, 20, 20, RGB(10, 20, 30));
    });
    EXPECT_EQ(400, picture.Count(ts::kPaper));
}

TEST(MemDC, WithoutMemoryForThePictureNothingIsPainted)
{
    const ts::ReplacedImport none(L"afx.dll", "CreateCompatibleBitmap", &ts::NoCompatibleBitmap);
    ts::Picture picture = ts::DrawTo(
        20, 20,
        [](HDC dc) {
            CMemDC memory(CDC::FromHandle(dc));
            memory.FillSolidRect(0, 0, 20, 20, RGB(10, 20, 30));
        },
        ts::kPaper);
    EXPECT_EQ(400, picture.Count(ts::kPaper));
}

TEST(MemDC, WithoutTargetNothingHappens)
{
    CMemDC memory(nullptr);
    EXPECT_EQ(nullptr, memory.m_hDC);
}

TEST(MemDC, LeavesNoObjects)
{
    EXPECT_TRUE(ts::NoLeak(
        [] {
            ts::Drawn(20, 20, [](CDC& dc) {
                CMemDC memory(&dc);
                memory.FillSolidRect(0, 0, 20, 20, RGB(10, 20, 30));
            });
        },
        200));
}

TEST(MemDC, PictureIsLetGoBeforeItsEndEvenWhenTheFrameworkForgotTemporaryObjects)
{
    const ts::ReplacedImport watch(L"afx.dll", "DeleteObject", &WatchDeletion);
    g_deletedSelected = 0;
    g_deletedFree = 0;
    ts::Drawn(20, 20, [](CDC& dc) {
        const CMemDC memory(&dc);
        g_memory = memory.m_hDC;
        CGdiObject::DeleteTempMap();
    });
    g_memory = nullptr;
    EXPECT_EQ(0, g_deletedSelected);
    EXPECT_LT(0, g_deletedFree);
}
