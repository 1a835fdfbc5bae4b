#include <tests/support/Support.h>

namespace
{

TEST(GdiShortage, LeavesAFewObjects)
{
    const auto possible = [] {
        std::vector<HBRUSH> brushes;
        while (const HBRUSH brush = brushes.size() < 10 ? CreateSolidBrush(RGB(0, 0, 0)) : nullptr) {
            brushes.push_back(brush);
        }
        for (const HBRUSH brush : brushes) {
            DeleteObject(brush);
        }
        return brushes.size();
    };
    for (const size_t left : {0u, 3u}) {
        const ts::GdiShortage shortage(left);
        EXPECT_EQ(left, possible());
    }
    EXPECT_EQ(10u, possible());
}

} // namespace
