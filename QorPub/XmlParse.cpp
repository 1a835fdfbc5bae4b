#include "XmlParse.h"

#include <algorithm>
#include <cstdint>
#include <iterator>
#include <pugixml.hpp>
#include <sstream>
#include <string_view>

namespace qor::xml
{
namespace
{

// References are replaced here: the parser would take one to the null character for the end of the text.
constexpr unsigned kParseFlags =
    (pugi::parse_default & ~pugi::parse_escapes) | pugi::parse_ws_pcdata_single | pugi::parse_fragment;
constexpr uint32_t kLastCode = 0x10FFFF;

bool Fail(Error& error, const char* message, size_t offset)
{
    error.message = message;
    error.offset = offset;
    return false;
}

pugi::xml_encoding FindEncoding(const uint8_t* data, size_t size)
{
    if (size < 2) {
        return pugi::encoding_utf8;
    }
    if ((data[0] == 0xFF && data[1] == 0xFE) || (data[0] != 0 && data[1] == 0)) {
        return pugi::encoding_utf16_le;
    }
    if ((data[0] == 0xFE && data[1] == 0xFF) || (data[0] == 0 && data[1] != 0)) {
        return pugi::encoding_utf16_be;
    }
    return pugi::encoding_utf8;
}

bool IsCharacter(uint32_t code)
{
    return code != 0 && code <= kLastCode && (code < 0xD800 || code > 0xDFFF);
}

/** Smallest code point that needs a UTF-8 sequence of this length. */
uint32_t SmallestOfLength(int length)
{
    constexpr uint32_t kSmallest[] = {0, 0, 0x80, 0x800, 0x10000};
    return kSmallest[length];
}

int Utf8Length(uint8_t lead)
{
    if (lead < 0x80) {
        return 1;
    }
    if (lead >= 0xC2 && lead <= 0xDF) {
        return 2;
    }
    if (lead >= 0xE0 && lead <= 0xEF) {
        return 3;
    }
    return lead >= 0xF0 && lead <= 0xF4 ? 4 : 0;
}

/** Length of the valid UTF-8 sequence at the start of the data; 0 when there is none. */
size_t ValidUtf8Sequence(const uint8_t* data, size_t size)
{
    int length = Utf8Length(*data);
    if (length == 0 || static_cast<size_t>(length) > size) {
        return 0;
    }
    if (length == 1) {
        return *data != 0 ? 1 : 0;
    }
    uint32_t code = *data & (0x7F >> length);
    for (int i = 1; i < length; ++i) {
        if ((data[i] & 0xC0) != 0x80) {
            return 0;
        }
        code = code << 6 | (data[i] & 0x3F);
    }
    return code < SmallestOfLength(length) || !IsCharacter(code) ? 0 : static_cast<size_t>(length);
}

bool CheckUtf8(const uint8_t* data, size_t size, Error& error)
{
    size_t pos = 0;
    while (pos < size) {
        size_t length = ValidUtf8Sequence(data + pos, size - pos);
        if (length == 0) {
            return Fail(error, "Bytes that are no UTF-8 text", pos);
        }
        pos += length;
    }
    return true;
}

bool CheckUtf16(const uint8_t* data, size_t size, bool lowFirst, Error& error)
{
    if (size % 2 != 0) {
        return Fail(error, "Half a UTF-16 unit at the end", size - 1);
    }
    bool needLow = false;
    for (size_t pos = 0; pos < size; pos += 2) {
        unsigned unit = lowFirst ? data[pos] | data[pos + 1] << 8 : data[pos] << 8 | data[pos + 1];
        bool isLow = unit >= 0xDC00 && unit <= 0xDFFF;
        if (unit == 0 || isLow != needLow) {
            return Fail(error, "Units that are no UTF-16 text", pos);
        }
        needLow = unit >= 0xD800 && unit <= 0xDBFF;
    }
    return needLow ? Fail(error, "Half a surrogate pair at the end", size - 2) : true;
}

bool CheckText(const void* data, size_t size, pugi::xml_encoding encoding, Error& error)
{
    auto bytes = static_cast<const uint8_t*>(data);
    if (encoding == pugi::encoding_utf8) {
        return CheckUtf8(bytes, size, error);
    }
    return CheckUtf16(bytes, size, encoding == pugi::encoding_utf16_le, error);
}

bool IsBlank(const std::string& text)
{
    return text.find_first_not_of(" \t\r\n") == std::string::npos;
}

bool IsText(const pugi::xml_node& node)
{
    return node.type() == pugi::node_pcdata || node.type() == pugi::node_cdata;
}

void AppendUtf8(std::string& text, uint32_t code)
{
    constexpr uint32_t kMarks[] = {0, 0, 0xC0, 0xE0, 0xF0};
    int length = 1;
    while (length < 4 && code >= SmallestOfLength(length + 1)) {
        ++length;
    }
    if (length == 1) {
        text += static_cast<char>(code);
        return;
    }
    int shift = 6 * (length - 1);
    text += static_cast<char>(kMarks[length] | code >> shift);
    while (shift > 0) {
        shift -= 6;
        text += static_cast<char>(0x80 | (code >> shift & 0x3F));
    }
}

int DigitValue(char digit)
{
    if (digit >= '0' && digit <= '9') {
        return digit - '0';
    }
    if (digit >= 'a' && digit <= 'f') {
        return digit - 'a' + 10;
    }
    return digit >= 'A' && digit <= 'F' ? digit - 'A' + 10 : 16;
}

/** Number of a character: decimal, or hexadecimal behind an "x". False when it is no number. */
bool ReadCode(std::string_view number, uint32_t& code)
{
    bool hex = !number.empty() && number.front() == 'x';
    if (hex) {
        number.remove_prefix(1);
    }
    int base = hex ? 16 : 10;
    code = 0;
    for (char digit : number) {
        if (DigitValue(digit) >= base) {
            return false;
        }
        code = (std::min)(code * base + DigitValue(digit), kLastCode + 1);
    }
    return !number.empty();
}

/** What the reference between "&" and ";" stands for; false when it is none. */
bool ReadReference(std::string_view reference, uint32_t& code)
{
    static constexpr std::pair<std::string_view, uint32_t> kNames[] = {
        {"amp", U'&'}, {"lt", U'<'}, {"gt", U'>'}, {"quot", U'"'}, {"apos", U'\''}};
    if (!reference.empty() && reference.front() == '#') {
        return ReadCode(reference.substr(1), code);
    }
    auto known =
        std::find_if(std::begin(kNames), std::end(kNames), [&](auto& name) { return name.first == reference; });
    if (known != std::end(kNames)) {
        code = known->second;
    }
    return known != std::end(kNames);
}

/** Takes over a text with its references replaced; what only looks like one stays as it is. */
bool TakeText(std::string_view from, std::string& to, Error& error)
{
    for (;;) {
        size_t start = from.find('&');
        to.append(from.substr(0, start));
        if (start == std::string_view::npos) {
            return true;
        }
        from.remove_prefix(start + 1);
        size_t length = from.find_first_of("&;");
        uint32_t code = 0;
        if (length == std::string_view::npos || from[length] != ';' || !ReadReference(from.substr(0, length), code)) {
            to += '&';
            continue;
        }
        if (!IsCharacter(code)) {
            return Fail(error, "A reference to what is no character", 0);
        }
        AppendUtf8(to, code);
        from.remove_prefix(length + 1);
    }
}

bool ConvertAttrs(const pugi::xml_node& from, Node& to, Error& error)
{
    for (const pugi::xml_attribute& attr : from.attributes()) {
        auto same = [&](const auto& other) { return other.first == attr.name(); };
        if (to.attrs.size() == kMaxAttrs || std::any_of(to.attrs.begin(), to.attrs.end(), same)) {
            return Fail(error, "Too many attributes, or the same one twice", static_cast<size_t>(from.offset_debug()));
        }
        if (!TakeText(attr.value(), to.attrs.emplace_back(attr.name(), "").second, error)) {
            return false;
        }
    }
    return true;
}

bool Convert(const pugi::xml_node& from, int depth, Node& to, Error& error)
{
    if (depth > kMaxDepth) {
        return Fail(error, "Elements are nested too deeply", static_cast<size_t>(from.offset_debug()));
    }
    to.name = from.name();
    if (!ConvertAttrs(from, to, error)) {
        return false;
    }
    for (const pugi::xml_node& child : from.children()) {
        if (child.type() == pugi::node_cdata) {
            to.text += child.value();
        } else if (IsText(child) && !TakeText(child.value(), to.text, error)) {
            return false;
        }
        if (child.type() == pugi::node_element && !Convert(child, depth + 1, to.children.emplace_back(), error)) {
            return false;
        }
    }
    if (!to.children.empty() && IsBlank(to.text)) {
        to.text.clear();
    }
    return true;
}

bool CheckTop(const pugi::xml_document& document, Error& error)
{
    bool found = false;
    for (const pugi::xml_node& node : document.children()) {
        bool isElement = node.type() == pugi::node_element;
        if ((isElement && found) || (IsText(node) && !IsBlank(node.value()))) {
            return Fail(error, "Something beside the root element", static_cast<size_t>(node.offset_debug()));
        }
        found = found || isElement;
    }
    return found ? true : Fail(error, "No root element", 0);
}

void Append(pugi::xml_node parent, const Node& node)
{
    pugi::xml_node element = parent.append_child(node.name.c_str());
    for (const auto& [name, value] : node.attrs) {
        element.append_attribute(name.c_str()).set_value(value.c_str());
    }
    if (!node.text.empty()) {
        element.append_child(pugi::node_pcdata).set_value(node.text.c_str());
    }
    for (const Node& child : node.children) {
        Append(element, child);
    }
}

bool IsNameStart(char16_t c)
{
    return (c >= u'A' && c <= u'Z') || (c >= u'a' && c <= u'z') || c == u'_' || c == u':' || c >= 0x80;
}

bool IsNamePart(char16_t c)
{
    return IsNameStart(c) || (c >= u'0' && c <= u'9') || c == u'-' || c == u'.';
}

} // namespace

bool Parse(const void* data, size_t size, Node& root, Error& error)
{
    error = {};
    if (!data || size == 0) {
        return Fail(error, "No document", 0);
    }
    if (size > kMaxSize) {
        return Fail(error, "The document is too large", kMaxSize);
    }
    pugi::xml_encoding encoding = FindEncoding(static_cast<const uint8_t*>(data), size);
    if (!CheckText(data, size, encoding, error)) {
        return false;
    }

    pugi::xml_document document;
    pugi::xml_parse_result result = document.load_buffer(data, size, kParseFlags, encoding);
    if (!result) {
        return Fail(error, result.description(), static_cast<size_t>(result.offset));
    }
    root = {};
    return CheckTop(document, error) && Convert(document.document_element(), 1, root, error);
}

std::string Write(const Node& root)
{
    pugi::xml_document document;
    pugi::xml_node declaration = document.append_child(pugi::node_declaration);
    declaration.append_attribute("version").set_value("1.0");
    declaration.append_attribute("encoding").set_value("UTF-8");
    Append(document, root);
    std::ostringstream out;
    document.save(out, "  ", pugi::format_default, pugi::encoding_utf8);
    return out.str();
}

bool IsName(const char16_t* name)
{
    if (!name || !IsNameStart(*name)) {
        return false;
    }
    for (; *name != 0; ++name) {
        if (!IsNamePart(*name)) {
            return false;
        }
    }
    return true;
}

} // namespace qor::xml
