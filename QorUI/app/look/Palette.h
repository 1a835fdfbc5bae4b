#pragma once

/** @file
 * The constants of the look: colours and sizes (in pixels) that several controls and dialogs share.
 */

#include <windows.h>

/** Colours and sizes, each named after what it is used for. */
namespace QorLook
{

inline constexpr COLORREF kBlack = RGB(0, 0, 0);              ///< text and lines that keep their colour
inline constexpr COLORREF kWhite = RGB(255, 255, 255);        ///< paper, inner frames, text on dark
inline constexpr COLORREF kPaleGrey = RGB(242, 242, 242);     ///< column headers, inner border of a button at rest
inline constexpr COLORREF kDlgBody = RGB(236, 245, 250);      ///< dialog body and selected backgrounds
inline constexpr COLORREF kDlgCaption = kWhite;               ///< caption band of a dialog
inline constexpr COLORREF kOutline = RGB(189, 189, 189);      ///< outline of dialogs, panels and frames
inline constexpr COLORREF kFrameBack = RGB(186, 210, 234);    ///< body of a frame window
inline constexpr COLORREF kFlatBorder = RGB(128, 128, 128);   ///< border of the flat input controls
inline constexpr COLORREF kCaptionText = kWhite;              ///< caption of a picture button, text of a text link
inline constexpr COLORREF kCmdHotBorder = RGB(182, 230, 251); ///< highlight of a command button: its outline
inline constexpr COLORREF kSpecialDay = RGB(0, 0, 255);       ///< number of a marked day in a calendar
inline constexpr COLORREF kCmdHotFill = RGB(229, 244, 252);   ///< highlight of a command button: its body

inline constexpr int kButtonHeight = 21;      ///< every skinned push button
inline constexpr int kButtonRound = 6;        ///< corner ellipse of buttons
inline constexpr int kWindowRound = 12;       ///< corner ellipse of dialogs and frames
inline constexpr int kCaptionHeight = 32;     ///< caption band of a dialog
inline constexpr int kCaptionTextLeft = 32;   ///< left end of a dialog's title
inline constexpr int kCaptionTextRight = 58;  ///< space right of a dialog's title
inline constexpr int kCaptionIconPos = 8;     ///< left and top of the icon in a caption
inline constexpr int kCaptionIconSize = 16;   ///< size of the icon in a caption
inline constexpr int kTitleButtonHeight = 17; ///< minimise, maximise and close buttons
inline constexpr int kCloseButtonWidth = 42;  ///< close button
inline constexpr int kCloseButtonRight = 50;  ///< from the window's right edge to the close button's left edge
inline constexpr int kTitleButtonTop = 1;     ///< top of the title buttons
inline constexpr int kSizeCorner = 6;         ///< corners of the sizing border
inline constexpr int kSizeEdge = 3;           ///< edges of the sizing border
inline constexpr int kContentLeft = 9;        ///< left end of what a dialog or frame window contains
inline constexpr int kContentRight = 10;      ///< space right of it
inline constexpr int kBandMargin = 9;         ///< space right of the button band
inline constexpr int kBandGap = 9;            ///< space between the buttons of the band
inline constexpr int kBandHeight = 40;        ///< height of the button band
inline constexpr int kBandBottom = 9;         ///< space below the button band
inline constexpr int kGlyphSize = 13;         ///< check and radio glyphs
inline constexpr int kGlyphPos = 2;           ///< left and top of check and radio glyphs

inline constexpr COLORREF kGlyphKey = kWhite; ///< transparent colour of the radio glyphs

} // namespace QorLook
