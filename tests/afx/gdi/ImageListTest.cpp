#include "MemoryDc.h"
#include "resource.h"

#include <tests/support/Support.h>

#include <afxcmn.h>

namespace
{
constexpr COLORREF kMask = RGB(255, 0, 255);

/** The red, green and blue picture of 8 x 8 with a transparent first row. */
class Strip : public CImageList
{
  public:
    Strip() { Create(IDB_STRIP, 8, 1, kMask); }
};
} // namespace

TEST(ImageList, DestructorDestroysTheList)
{
    EXPECT_TRUE(ts::NoLeak([] {
        Strip list;
        CImageList copy;
        copy.Create(&list);
    }));
}

TEST(ImageList, OwnerOfAListRefusesANewOneAndLeavesNothingBehind)
{
    EXPECT_TRUE(ts::NoLeak([] {
        Strip list;
        EXPECT_FALSE(list.Create(8, 8, ILC_COLOR, 1, 1));
        EXPECT_FALSE(list.Create(&list));
        EXPECT_EQ(3, list.GetImageCount());
    }));
}

TEST(ImageList, OwnerAndTemporaryObjects)
{
    HIMAGELIST handle = nullptr;
    {
        Strip list;
        handle = list;
        EXPECT_EQ(CImageList::FromHandle(handle), &list);
        EXPECT_EQ(CImageList::FromHandlePermanent(handle), &list);
        EXPECT_EQ(list.Detach(), handle);
    }
    EXPECT_EQ(CImageList::FromHandlePermanent(handle), nullptr);
    EXPECT_EQ(CImageList::FromHandle(handle)->GetImageCount(), 3);
    CImageList::DeleteTempMap();
    EXPECT_EQ(::ImageList_GetImageCount(handle), 3);
    CImageList again;
    EXPECT_TRUE(again.Attach(handle));
    EXPECT_FALSE(again.Attach(handle));
    EXPECT_TRUE(again.DeleteImageList());
    EXPECT_FALSE(again.DeleteImageList());
    EXPECT_EQ(CImageList::FromHandle(nullptr), nullptr);
}

TEST(ImageList, LoadsAndCutsAStrip)
{
    Strip list;
    EXPECT_EQ(list.GetImageCount(), 3);
    IMAGEINFO info = {};
    ASSERT_TRUE(list.GetImageInfo(1, &info));
    EXPECT_EQ(CRect(info.rcImage).Size(), CSize(8, 8));
    EXPECT_FALSE(list.GetImageInfo(1, nullptr));
    CImageList byName;
    EXPECT_TRUE(byName.Create(TEXT("NAMED_STRIP"), 8, 1, kMask));
    EXPECT_FALSE(CImageList().Create(9999, 8, 1, kMask));
}

TEST(ImageList, DrawsAPictureWithItsHoles)
{
    Strip list;
    MemoryDc dc;
    EXPECT_TRUE(list.Draw(&dc, 1, CPoint(2, 2), ILD_TRANSPARENT));
    EXPECT_EQ(dc.GetPixel(2, 2), kWhite);
    EXPECT_EQ(dc.GetPixel(2, 3), kGreen);
    EXPECT_EQ(dc.Count(kGreen), 56);
    EXPECT_FALSE(list.Draw(&dc, 7, CPoint(0, 0), ILD_NORMAL));
    EXPECT_FALSE(list.Draw(nullptr, 0, CPoint(0, 0), ILD_NORMAL));
}

TEST(ImageList, DrawsAPartWithAnOwnBackground)
{
    Strip list;
    MemoryDc dc;
    EXPECT_TRUE(list.DrawEx(&dc, 0, CPoint(0, 0), CSize(4, 4), kBlue, CLR_NONE, ILD_NORMAL));
    EXPECT_EQ(dc.Count(kRed), 12);
    EXPECT_EQ(dc.Count(kBlue), 4);
    MemoryDc other;
    EXPECT_TRUE(list.DrawIndirect(&other, 2, CPoint(0, 0), CSize(4, 4), CPoint(4, 4)));
    EXPECT_EQ(other.Count(kBlue), 16);
    IMAGELISTDRAWPARAMS params = {};
    params.hdcDst = other;
    params.i = 0;
    params.x = 20;
    params.rgbBk = CLR_NONE;
    EXPECT_TRUE(list.DrawIndirect(&params));
    EXPECT_EQ(other.Count(kRed), 56);
    EXPECT_EQ(params.himl, list.m_hImageList);
    EXPECT_FALSE(list.DrawIndirect(nullptr));
    EXPECT_FALSE(CImageList().DrawIndirect(&params));
}

TEST(ImageList, IndirectDrawingStartsInsideThePicture)
{
    MemoryDc picture(8, 8);
    picture.FillSolidRect(0, 0, 4, 8, kRed);
    picture.FillSolidRect(4, 0, 4, 8, kBlue);
    CBitmap* half = picture.SelectObject(CBitmap::FromHandle(::CreateBitmap(1, 1, 1, 1, nullptr)));
    CImageList list;
    list.Create(8, 8, ILC_COLOR24, 1, 1);
    list.Add(half, static_cast<CBitmap*>(nullptr));
    MemoryDc dc;
    EXPECT_TRUE(list.DrawIndirect(&dc, 0, CPoint(0, 0), CSize(4, 8), CPoint(4, 0)));
    EXPECT_EQ(dc.Count(kBlue), 32);
    EXPECT_EQ(dc.Count(kRed), 0);
    ::DeleteObject(picture.SelectObject(half)->m_hObject);
}

TEST(ImageList, PicturesAreAddedReplacedAndRemoved)
{
    CImageList list;
    ASSERT_TRUE(list.Create(8, 8, ILC_COLOR24 | ILC_MASK, 0, 1));
    CBitmap strip;
    strip.LoadBitmap(IDB_STRIP);
    EXPECT_EQ(list.Add(&strip, kMask), 0);
    EXPECT_EQ(list.GetImageCount(), 3);
    CBitmap plain;
    plain.LoadBitmap(IDB_STRIP);
    EXPECT_EQ(list.Add(&plain, static_cast<CBitmap*>(nullptr)), 3);
    EXPECT_EQ(list.Add(::LoadIcon(nullptr, IDI_ERROR)), 6);
    EXPECT_EQ(list.Replace(0, ::LoadIcon(nullptr, IDI_ERROR)), 0);
    CBitmap one;
    one.CreateBitmap(8, 8, 1, 24, nullptr);
    EXPECT_TRUE(list.Replace(1, &one, nullptr));
    EXPECT_TRUE(list.Remove(6));
    EXPECT_EQ(list.GetImageCount(), 6);
    EXPECT_FALSE(list.Remove(6));
    EXPECT_TRUE(list.SetImageCount(2));
    EXPECT_EQ(list.GetImageCount(), 2);
    EXPECT_TRUE(list.Remove(-1));
    EXPECT_EQ(list.GetImageCount(), 0);
    EXPECT_EQ(list.Add(static_cast<CBitmap*>(nullptr), kMask), -1);
    EXPECT_FALSE(list.Replace(0, nullptr, nullptr));
}

TEST(ImageList, CopiesAreIndependent)
{
    Strip list;
    CImageList copy;
    ASSERT_TRUE(copy.Create(&list));
    copy.Remove(-1);
    EXPECT_EQ(list.GetImageCount(), 3);
    EXPECT_FALSE(CImageList().Create(static_cast<CImageList*>(nullptr)));
    CImageList merged;
    EXPECT_TRUE(merged.Create(list, 0, list, 1, 0, 0));
    EXPECT_EQ(merged.GetImageCount(), 1);
}

TEST(ImageList, PicturesMoveInsideTheList)
{
    Strip list;
    EXPECT_TRUE(list.Copy(0, 2));
    MemoryDc dc;
    list.Draw(&dc, 0, CPoint(0, 0), ILD_TRANSPARENT);
    EXPECT_EQ(dc.Count(kBlue), 56);
    EXPECT_TRUE(list.Copy(0, &list, 2, ILCF_SWAP));
    EXPECT_FALSE(list.Copy(0, nullptr, 2));
}

TEST(ImageList, BackgroundOverlayAndIcon)
{
    Strip list;
    EXPECT_EQ(list.GetBkColor(), CLR_NONE);
    EXPECT_EQ(list.SetBkColor(kGreen), CLR_NONE);
    EXPECT_EQ(list.GetBkColor(), kGreen);
    EXPECT_TRUE(list.SetOverlayImage(1, 1));
    HICON icon = list.ExtractIcon(0);
    EXPECT_NE(icon, nullptr);
    ::DestroyIcon(icon);
    EXPECT_EQ(CImageList().ExtractIcon(0), nullptr);
}

TEST(ImageList, DraggingShowsItsOwnList)
{
    Strip list;
    EXPECT_TRUE(list.BeginDrag(0, CPoint(3, 4)));
    CPoint at;
    CPoint hotSpot;
    EXPECT_NE(CImageList::GetDragImage(&at, &hotSpot), nullptr);
    EXPECT_EQ(hotSpot, CPoint(3, 4));
    EXPECT_TRUE(CImageList::DragEnter(nullptr, CPoint(10, 10)));
    EXPECT_TRUE(CImageList::DragMove(CPoint(20, 20)));
    CImageList::GetDragImage(&at, nullptr);
    EXPECT_EQ(at, CPoint(20, 20));
    EXPECT_TRUE(CImageList::DragShowNolock(FALSE));
    EXPECT_TRUE(list.SetDragCursorImage(1, CPoint(0, 0)));
    EXPECT_TRUE(CImageList::DragLeave(nullptr));
    CImageList::EndDrag();
    EXPECT_FALSE(CImageList().BeginDrag(0, CPoint(0, 0)));
}

TEST(ImageList, EmptyObjectFailsQuietly)
{
    CImageList list;
    MemoryDc dc;
    EXPECT_EQ(list.GetSafeHandle(), nullptr);
    EXPECT_EQ(list.GetImageCount(), 0);
    EXPECT_EQ(list.Detach(), nullptr);
    EXPECT_FALSE(list.Attach(nullptr));
    EXPECT_FALSE(list.Draw(&dc, 0, CPoint(0, 0), ILD_NORMAL));
    EXPECT_FALSE(list.Remove(0));
    EXPECT_EQ(list.Add(::LoadIcon(nullptr, IDI_ERROR)), -1);
}

TEST(ImageList, GivesNoHandleThroughANullPointer)
{
    CImageList* volatile none = nullptr;
    EXPECT_EQ(none->GetSafeHandle(), nullptr);
}
