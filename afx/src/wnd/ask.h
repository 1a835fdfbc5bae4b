#pragma once

#include <afx/wnd.h>

#include <type_traits>

/** Turns what a message carries into what it stands for, and back: a number, a pointer or a handle. */
template <class To, class From>
To MessageCast(From value)
{
    if constexpr (std::is_pointer_v<To> || std::is_pointer_v<From>) {
        return reinterpret_cast<To>(value);
    } else {
        return static_cast<To>(value);
    }
}

/** Sends a message to a window; what goes in and what comes back may be a number, a pointer or a handle. */
template <class Result = LRESULT, class W = WPARAM, class L = LPARAM>
Result Ask(HWND hWnd, UINT message, W wParam = W(), L lParam = L())
{
    return MessageCast<Result>(::SendMessage(hWnd, message, MessageCast<WPARAM>(wParam), MessageCast<LPARAM>(lParam)));
}

/** @copydoc Ask */
template <class Result = LRESULT, class W = WPARAM, class L = LPARAM>
Result Ask(const CWnd& wnd, UINT message, W wParam = W(), L lParam = L())
{
    return Ask<Result>(wnd.m_hWnd, message, wParam, lParam);
}

/** The object of a window that a control made for itself. */
template <class T>
T* WrapperOf(HWND hWnd)
{
    return static_cast<T*>(CWnd::FromHandle(hWnd));
}
