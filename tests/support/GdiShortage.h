#pragma once

#include <windows.h>

#include <vector>

namespace ts
{

/**
 * Leaves this process only a few GDI objects that it can still make, as long as it lives. Each object that a painting
 * needs fails in turn when it is repeated with one more left every time.
 */
class GdiShortage
{
  public:
    explicit GdiShortage(size_t left = 0)
    {
        while (const HBRUSH brush = CreateSolidBrush(RGB(1, 2, 3))) {
            m_taken.push_back(brush);
        }
        LeaveMore(left);
    }

    ~GdiShortage() { LeaveMore(m_taken.size()); }

    GdiShortage(const GdiShortage&) = delete;
    GdiShortage& operator=(const GdiShortage&) = delete;

    /** Lets so many more objects be made. */
    void LeaveMore(size_t count)
    {
        for (; count > 0 && !m_taken.empty(); --count) {
            DeleteObject(m_taken.back());
            m_taken.pop_back();
        }
    }

  private:
    std::vector<HBRUSH> m_taken;
};

} // namespace ts
