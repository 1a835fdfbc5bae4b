#pragma once

#include <windows.h>

#include <initializer_list>
#include <string_view>

/** @file
 * Mouse and keyboard as a user works them: through SendInput, to the window that is really there. Coordinates are
 * pixels in the client area of the given window. Each function returns when the input has been dealt with, except
 * inside a step of a ModalDriver: there the modal loop gets the input after the step.
 */

namespace ts
{

enum class Button
{
    Left,
    Right,
    Middle
};

/** Moves the pointer. */
void MoveMouse(HWND window, int x, int y);

/** Moves the pointer to the middle of the client area. */
void MoveMouse(HWND window);

void MouseDown(Button button = Button::Left);
void MouseUp(Button button = Button::Left);

/** Moves there, presses and releases. */
void Click(HWND window, int x, int y, Button button = Button::Left);

/** Clicks into the middle of the client area. */
void Click(HWND window);

/** Two clicks at one place that the system joins, however slow the machine is. */
void DoubleClick(HWND window, int x, int y, Button button = Button::Left);

/** Presses at one place, moves in steps, releases at the other. */
void Drag(HWND window, POINT from, POINT to, Button button = Button::Left);

/** Turns the wheel over a place. @param notches Positive is away from the user. */
void Wheel(HWND window, int x, int y, int notches);

/** Puts the pointer into the lower right corner of the screen, away from all windows, and waits for the leave messages.
 */
void ParkMouse();

void KeyDown(WORD key);
void KeyUp(WORD key);

/** Presses and releases a key. @param key Virtual key such as VK_RETURN or 'A'. */
void Key(WORD key);

/** Presses keys together and releases them in reverse order: Chord({VK_CONTROL, 'A'}). */
void Chord(std::initializer_list<WORD> keys);

/** Types text into the window that has the focus. */
void Type(std::wstring_view text);

/** Releases every key and button that these functions pressed and did not release. */
void ReleaseInput();

/** Makes WM_MOUSELEAVE and WM_MOUSEHOVER arrive fast: sets the system's hover time, in milliseconds. */
void SetHoverTime(UINT milliseconds);

/** Makes DoubleClick() the only way to a double click: clicks at one place stay apart, however fast they follow. */
void KeepClicksApart();

/** Brings the window to the foreground and waits until it is there. @return Whether it is. */
bool BringToFront(HWND window);

} // namespace ts
