#pragma once

#include <QorUI/app/module/QorUIDef.h>

#include <array>

/**
 * Tells without a device context that a text is not wider than a given width, for the many texts of long lists.
 *
 * It knows the widths of the ASCII characters in the list's font, and nothing about texts with other characters.
 */
class TextBound
{
  public:
    /** To be called when the list gets another font. */
    void Forget() { m_known = false; }

    /** @return whether the text with its margin surely needs no more than `width` pixels; false when unsure. */
    bool Fits(CListBox& list, LPCWSTR text, int width);

  private:
    static constexpr size_t kCharacters = 128;

    bool Learn(CListBox& list);

    bool m_known = false;
    int m_base = 0; // what every text needs
    std::array<INT, kCharacters> m_widths = {};
};
