#include "GradientLine.h"

namespace
{

constexpr COLOR16 kRuleBlue = 0xC800;
constexpr COLOR16 kRuleWhite = 0xFF00;

} // namespace

void QorDrawGradientLine(CDC* dc, CPoint start, int length)
{
    if (!dc) {
        return;
    }
    TRIVERTEX ends[] = {{start.x, start.y - 1, 0, 0, kRuleBlue, 0},
                        {start.x + length, start.y, kRuleWhite, kRuleWhite, kRuleWhite, 0}};
    GRADIENT_RECT rect = {0, 1};
    dc->GradientFill(ends, 2, &rect, 1, GRADIENT_FILL_RECT_H);
}
