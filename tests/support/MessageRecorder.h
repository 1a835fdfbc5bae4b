#pragma once

#include <tests/support/Message.h>

#include <functional>
#include <initializer_list>
#include <set>
#include <vector>

namespace ts
{

/** Which messages a recorder keeps, and what it kept. */
class MessageLog
{
  public:
    /** Keeps every message from now on. */
    void RecordAll();

    /** Keeps these messages and no others from now on. */
    void RecordOnly(std::initializer_list<UINT> ids);

    /** Keeps these messages too. */
    void RecordAlso(std::initializer_list<UINT> ids);

    /** Keeps WM_COMMAND, WM_NOTIFY and everything from WM_USER on: the choice at first. */
    void RecordNotifications();

    /** Keeps only messages for which the function is true, of those chosen by the functions above. */
    void SetFilter(std::function<bool(const Message&)> filter);

    void Add(const Message& message);
    void Clear() { m_messages.clear(); }

    const std::vector<Message>& Messages() const { return m_messages; }

    /** How many kept messages look like this. */
    size_t Count(const Expected& expected) const;
    bool Has(const Expected& expected) const { return Count(expected) > 0; }

    /** Compares what was kept with a list, in order and completely. Use with EXPECT_TRUE. */
    testing::AssertionResult Is(const std::vector<Expected>& expected) const;

    /** As Is(), looking only at messages whose number occurs in the list. */
    testing::AssertionResult IsAmong(const std::vector<Expected>& expected) const;

  private:
    enum class Choice
    {
        Notifications,
        All,
        Listed
    };
    bool Wanted(const Message& message) const;

    Choice m_choice = Choice::Notifications;
    std::set<UINT> m_also;
    std::function<bool(const Message&)> m_filter;
    std::vector<Message> m_messages;
};

/**
 * Records what a window receives, by a subclass in front of those that are there when the first recorder of the window
 * is made: attach or subclass with framework objects first. To record what a control sends to its parent, record the
 * parent. The window may end before the recorder.
 */
class MessageRecorder : public MessageLog
{
  public:
    explicit MessageRecorder(HWND window);
    ~MessageRecorder();
    MessageRecorder(const MessageRecorder&) = delete;
    MessageRecorder& operator=(const MessageRecorder&) = delete;

    /**
     * Answers a message in place of the window.
     * @param answer Gives the result, or nothing to let the window handle the message. Null takes the answer back.
     */
    void Answer(UINT id, std::function<std::optional<LRESULT>(const Message&)> answer);

  private:
    static LRESULT CALLBACK Procedure(HWND window, UINT id, WPARAM wParam, LPARAM lParam, UINT_PTR key, DWORD_PTR self);

    HWND m_window;
    std::vector<std::pair<UINT, std::function<std::optional<LRESULT>(const Message&)>>> m_answers;
};

} // namespace ts
