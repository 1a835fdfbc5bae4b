#pragma once

/** @file
 * What a page offers for the pictures.
 */

#include <afxwin.h>

#include <functional>

/** A state of a page that gets a picture of its own. */
struct PageState
{
    CString name;               ///< stands behind the page's name in the picture's, but for the first state
    std::function<void()> show; ///< brings the page into the state
};

/** A modal dialog that a page can show. */
struct ModalShot
{
    CString name;               ///< stem of the picture's file name
    std::function<void()> show; ///< returns when the dialog was closed
};

/** A window that a page can open beside itself. */
struct PopupShot
{
    CString name;               ///< stem of the picture's file name
    std::function<HWND()> open; ///< opens the window; null when that failed
    std::function<void()> close;
};
