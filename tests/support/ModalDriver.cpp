#include <tests/support/CrashHandler.h>
#include <tests/support/Input.h>
#include <tests/support/ModalDriver.h>
#include <tests/support/Pump.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <utility>

namespace ts
{
namespace
{
constexpr UINT kTick = 15;
constexpr int kAttemptsByCommand = 20;
constexpr int kAttemptsByEndDialog = 40;
constexpr int kAttemptsByDestroy = 60;
constexpr wchar_t kDialogClass[] = L"#32770";
constexpr wchar_t kMenuClass[] = L"#32768";

std::map<UINT_PTR, ModalDriver*>& Drivers()
{
    static std::map<UINT_PTR, ModalDriver*> drivers;
    return drivers;
}

std::wstring ClassOf(HWND window)
{
    wchar_t name[64] = {};
    GetClassNameW(window, name, static_cast<int>(std::size(name)));
    return name;
}

/** Tips, drop-down lists and menus stand beside a dialog; they are none. */
bool CanBeDialog(HWND window)
{
    static const wchar_t* const kOthers[] = {L"tooltips_class32", L"ComboLBox", kMenuClass, L"IME", L"SysShadow"};
    const std::wstring name = ClassOf(window);
    return std::none_of(std::begin(kOthers), std::end(kOthers), [&](const wchar_t* other) { return name == other; });
}

BOOL CALLBACK Collect(HWND window, LPARAM list)
{
    if (IsWindowVisible(window)) {
        reinterpret_cast<std::vector<HWND>*>(list)->push_back(window);
    }
    return TRUE;
}

/** Visible top-level windows of this thread, topmost first. */
std::vector<HWND> VisibleWindows()
{
    std::vector<HWND> windows;
    EnumThreadWindows(GetCurrentThreadId(), Collect, reinterpret_cast<LPARAM>(&windows));
    return windows;
}

bool InputIsWaiting()
{
    return HIWORD(GetQueueStatus(QS_INPUT | QS_POSTMESSAGE | QS_PAINT)) != 0;
}
} // namespace

ModalDriver::ModalDriver(DWORD limit)
    : m_limit(limit),
      m_deadline(GetTickCount64() + limit),
      m_timer(SetTimer(nullptr, 0, kTick, OnTimer)),
      m_before(VisibleWindows())
{
    if (m_timer == 0) {
        ADD_FAILURE() << "ModalDriver: no timer, error " << GetLastError();
    }
    Drivers()[m_timer] = this;
}

ModalDriver::~ModalDriver()
{
    Drivers().erase(m_timer);
    KillTimer(nullptr, m_timer);
    if (!m_steps.empty() && !m_forced) {
        ADD_FAILURE() << "ModalDriver: step " << m_done << " (" << m_steps.front().what
                      << ") never ran: the modal loop had ended";
    }
    ReleaseInput();
}

ModalDriver& ModalDriver::InDialog(std::function<void(HWND)> step)
{
    return When(
        "a dialog", [this] { return FindDialog() != nullptr; }, [this, step = std::move(step)] { step(FindDialog()); });
}

ModalDriver& ModalDriver::InMenu(std::function<void(HWND)> step)
{
    return When(
        "a popup menu", [] { return FindMenu() != nullptr; }, [step = std::move(step)] { step(FindMenu()); });
}

ModalDriver& ModalDriver::Then(std::function<void()> step)
{
    return When(
        "the next turn", [] { return true; }, std::move(step));
}

ModalDriver& ModalDriver::When(std::string what, std::function<bool()> condition, std::function<void()> step)
{
    m_steps.push_back({std::move(what), std::move(condition), std::move(step)});
    m_deadline = GetTickCount64() + m_limit;
    return *this;
}

std::vector<HWND> ModalDriver::NewWindows() const
{
    std::vector<HWND> windows = VisibleWindows();
    std::erase_if(
        windows, [this](HWND window) { return std::find(m_before.begin(), m_before.end(), window) != m_before.end(); });
    return windows;
}

HWND ModalDriver::FindDialog() const
{
    const std::vector<HWND> windows = NewWindows();
    const auto usable = [](HWND window) { return IsWindowEnabled(window) && CanBeDialog(window); };
    const HWND active = GetActiveWindow();
    if (usable(active) && std::find(windows.begin(), windows.end(), active) != windows.end()) {
        return active;
    }
    const auto found = std::find_if(windows.begin(), windows.end(), usable);
    return found == windows.end() ? nullptr : *found;
}

HWND ModalDriver::FindMenu()
{
    for (const HWND window : VisibleWindows()) {
        if (ClassOf(window) == kMenuClass) {
            return window;
        }
    }
    return nullptr;
}

void CALLBACK ModalDriver::OnTimer(HWND, UINT, UINT_PTR id, DWORD)
{
    const auto driver = Drivers().find(id);
    if (driver != Drivers().end()) {
        driver->second->Tick();
    }
}

void ModalDriver::Tick()
{
    // A step may open a modal loop of its own, in which the timer goes on: the next step belongs to that loop.
    if (m_forced) {
        return Force();
    }
    const bool waiting = GetTickCount64() < m_deadline;
    if (m_steps.empty()) {
        const bool stays = FindDialog() != nullptr || FindMenu() != nullptr;
        if (stays && !waiting && !m_running) {
            GiveUp("the modal loop is still there after the last step");
        }
        return;
    }
    if (InputIsWaiting()) {
        return;
    }
    if (m_steps.front().ready()) {
        return RunStep();
    }
    if (!waiting) {
        GiveUp("step " + std::to_string(m_done) + " waited in vain for " + m_steps.front().what);
    }
}

void ModalDriver::RunStep()
{
    const Step step = std::move(m_steps.front());
    m_steps.pop_front();
    ++m_done;
    m_deadline = GetTickCount64() + m_limit;
    const bool outer = m_running;
    m_running = true;
    {
        const detail::NoPump noPump;
        step.run();
    }
    m_running = outer;
}

void ModalDriver::GiveUp(const std::string& why)
{
    ADD_FAILURE() << "ModalDriver: " << why;
    m_forced = true;
    m_steps.clear();
    Force();
}

void ModalDriver::Force()
{
    ++m_attempts;
    if (FindMenu()) {
        EndMenu();
    }
    if (GetCapture()) {
        ReleaseCapture();
    }
    // EndDialog hides a dialog with a loop of its own, and does not end the loop: such a dialog is still to be
    // destroyed.
    for (const HWND window : NewWindows()) {
        if (CanBeDialog(window) && std::find(m_stuck.begin(), m_stuck.end(), window) == m_stuck.end()) {
            m_stuck.push_back(window);
        }
    }
    std::erase_if(m_stuck, [](HWND window) { return !IsWindow(window); });
    for (const HWND window : m_stuck) {
        if (m_attempts <= kAttemptsByCommand) {
            PostMessageW(window, WM_COMMAND, IDCANCEL, 0);
            PostMessageW(window, WM_CLOSE, 0, 0);
        } else if (m_attempts <= kAttemptsByEndDialog && ClassOf(window) == kDialogClass) {
            EndDialog(window, IDCANCEL);
        } else if (m_attempts <= kAttemptsByDestroy) {
            DestroyWindow(window);
        } else {
            EndHungProgram("a modal loop could not be ended");
        }
    }
}

} // namespace ts
