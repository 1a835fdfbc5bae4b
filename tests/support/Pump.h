#pragma once

#include <windows.h>

#include <functional>

namespace ts
{

/** Time after which a condition that should come true counts as failed, in milliseconds. */
constexpr DWORD kDefaultLimit = 5000;

/**
 * Handles messages of this thread until a condition holds.
 * @param condition Asked after every message and at least every 10 ms.
 * @param limit Milliseconds after which to give up.
 * @return Whether the condition held in the end.
 */
bool PumpUntil(const std::function<bool()>& condition, DWORD limit = kDefaultLimit);

/** Handles the messages that are waiting now, timers included, each of those at most a few times. */
void PumpPending();

/**
 * Handles messages until input, posted and sent messages and paints have all been dealt with. Timers may stay.
 * Does nothing while a step of a ModalDriver runs: the modal loop itself has to see the messages.
 */
void Settle();

/**
 * Gives messages to a function before they are translated and dispatched by the functions above.
 * Tests of a framework pass its own pre-translation here.
 * @param preTranslate Returns true for a message that it has dealt with; null to have none.
 */
void SetPreTranslate(std::function<bool(MSG&)> preTranslate);

/** Handles keys of a modeless dialog or a host window like a dialog's (Tab, Enter, Escape) while it lives. */
class DialogKeys
{
  public:
    explicit DialogKeys(HWND dialog);
    ~DialogKeys();
    DialogKeys(const DialogKeys&) = delete;
    DialogKeys& operator=(const DialogKeys&) = delete;
};

namespace detail
{
/** While one lives, Settle() does nothing. */
class NoPump
{
  public:
    NoPump();
    ~NoPump();
    NoPump(const NoPump&) = delete;
    NoPump& operator=(const NoPump&) = delete;
};
} // namespace detail

} // namespace ts
