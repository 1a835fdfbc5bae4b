#include <tests/support/Pump.h>

#include <utility>

namespace ts
{
namespace
{
constexpr DWORD kPollInterval = 10;
constexpr DWORD kSettleLimit = 3000;
constexpr int kPendingLimit = 10000;
constexpr int kTimerRounds = 3;

int g_noPump = 0;

std::function<bool(MSG&)>& PreTranslate()
{
    static std::function<bool(MSG&)> function;
    return function;
}

void Handle(MSG& message)
{
    if (PreTranslate() && PreTranslate()(message)) {
        return;
    }
    TranslateMessage(&message);
    DispatchMessageW(&message);
}

/** Handles one waiting message. Returns false when there is none, or when the next is the end of the loop. */
bool HandleOne(UINT filter = 0)
{
    MSG message;
    if (!PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE | (filter << 16))) {
        return false;
    }
    if (message.message == WM_QUIT) {
        PostQuitMessage(static_cast<int>(message.wParam));
        return false;
    }
    Handle(message);
    return true;
}
} // namespace

bool PumpUntil(const std::function<bool()>& condition, DWORD limit)
{
    const ULONGLONG end = GetTickCount64() + limit;
    for (;;) {
        if (condition()) {
            return true;
        }
        if (GetTickCount64() >= end) {
            return false;
        }
        if (!HandleOne()) {
            MsgWaitForMultipleObjectsEx(0, nullptr, kPollInterval, QS_ALLINPUT, MWMO_INPUTAVAILABLE);
        }
    }
}

void PumpPending()
{
    Settle();
    for (int i = 0; i < kTimerRounds && HandleOne(QS_TIMER); ++i) {
        Settle();
    }
}

void Settle()
{
    if (g_noPump > 0) {
        return;
    }
    constexpr UINT everythingButTimers = QS_INPUT | QS_POSTMESSAGE | QS_SENDMESSAGE | QS_PAINT | QS_HOTKEY;
    const ULONGLONG end = GetTickCount64() + kSettleLimit;
    for (int i = 0; i < kPendingLimit && GetTickCount64() < end; ++i) {
        if (!HandleOne(everythingButTimers)) {
            return;
        }
    }
}

void SetPreTranslate(std::function<bool(MSG&)> preTranslate)
{
    PreTranslate() = std::move(preTranslate);
}

DialogKeys::DialogKeys(HWND dialog)
{
    SetPreTranslate([dialog](MSG& message) { return IsDialogMessageW(dialog, &message) != FALSE; });
}

DialogKeys::~DialogKeys()
{
    SetPreTranslate(nullptr);
}

detail::NoPump::NoPump()
{
    ++g_noPump;
}

detail::NoPump::~NoPump()
{
    --g_noPump;
}

} // namespace ts
