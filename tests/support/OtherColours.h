#pragma once

#include <windows.h>

#include <utility>
#include <vector>

namespace ts
{

/** Other colours in a look that is shared, until the end of the scope. */
class OtherColours
{
  public:
    /** @param fields those of the look, and what they are to be. */
    explicit OtherColours(const std::vector<std::pair<COLORREF*, COLORREF>>& fields)
    {
        for (const auto& [field, colour] : fields) {
            m_former.emplace_back(field, *field);
            *field = colour;
        }
    }
    ~OtherColours()
    {
        for (const auto& [field, colour] : m_former) {
            *field = colour;
        }
    }
    OtherColours(const OtherColours&) = delete;
    OtherColours& operator=(const OtherColours&) = delete;

  private:
    std::vector<std::pair<COLORREF*, COLORREF>> m_former;
};

} // namespace ts
