#pragma once

#include <gtest/gtest.h>

#include <windows.h>

#include <optional>
#include <string>
#include <vector>

namespace ts
{

/** One message as a window received it. */
struct Message
{
    UINT id = 0;
    WPARAM wParam = 0;
    LPARAM lParam = 0;
    HWND window = nullptr; ///< The receiver.
    HWND from = nullptr;   ///< WM_COMMAND and WM_NOTIFY: the sender.
    UINT_PTR control = 0;  ///< WM_COMMAND and WM_NOTIFY: id of the sender (of the menu item).
    UINT code = 0;         ///< WM_COMMAND and WM_NOTIFY: the notification code.

    /** Takes the message apart. @param lParam of a WM_NOTIFY must be valid now; it is not read later. */
    static Message Make(HWND window, UINT id, WPARAM wParam, LPARAM lParam);

    /** One line for a person: name of the message and what it carries. */
    std::string Text() const;
};

/** What a message should look like; parts that are not given may be anything. */
struct Expected
{
    UINT id = 0;
    std::optional<WPARAM> wParam;
    std::optional<LPARAM> lParam;
    std::optional<UINT_PTR> control;
    std::optional<UINT> code;

    bool Matches(const Message& message) const;
    std::string Text() const;
};

/** Expects a message, with any or the given parameters. */
Expected Msg(UINT id, std::optional<WPARAM> wParam = {}, std::optional<LPARAM> lParam = {});

/** Expects a WM_COMMAND. @param control Id of the control or command. @param code Notification code. */
Expected Command(UINT_PTR control, UINT code = 0);

/** Expects a WM_NOTIFY. @param control Id of the control. @param code Notification code such as `NM_CLICK`. */
Expected Notify(UINT_PTR control, UINT code);

/** Name of a message such as "WM_COMMAND"; for others "WM_USER+5" or the number. */
std::string MessageName(UINT id);

/**
 * Compares a recorded sequence with the expected one.
 * @return Success, or a failure that shows both line by line and marks the first lines that differ.
 */
testing::AssertionResult SameSequence(const std::vector<Message>& recorded, const std::vector<Expected>& expected);

} // namespace ts
