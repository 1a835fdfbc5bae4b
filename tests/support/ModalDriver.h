#pragma once

#include <windows.h>

#include <deque>
#include <functional>
#include <string>
#include <vector>

namespace ts
{

/**
 * Works a modal dialog, a message box, a popup menu or another loop of its own from inside: steps run one after the
 * other from a timer while the loop handles messages. Each step runs when what it waits for is there and the input of
 * the step before has been dealt with. A step that waits too long, or a loop that stays after the last step, fails the
 * test, and the loop is ended by force.
 *
 * @code
 * ts::ModalDriver driver;
 * driver.InDialog([](HWND dialog) { ts::Click(GetDlgItem(dialog, IDOK)); });
 * EXPECT_EQ(IDOK, dialog.DoModal());
 * EXPECT_TRUE(driver.Finished());
 * @endcode
 */
class ModalDriver
{
  public:
    /** @param limit Milliseconds that each step may wait, and the loop may stay after the last one. */
    explicit ModalDriver(DWORD limit = 10000);
    ~ModalDriver();
    ModalDriver(const ModalDriver&) = delete;
    ModalDriver& operator=(const ModalDriver&) = delete;

    /** Adds a step for the topmost visible, enabled top-level window that has come up since the driver was made. */
    ModalDriver& InDialog(std::function<void(HWND dialog)> step);

    /** Adds a step for the innermost open popup menu. */
    ModalDriver& InMenu(std::function<void(HWND menuWindow)> step);

    /** Adds a step that waits for nothing: it runs at the next turn of whatever loop handles messages. */
    ModalDriver& Then(std::function<void()> step);

    /** Adds a step that waits until a condition holds. @param what Words for the condition, for the failure. */
    ModalDriver& When(std::string what, std::function<bool()> condition, std::function<void()> step);

    /** Whether every step has run and nothing had to be ended by force. */
    bool Finished() const { return m_steps.empty() && !m_forced; }

    /** The dialog that a step of InDialog() would get now, or null. */
    HWND FindDialog() const;

    /** The innermost popup menu that is open now, or null. */
    static HWND FindMenu();

  private:
    struct Step
    {
        std::string what;
        std::function<bool()> ready;
        std::function<void()> run;
    };

    static void CALLBACK OnTimer(HWND window, UINT message, UINT_PTR id, DWORD time);
    void Tick();
    void RunStep();
    void GiveUp(const std::string& why);
    void Force();
    std::vector<HWND> NewWindows() const;

    DWORD m_limit;
    ULONGLONG m_deadline;
    UINT_PTR m_timer;
    std::vector<HWND> m_before;
    std::deque<Step> m_steps;
    int m_done = 0;
    int m_attempts = 0;
    bool m_forced = false;
    std::vector<HWND> m_stuck; // what is being ended by force, also when it is hidden by now
    bool m_running = false;
};

} // namespace ts
