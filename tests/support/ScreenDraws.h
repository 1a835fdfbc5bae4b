#pragma once

#include <tests/support/ImportRedirection.h>

namespace ts
{

/**
 * Counts how often this process draws on the screen, and not into memory, while it lives: what is painted
 * double-buffered touches the screen once. Only one may live at a time.
 */
class ScreenDraws
{
  public:
    ScreenDraws();

    /** Calls of drawing functions for windows or the screen until now. */
    int Count() const;

  private:
    ImportRedirection m_redirection;
};

} // namespace ts
