#pragma once

#include <windows.h>

/** What a control shows of itself: one of four faces, whether it has the focus, and whether Enter presses it. */
struct VisualState
{
    /** The values are the rows of the button style table and the frames of a picture button's strip. */
    enum Face : UINT
    {
        kNormal,
        kHot,
        kPressed,
        kDisabled
    };

    Face face = kNormal;
    bool focused = false;
    bool isDefault = false;

    bool IsDisabled() const { return face == kDisabled; }
};

/** The state of an owner-drawn control. @param itemState ODS_... bits. */
constexpr VisualState QorStateOfItem(UINT itemState, bool hot)
{
    VisualState state;
    state.focused = (itemState & ODS_FOCUS) != 0;
    state.isDefault = (itemState & ODS_DEFAULT) != 0;
    if (itemState & ODS_DISABLED) {
        state.face = VisualState::kDisabled;
    } else if (itemState & ODS_SELECTED) {
        state.face = VisualState::kPressed;
    } else if (hot) {
        state.face = VisualState::kHot;
    }
    return state;
}

/** The state of a window that paints itself and is not seen pressed. */
inline VisualState QorStateOfWindow(HWND wnd, bool hot)
{
    VisualState state;
    state.focused = ::GetFocus() == wnd;
    if (!::IsWindowEnabled(wnd)) {
        state.face = VisualState::kDisabled;
    } else if (hot) {
        state.face = VisualState::kHot;
    }
    return state;
}
