#pragma once

/** @file
 * Moves, shows, enables and reads the controls of a dialog by id, mostly over ranges of consecutive ids.
 *
 * A range is inclusive; it is empty when `first` is greater than `last`. A null parent and ids without a control are
 * left out silently.
 */

#include <QorUI/app/module/QorUIDef.h>

/**
 * Where a control stands.
 * @param[out] rect in the parent's client coordinates; untouched on failure.
 * @return FALSE when there is no such control.
 */
QORUI_API BOOL QorGetCtrlRect(CWnd* parent, UINT id, CRect& rect);

/** Enables or disables every control of a range. */
QORUI_API void QorEnableCtrls(CWnd* parent, UINT first, UINT last, BOOL enable);

/** Enables or disables the `count` controls whose ids follow as `int` arguments, in their order. */
QORUI_API void QorEnableCtrlsV(CWnd* parent, BOOL enable, int count, ...);

/** Shows or hides every control of a range. */
QORUI_API void QorShowCtrls(CWnd* parent, UINT first, UINT last, BOOL show);

/**
 * Moves every control of a range by (dx, dy) pixels without resizing it, and shows it, also when it was hidden: a block
 * that is to stay hidden is hidden afterwards.
 */
QORUI_API void QorMoveCtrls(CWnd* parent, UINT first, UINT last, int dx, int dy);

/**
 * Moves a range so that its control `first` lands (dx, dy) pixels from the top left corner of the control `anchor`, and
 * shows it. Nothing happens when either control is missing.
 */
QORUI_API void QorMoveCtrlsEx(CWnd* parent, UINT anchor, UINT first, UINT last, int dx, int dy);

/**
 * A window's text without the white space at both ends.
 * @param[out] text empty when there is no window.
 * @return whether the text is not empty.
 */
QORUI_API BOOL QorGetText(CWnd& wnd, CString& text);

/**
 * A window's text without the white space at both ends, as UTF-8.
 * @param xmlEscape whether the characters that are special in XML are replaced by entities.
 * @return whether the text is not empty.
 */
QORUI_API BOOL QorGetUtf8(CWnd& wnd, CStringA& text, BOOL xmlEscape);

/**
 * Makes a control a heading: bold, in the library's one topic font.
 * @param text new text of the control; null or empty keeps the text it has.
 * @param height height of the font as in `LOGFONT` (pixels; negative for the height without leading). The first call
 * that can make the font fixes it for the library's lifetime.
 */
QORUI_API void QorSetTopicCtrl(CWnd* parent, UINT id, LPCWSTR text, LONG height);
