#include <tests/support/ScreenDraws.h>

namespace ts
{
namespace
{
int g_count = 0;

/** Stands in for a function that draws on the device context it is given first. @tparam Number tells them apart. */
template <int Number, class Result, class... Rest>
struct Counting
{
    static Result WINAPI Draw(HDC dc, Rest... rest)
    {
        if (GetObjectType(dc) == OBJ_DC) {
            ++g_count;
        }
        return s_original(dc, rest...);
    }

    static inline Result(WINAPI* s_original)(HDC, Rest...) = nullptr;
};

template <int Number, class Result, class... Rest>
ImportRedirection::Function Counted(Result(WINAPI* original)(HDC, Rest...))
{
    using Stand = Counting<Number, Result, Rest...>;
    Stand::s_original = original;
    return ImportRedirection::Of(original, &Stand::Draw);
}

std::vector<ImportRedirection::Function> DrawingFunctions()
{
    return {Counted<0>(&BitBlt),
            Counted<1>(&StretchBlt),
            Counted<2>(&PatBlt),
            Counted<3>(&MaskBlt),
            Counted<4>(&GdiTransparentBlt),
            Counted<5>(&GdiAlphaBlend),
            Counted<6>(&GdiGradientFill),
            Counted<7>(&SetDIBitsToDevice),
            Counted<8>(&StretchDIBits),
            Counted<9>(&SetPixel),
            Counted<10>(&SetPixelV),
            Counted<11>(&LineTo),
            Counted<12>(&Polyline),
            Counted<13>(&PolylineTo),
            Counted<14>(&PolyPolyline),
            Counted<15>(&Polygon),
            Counted<16>(&PolyPolygon),
            Counted<17>(&Rectangle),
            Counted<18>(&RoundRect),
            Counted<19>(&Ellipse),
            Counted<20>(&Arc),
            Counted<21>(&ArcTo),
            Counted<22>(&Pie),
            Counted<23>(&::Chord),
            Counted<24>(&FillRgn),
            Counted<25>(&FrameRgn),
            Counted<26>(&PaintRgn),
            Counted<27>(&InvertRgn),
            Counted<28>(&TextOutW),
            Counted<29>(&ExtTextOutW),
            Counted<30>(&FillPath),
            Counted<31>(&StrokePath),
            Counted<32>(&StrokeAndFillPath),
            Counted<33>(&DrawIconEx)};
}
} // namespace

ScreenDraws::ScreenDraws() : m_redirection(DrawingFunctions())
{
    g_count = 0;
}

int ScreenDraws::Count() const
{
    return g_count;
}

} // namespace ts
