#include "Painted.h"

#include <tests/support/Support.h>
#include <tests/support/ui/AfxHost.h>

#include <afxwin.h>

namespace
{
constexpr UINT kId = 77;
constexpr DWORD kChild = WS_CHILD | WS_VISIBLE;
const CRect kPlace(10, 10, 160, 130);
} // namespace

TEST(Static, ShowsPicturesAndReturnsTheFormer)
{
    ts::AfxHost host;
    CStatic label;
    ASSERT_TRUE(label.Create(nullptr, kChild | SS_ICON, kPlace, &host));
    EXPECT_EQ(label.GetDlgCtrlID(), 0xffff);
    HICON error = ::LoadIcon(nullptr, IDI_ERROR);
    EXPECT_EQ(label.SetIcon(error), nullptr);
    EXPECT_EQ(label.GetIcon(), error);
    EXPECT_EQ(label.SetIcon(nullptr), error);

    CStatic picture;
    ASSERT_TRUE(picture.Create(nullptr, kChild | SS_BITMAP, kPlace, &host, kId));
    CBitmap bitmap;
    bitmap.CreateBitmap(4, 4, 1, 32, nullptr);
    EXPECT_EQ(picture.SetBitmap(bitmap), nullptr);
    EXPECT_EQ(picture.GetBitmap(), static_cast<HBITMAP>(bitmap));
}

TEST(OwnerDraw, StaticDrawsItself)
{
    ts::AfxHost host;
    Painted<CStatic> label;
    ASSERT_TRUE(label.Create(TEXT("x"), kChild | SS_OWNERDRAW, kPlace, &host, kId));
    EXPECT_TRUE(IsPainted(label));
    EXPECT_EQ(label.type, static_cast<UINT>(ODT_STATIC));
}
