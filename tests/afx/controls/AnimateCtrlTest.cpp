#include "resource.h"

#include <tests/support/Support.h>
#include <tests/support/ui/AfxHost.h>

#include <afxcmn.h>
#include <afxwin.h>

namespace
{
constexpr UINT kId = 77;
constexpr DWORD kChild = WS_CHILD | WS_VISIBLE;
} // namespace

TEST(Animate, PlaysAnAnimationOfTheResources)
{
    ts::AfxHost host;
    CAnimateCtrl animation;
    ASSERT_TRUE(animation.Create(kChild | ACS_TIMER, CRect(0, 0, 16, 16), &host, kId));
    ASSERT_TRUE(animation.Open(IDA_CLIP));
    EXPECT_TRUE(animation.Seek(0));
    EXPECT_TRUE(ts::PumpUntil([&] { return ts::CaptureWindow(animation).At(8, 8) == RGB(255, 0, 0); }));
    EXPECT_TRUE(animation.Seek(2));
    EXPECT_TRUE(ts::PumpUntil([&] { return ts::CaptureWindow(animation).At(8, 8) == RGB(0, 0, 255); }));
    bool stopped = false;
    host.Log().Answer(WM_COMMAND, [&](const ts::Message& message) -> std::optional<LRESULT> {
        stopped |= HIWORD(message.wParam) == ACN_STOP;
        return std::nullopt;
    });
    EXPECT_TRUE(animation.Play(0, static_cast<UINT>(-1), static_cast<UINT>(-1)));
    EXPECT_TRUE(animation.Stop());
    EXPECT_TRUE(ts::PumpUntil([&] { return stopped; }));
    animation.Close();
}

TEST(Animate, MissingAnimationIsRefused)
{
    ts::AfxHost host;
    CAnimateCtrl animation;
    ASSERT_TRUE(animation.CreateEx(WS_EX_CLIENTEDGE, kChild, CRect(0, 0, 16, 16), &host, kId));
    EXPECT_FALSE(animation.Open(9999));
    EXPECT_FALSE(animation.Open(TEXT("no such file.avi")));
    EXPECT_FALSE(animation.Play(0, 1, 1));
}
