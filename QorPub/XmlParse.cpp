#include <QorPub/XmlParse.h>

#include <pugixml.hpp>

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <sstream>

namespace qor::xml
{
namespace
{

constexpr unsigned PARSE_FLAGS = pugi::parse_default | pugi::parse_ws_pcdata_single | pugi::parse_fragment;

bool Fail(Error& error, const char* message, size_t offset)
{
    error.message = message;
    error.offset = offset;
    return false;
}

pugi::xml_encoding FindEncoding(const uint8_t* data, size_t size)
{
    if (size < 2)
        return pugi::encoding_utf8;
    if ((data[0] == 0xFF && data[1] == 0xFE) || (data[0] != 0 && data[1] == 0))
        return pugi::encoding_utf16_le;
    if ((data[0] == 0xFE && data[1] == 0xFF) || (data[0] == 0 && data[1] != 0))
        return pugi::encoding_utf16_be;
    return pugi::encoding_utf8;
}

/** Smallest code point that needs a UTF-8 sequence of this length. */
uint32_t SmallestOfLength(int length)
{
    constexpr uint32_t smallest[] = {0, 0, 0x80, 0x800, 0x10000};
    return smallest[length];
}

int Utf8Length(uint8_t lead)
{
    if (lead < 0x80)
        return 1;
    if (lead >= 0xC2 && lead <= 0xDF)
        return 2;
    if (lead >= 0xE0 && lead <= 0xEF)
        return 3;
    return lead >= 0xF0 && lead <= 0xF4 ? 4 : 0;
}

/** Length of the valid UTF-8 sequence at the start of the data; 0 when there is none. */
size_t ValidUtf8Sequence(const uint8_t* data, size_t size)
{
    int length = Utf8Length(*data);
    if (length == 0 || static_cast<size_t>(length) > size)
        return 0;
    if (length == 1)
        return *data != 0 ? 1 : 0;
    uint32_t code = *data & (0x7F >> length);
    for (int i = 1; i < length; ++i) {
        if ((data[i] & 0xC0) != 0x80)
            return 0;
        code = code << 6 | (data[i] & 0x3F);
    }
    bool surrogate = code >= 0xD800 && code <= 0xDFFF;
    return code < SmallestOfLength(length) || code > 0x10FFFF || surrogate ? 0 : static_cast<size_t>(length);
}

bool CheckUtf8(const uint8_t* data, size_t size, Error& error)
{
    size_t pos = 0;
    while (pos < size) {
        size_t length = ValidUtf8Sequence(data + pos, size - pos);
        if (length == 0)
            return Fail(error, "Bytes that are no UTF-8 text", pos);
        pos += length;
    }
    return true;
}

bool CheckUtf16(const uint8_t* data, size_t size, bool lowFirst, Error& error)
{
    if (size % 2 != 0)
        return Fail(error, "Half a UTF-16 unit at the end", size - 1);
    bool needLow = false;
    for (size_t pos = 0; pos < size; pos += 2) {
        unsigned unit = lowFirst ? data[pos] | data[pos + 1] << 8 : data[pos] << 8 | data[pos + 1];
        bool isLow = unit >= 0xDC00 && unit <= 0xDFFF;
        if (unit == 0 || isLow != needLow)
            return Fail(error, "Units that are no UTF-16 text", pos);
        needLow = unit >= 0xD800 && unit <= 0xDBFF;
    }
    return needLow ? Fail(error, "Half a surrogate pair at the end", size - 2) : true;
}

bool CheckText(const void* data, size_t size, pugi::xml_encoding encoding, Error& error)
{
    auto bytes = static_cast<const uint8_t*>(data);
    if (encoding == pugi::encoding_utf8)
        return CheckUtf8(bytes, size, error);
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

/** Takes over a text; character references may have made something that is no UTF-8. */
bool TakeText(const char* from, std::string& to, Error& error)
{
    size_t size = strlen(from);
    if (!CheckUtf8(reinterpret_cast<const uint8_t*>(from), size, error))
        return Fail(error, "A reference to what is no character", 0);
    to.append(from, size);
    return true;
}

bool ConvertAttrs(const pugi::xml_node& from, Node& to, Error& error)
{
    for (const pugi::xml_attribute& attr : from.attributes()) {
        auto same = [&](const auto& other) { return other.first == attr.name(); };
        if (to.attrs.size() == MAX_ATTRS || std::any_of(to.attrs.begin(), to.attrs.end(), same))
            return Fail(error, "Too many attributes, or the same one twice", static_cast<size_t>(from.offset_debug()));
        if (!TakeText(attr.value(), to.attrs.emplace_back(attr.name(), "").second, error))
            return false;
    }
    return true;
}

bool Convert(const pugi::xml_node& from, int depth, Node& to, Error& error)
{
    if (depth > MAX_DEPTH)
        return Fail(error, "Elements are nested too deeply", static_cast<size_t>(from.offset_debug()));
    to.name = from.name();
    if (!ConvertAttrs(from, to, error))
        return false;
    for (const pugi::xml_node& child : from.children()) {
        if (IsText(child) && !TakeText(child.value(), to.text, error))
            return false;
        if (child.type() == pugi::node_element && !Convert(child, depth + 1, to.children.emplace_back(), error))
            return false;
    }
    if (!to.children.empty() && IsBlank(to.text))
        to.text.clear();
    return true;
}

bool CheckTop(const pugi::xml_document& document, Error& error)
{
    bool found = false;
    for (const pugi::xml_node& node : document.children()) {
        bool isElement = node.type() == pugi::node_element;
        if ((isElement && found) || (IsText(node) && !IsBlank(node.value())))
            return Fail(error, "Something beside the root element", static_cast<size_t>(node.offset_debug()));
        found = found || isElement;
    }
    return found ? true : Fail(error, "No root element", 0);
}

void Append(pugi::xml_node parent, const Node& node)
{
    pugi::xml_node element = parent.append_child(node.name.c_str());
    for (const auto& [name, value] : node.attrs)
        element.append_attribute(name.c_str()).set_value(value.c_str());
    if (!node.text.empty())
        element.append_child(pugi::node_pcdata).set_value(node.text.c_str());
    for (const Node& child : node.children)
        Append(element, child);
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
    if (data == nullptr || size == 0)
        return Fail(error, "No document", 0);
    if (size > MAX_SIZE)
        return Fail(error, "The document is too large", MAX_SIZE);
    pugi::xml_encoding encoding = FindEncoding(static_cast<const uint8_t*>(data), size);
    if (!CheckText(data, size, encoding, error))
        return false;

    pugi::xml_document document;
    pugi::xml_parse_result result = document.load_buffer(data, size, PARSE_FLAGS, encoding);
    if (!result)
        return Fail(error, result.description(), static_cast<size_t>(result.offset));
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
    if (name == nullptr || !IsNameStart(*name))
        return false;
    for (; *name != 0; ++name) {
        if (!IsNamePart(*name))
            return false;
    }
    return true;
}

} // namespace qor::xml
