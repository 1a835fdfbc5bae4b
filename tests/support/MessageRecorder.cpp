#include <tests/support/MessageRecorder.h>

#include <commctrl.h>

#include <algorithm>
#include <utility>

namespace ts
{

void MessageLog::RecordAll()
{
    m_choice = Choice::All;
    m_also.clear();
}

void MessageLog::RecordOnly(std::initializer_list<UINT> ids)
{
    m_choice = Choice::Listed;
    m_also = ids;
}

void MessageLog::RecordAlso(std::initializer_list<UINT> ids)
{
    m_also.insert(ids.begin(), ids.end());
}

void MessageLog::RecordNotifications()
{
    m_choice = Choice::Notifications;
    m_also.clear();
}

void MessageLog::SetFilter(std::function<bool(const Message&)> filter)
{
    m_filter = std::move(filter);
}

bool MessageLog::Wanted(const Message& message) const
{
    const bool notification = message.id == WM_COMMAND || message.id == WM_NOTIFY || message.id >= WM_USER;
    const bool chosen =
        m_choice == Choice::All || (m_choice == Choice::Notifications && notification) || m_also.count(message.id) > 0;
    return chosen && (!m_filter || m_filter(message));
}

void MessageLog::Add(const Message& message)
{
    if (Wanted(message)) {
        m_messages.push_back(message);
    }
}

size_t MessageLog::Count(const Expected& expected) const
{
    return static_cast<size_t>(std::count_if(m_messages.begin(), m_messages.end(),
                                             [&](const Message& message) { return expected.Matches(message); }));
}

testing::AssertionResult MessageLog::Is(const std::vector<Expected>& expected) const
{
    return SameSequence(m_messages, expected);
}

testing::AssertionResult MessageLog::IsAmong(const std::vector<Expected>& expected) const
{
    std::vector<Message> chosen;
    std::copy_if(m_messages.begin(), m_messages.end(), std::back_inserter(chosen), [&](const Message& message) {
        return std::any_of(expected.begin(), expected.end(), [&](const Expected& one) { return one.id == message.id; });
    });
    return SameSequence(chosen, expected);
}

MessageRecorder::MessageRecorder(HWND window) : m_window(window)
{
    if (!SetWindowSubclass(window, Procedure, reinterpret_cast<UINT_PTR>(this), reinterpret_cast<DWORD_PTR>(this))) {
        ADD_FAILURE() << "MessageRecorder: not a window of this thread";
    }
}

MessageRecorder::~MessageRecorder()
{
    if (m_window) {
        RemoveWindowSubclass(m_window, Procedure, reinterpret_cast<UINT_PTR>(this));
    }
}

void MessageRecorder::Answer(UINT id, std::function<std::optional<LRESULT>(const Message&)> answer)
{
    std::erase_if(m_answers, [id](const auto& one) { return one.first == id; });
    if (answer) {
        m_answers.emplace_back(id, std::move(answer));
    }
}

LRESULT CALLBACK MessageRecorder::Procedure(HWND window, UINT id, WPARAM wParam, LPARAM lParam, UINT_PTR key,
                                            DWORD_PTR self)
{
    auto* recorder = reinterpret_cast<MessageRecorder*>(self);
    const Message message = Message::Make(window, id, wParam, lParam);
    recorder->Add(message);
    if (id == WM_NCDESTROY) {
        recorder->m_window = nullptr;
        RemoveWindowSubclass(window, Procedure, key);
        return DefSubclassProc(window, id, wParam, lParam);
    }
    const auto found = std::find_if(recorder->m_answers.begin(), recorder->m_answers.end(),
                                    [id](const auto& one) { return one.first == id; });
    if (found != recorder->m_answers.end()) {
        // The answer may take itself back.
        const auto answer = found->second;
        if (const std::optional<LRESULT> result = answer(message)) {
            return *result;
        }
    }
    return DefSubclassProc(window, id, wParam, lParam);
}

} // namespace ts
