#pragma once

#include <string>
#include <string_view>

/**
 * The printf placeholders of a text, in order, as one comparable word: two texts may stand for each other as format
 * exactly when their words are equal. Each placeholder gives its size and kind and a semicolon; a width or precision
 * taken from the arguments gives "*" before them; "%%" gives nothing; a percent sign that begins no placeholder gives
 * "?" and the character that follows it.
 *
 * Kinds: d (also i), u, o, x (also X), c, f (all floating point), s, p; sizes in front of them: h short, q 64 bits,
 * z pointer size, n narrow text or character; none for the usual size (a wide text or character).
 *
 * The parser has no window and no system call in it, so that it can be built and fuzzed anywhere.
 * @param[out] signature the word.
 * @return false when the text has "%n", which writes to memory and is never taken.
 */
bool GetFormatSignature(std::wstring_view text, std::wstring& signature);

/** Whether two texts have the same placeholders in number, order and kind; never when one of them has "%n". */
bool HaveSameFormat(std::wstring_view text, std::wstring_view model);
