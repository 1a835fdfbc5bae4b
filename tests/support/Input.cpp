#include <tests/support/Input.h>
#include <tests/support/Pump.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

namespace ts
{
namespace
{
constexpr int kAbsoluteRange = 65536;
constexpr int kDragSteps = 6;
constexpr UINT kNoDoubleClick = 1; // milliseconds within which two presses are one double click
constexpr UINT kDoubleClick = 60000;

struct ButtonFlags
{
    DWORD down;
    DWORD up;
};

ButtonFlags FlagsOf(Button button)
{
    switch (button) {
    case Button::Right:
        return {MOUSEEVENTF_RIGHTDOWN, MOUSEEVENTF_RIGHTUP};
    case Button::Middle:
        return {MOUSEEVENTF_MIDDLEDOWN, MOUSEEVENTF_MIDDLEUP};
    default:
        return {MOUSEEVENTF_LEFTDOWN, MOUSEEVENTF_LEFTUP};
    }
}

std::vector<WORD>& PressedKeys()
{
    static std::vector<WORD> keys;
    return keys;
}

std::vector<Button>& PressedButtons()
{
    static std::vector<Button> buttons;
    return buttons;
}

void Send(INPUT input)
{
    if (SendInput(1, &input, sizeof(input)) != 1) {
        ADD_FAILURE() << "SendInput failed, error " << GetLastError();
    }
}

void SendMouse(DWORD flags, LONG x = 0, LONG y = 0, DWORD data = 0)
{
    INPUT input = {};
    input.type = INPUT_MOUSE;
    input.mi.dx = x;
    input.mi.dy = y;
    input.mi.mouseData = data;
    input.mi.dwFlags = flags;
    Send(input);
}

/** The smallest absolute coordinate that the system turns into this pixel. */
LONG ToAbsolute(LONG pixel, int range)
{
    return static_cast<LONG>((static_cast<LONGLONG>(pixel) * kAbsoluteRange + range - 1) / range);
}

void MoveToScreen(POINT point)
{
    SendMouse(MOUSEEVENTF_MOVE | MOUSEEVENTF_ABSOLUTE, ToAbsolute(point.x, GetSystemMetrics(SM_CXSCREEN)),
              ToAbsolute(point.y, GetSystemMetrics(SM_CYSCREEN)));
    Settle();
}

POINT Middle(HWND window)
{
    RECT client = {};
    GetClientRect(window, &client);
    return {client.right / 2, client.bottom / 2};
}

bool IsExtended(WORD key)
{
    static constexpr WORD kKeys[] = {VK_PRIOR, VK_NEXT, VK_END,    VK_HOME,   VK_LEFT,   VK_UP,
                                     VK_RIGHT, VK_DOWN, VK_INSERT, VK_DELETE, VK_DIVIDE, VK_RCONTROL,
                                     VK_RMENU, VK_LWIN, VK_RWIN,   VK_APPS};
    return std::find(std::begin(kKeys), std::end(kKeys), key) != std::end(kKeys);
}

void SendKey(WORD key, bool up)
{
    INPUT input = {};
    input.type = INPUT_KEYBOARD;
    input.ki.wVk = key;
    input.ki.wScan = static_cast<WORD>(MapVirtualKeyW(key, MAPVK_VK_TO_VSC));
    input.ki.dwFlags = (up ? KEYEVENTF_KEYUP : 0) | (IsExtended(key) ? KEYEVENTF_EXTENDEDKEY : 0);
    Send(input);
}

void SendCharacter(wchar_t character)
{
    INPUT input = {};
    input.type = INPUT_KEYBOARD;
    input.ki.wScan = character;
    input.ki.dwFlags = KEYEVENTF_UNICODE;
    Send(input);
    input.ki.dwFlags |= KEYEVENTF_KEYUP;
    Send(input);
}
} // namespace

void MoveMouse(HWND window, int x, int y)
{
    POINT point = {x, y};
    if (!ClientToScreen(window, &point)) {
        ADD_FAILURE() << "MoveMouse: no such window";
        return;
    }
    MoveToScreen(point);
}

void MoveMouse(HWND window)
{
    const POINT middle = Middle(window);
    MoveMouse(window, middle.x, middle.y);
}

void MouseDown(Button button)
{
    PressedButtons().push_back(button);
    SendMouse(FlagsOf(button).down);
    Settle();
}

void MouseUp(Button button)
{
    std::erase(PressedButtons(), button);
    SendMouse(FlagsOf(button).up);
    Settle();
}

void Click(HWND window, int x, int y, Button button)
{
    MoveMouse(window, x, y);
    Sleep(kNoDoubleClick);
    MouseDown(button);
    MouseUp(button);
}

void Click(HWND window)
{
    const POINT middle = Middle(window);
    Click(window, middle.x, middle.y);
}

void DoubleClick(HWND window, int x, int y, Button button)
{
    Click(window, x, y, button);
    SetDoubleClickTime(kDoubleClick);
    MouseDown(button);
    SetDoubleClickTime(kNoDoubleClick);
    MouseUp(button);
}

void Drag(HWND window, POINT from, POINT to, Button button)
{
    MoveMouse(window, from.x, from.y);
    MouseDown(button);
    for (int step = 1; step <= kDragSteps; ++step) {
        MoveMouse(window, from.x + (to.x - from.x) * step / kDragSteps, from.y + (to.y - from.y) * step / kDragSteps);
    }
    MouseUp(button);
}

void Wheel(HWND window, int x, int y, int notches)
{
    MoveMouse(window, x, y);
    SendMouse(MOUSEEVENTF_WHEEL, 0, 0, static_cast<DWORD>(notches) * WHEEL_DELTA);
    Settle();
}

void ParkMouse()
{
    const POINT corner = {GetSystemMetrics(SM_CXSCREEN) - 1, GetSystemMetrics(SM_CYSCREEN) - 1};
    MoveToScreen(corner);
    // A window that tracks the pointer learns of its leaving by polling.
    const auto nobodyTracks = [] {
        TRACKMOUSEEVENT track = {};
        track.cbSize = sizeof(track);
        track.dwFlags = TME_QUERY;
        return !TrackMouseEvent(&track) || (track.dwFlags & TME_LEAVE) == 0 || !IsWindow(track.hwndTrack);
    };
    constexpr DWORD leaveLimit = 1000;
    PumpUntil(nobodyTracks, leaveLimit);
    Settle();
}

void KeyDown(WORD key)
{
    PressedKeys().push_back(key);
    SendKey(key, false);
    Settle();
}

void KeyUp(WORD key)
{
    std::erase(PressedKeys(), key);
    SendKey(key, true);
    Settle();
}

void Key(WORD key)
{
    KeyDown(key);
    KeyUp(key);
}

void Chord(std::initializer_list<WORD> keys)
{
    for (const WORD key : keys) {
        KeyDown(key);
    }
    for (auto key = std::rbegin(keys); key != std::rend(keys); ++key) {
        KeyUp(*key);
    }
}

void Type(std::wstring_view text)
{
    for (const wchar_t character : text) {
        SendCharacter(character);
        Settle();
    }
}

void ReleaseInput()
{
    while (!PressedKeys().empty()) {
        KeyUp(PressedKeys().back());
    }
    while (!PressedButtons().empty()) {
        MouseUp(PressedButtons().back());
    }
}

void SetHoverTime(UINT milliseconds)
{
    SystemParametersInfoW(SPI_SETMOUSEHOVERTIME, milliseconds, nullptr, 0);
}

void KeepClicksApart()
{
    SetDoubleClickTime(kNoDoubleClick);
}

bool BringToFront(HWND window)
{
    SetForegroundWindow(window);
    return PumpUntil([window] { return GetForegroundWindow() == window; });
}

} // namespace ts
