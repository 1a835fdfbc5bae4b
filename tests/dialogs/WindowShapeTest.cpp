#include <QorUI/dialogs/WindowShape.h>
#include <tests/support/Support.h>

namespace
{

struct HitCase
{
    int x;
    int y;
    UINT hit;
};

// A window of 200 x 100 at (1000, 500).
constexpr RECT kWindow = {1000, 500, 1200, 600};

class SizingHit : public testing::TestWithParam<HitCase>
{
};

TEST_P(SizingHit, NamesTheBorderPart)
{
    const HitCase& hit = GetParam();
    const POINT point = {kWindow.left + hit.x, kWindow.top + hit.y};
    EXPECT_EQ(hit.hit, QorShape::SizingHit(kWindow, point)) << hit.x << ", " << hit.y;
}

INSTANTIATE_TEST_SUITE_P(Corners, SizingHit,
                         testing::Values(HitCase{0, 0, HTTOPLEFT}, HitCase{6, 6, HTTOPLEFT}, HitCase{6, 7, HTNOWHERE},
                                         HitCase{7, 6, HTNOWHERE}, HitCase{200, 0, HTTOPRIGHT},
                                         HitCase{194, 6, HTTOPRIGHT}, HitCase{193, 6, HTNOWHERE},
                                         HitCase{0, 100, HTBOTTOMLEFT}, HitCase{6, 94, HTBOTTOMLEFT},
                                         HitCase{6, 93, HTNOWHERE}, HitCase{200, 100, HTBOTTOMRIGHT},
                                         HitCase{194, 94, HTBOTTOMRIGHT}, HitCase{193, 94, HTNOWHERE}));

INSTANTIATE_TEST_SUITE_P(Edges, SizingHit,
                         testing::Values(HitCase{0, 50, HTLEFT}, HitCase{3, 50, HTLEFT}, HitCase{4, 50, HTNOWHERE},
                                         HitCase{200, 50, HTRIGHT}, HitCase{197, 50, HTRIGHT},
                                         HitCase{196, 50, HTNOWHERE}, HitCase{100, 0, HTTOP}, HitCase{100, 3, HTTOP},
                                         HitCase{100, 4, HTNOWHERE}, HitCase{100, 100, HTBOTTOM},
                                         HitCase{100, 97, HTBOTTOM}, HitCase{100, 96, HTNOWHERE}, HitCase{3, 7, HTLEFT},
                                         HitCase{7, 3, HTTOP}));

TEST(SizedParts, GrowingCoversTheOldBorderAndEverythingNew)
{
    const auto parts = QorShape::SizedParts(CSize(200, 100), CSize(250, 140), CSize(108, 32));
    EXPECT_EQ(CRect(92, 0, 250, 32), parts[0]);
    EXPECT_EQ(CRect(191, 0, 250, 100), parts[1]);
    EXPECT_EQ(CRect(0, 91, 250, 140), parts[2]);
}

TEST(SizedParts, ShrinkingCoversTheNewBorder)
{
    const auto parts = QorShape::SizedParts(CSize(200, 100), CSize(180, 90), CSize(159, 84));
    EXPECT_EQ(CRect(41, 0, 180, 84), parts[0]);
    EXPECT_EQ(CRect(171, 0, 180, 100), parts[1]);
    EXPECT_EQ(CRect(0, 81, 180, 90), parts[2]);
}

} // namespace
