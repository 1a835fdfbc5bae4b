#include <tests/support/FontGuard.h>

#include <string>

namespace ts
{
namespace
{
constexpr int kDialogFontPoints = 8;
constexpr SIZE kStandardUnits = {6, 13};
constexpr wchar_t kLetters[] = L"ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz";
constexpr int kLetterCount = 52;

struct FontInfo
{
    SIZE units = {};
    std::wstring face;
};

FontInfo Measure()
{
    FontInfo info;
    const HDC dc = CreateCompatibleDC(nullptr);
    const int height = -MulDiv(kDialogFontPoints, GetDeviceCaps(dc, LOGPIXELSY), 72);
    const HFONT font =
        CreateFontW(height, 0, 0, 0, FW_NORMAL, FALSE, FALSE, FALSE, DEFAULT_CHARSET, 0, 0, 0, 0, L"MS Shell Dlg");
    const HGDIOBJ old = SelectObject(dc, font);
    TEXTMETRICW metrics = {};
    GetTextMetricsW(dc, &metrics);
    SIZE extent = {};
    GetTextExtentPoint32W(dc, kLetters, kLetterCount, &extent);
    wchar_t face[LF_FACESIZE] = {};
    GetTextFaceW(dc, LF_FACESIZE, face);
    info.units = {(extent.cx / (kLetterCount / 2) + 1) / 2, metrics.tmHeight};
    info.face = face;
    SelectObject(dc, old);
    DeleteObject(font);
    DeleteDC(dc);
    return info;
}
} // namespace

SIZE DialogBaseUnits()
{
    return Measure().units;
}

SIZE DialogUnitsToPixels(int horizontal, int vertical)
{
    const SIZE units = DialogBaseUnits();
    return {MulDiv(horizontal, units.cx, 4), MulDiv(vertical, units.cy, 8)};
}

testing::AssertionResult HasStandardDialogFont()
{
    const FontInfo info = Measure();
    if (info.units.cx == kStandardUnits.cx && info.units.cy == kStandardUnits.cy) {
        return testing::AssertionSuccess();
    }
    return testing::AssertionFailure() << "the dialog font MS Shell Dlg is drawn with '"
                                       << std::string(info.face.begin(), info.face.end()) << "', base units "
                                       << info.units.cx << " x " << info.units.cy
                                       << " instead of 6 x 13: install the package fonts-wine (it brings Tahoma) and "
                                          "make the Wine prefix anew";
}

} // namespace ts
