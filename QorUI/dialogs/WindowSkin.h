#pragma once

#include <QorUI/app/look/Palette.h>
#include <QorUI/buttons/BmpBtn.h>
#include <QorUI/res/resource.h>

#include <span>

/**
 * What dialogs, the wizard and frame windows do alike about their skin: title buttons, border, outline, and the way to
 * be closed. The windows keep the state; shape and sizing with the mouse are in `QorShape`.
 */
namespace WindowSkin
{

/** A title button: its control, its strip and its place. */
struct TitleButton
{
    UINT id;
    UINT bitmap;
    int fromRight; ///< from the window's right edge to the button's left edge
    int width;
};

/** The close button of dialogs and of the wizard. */
inline constexpr TitleButton kDlgClose = {IDC_DLG_CLOSE, IDB_DLG_CLOSE, QorLook::kCloseButtonRight,
                                          QorLook::kCloseButtonWidth};

/**
 * Creates a title button, without extent, and gives it its strip; it may stay without a picture.
 * @return false when there is no button.
 */
bool CreateTitleButton(CBmpBtn& button, CWnd& wnd, const TitleButton& look);

/** Moves a title button to its place in a window that is `cx` wide. Before it is created nothing happens. */
void PlaceTitleButton(CBmpBtn& button, const TitleButton& look, int cx, BOOL repaint);

/**
 * What every hit test asks first.
 * @param sizes whether the border sizes the window.
 * @param point in screen coordinates.
 * @return `HTCLIENT` on a title button, a sizing code on the border, `HTNOWHERE` (0) elsewhere.
 */
UINT HitTest(const CWnd& wnd, std::span<const CBmpBtn> buttons, bool sizes, POINT point);

/**
 * Invalidates what looks different after a change of size, and takes the new size down.
 * @param band as for `QorShape::InvalidateSizedParts`.
 */
void TakeSize(CWnd& wnd, int& lastWidth, int& lastHeight, CSize size, CSize band);

/** Sets the smallest size that the border sizes the window to. */
void LimitSize(MINMAXINFO& info, CSize smallest);

/** Gives the Close of the system menu, if the window has one, a state: `MF_ENABLED`, or how it is disabled. */
void SetCloseState(const CWnd& wnd, UINT state);

/** The room inside the frame, in client coordinates. */
CRect ContentOf(const CWnd& wnd, int top, int bottomMargin);

/** Draws the rounded outline and fills what is inside. */
void DrawOutline(CDC& dc, const CRect& client, HGDIOBJ inside);

} // namespace WindowSkin
