#pragma once

#include <cstddef>
#include <string>
#include <utility>
#include <vector>

/** Reading and writing of XML without anything of Windows in it, so that it can be built and fuzzed anywhere. */
namespace qor::xml
{

/** Largest document read, in bytes. */
constexpr size_t kMaxSize = size_t{64} * 1024 * 1024;
/** Deepest nesting of elements read. */
constexpr int kMaxDepth = 200;
/** Most attributes of one element. */
constexpr size_t kMaxAttrs = 256;

/** An element; all texts are UTF-8. */
struct Node
{
    std::string name;
    std::string text;
    std::vector<std::pair<std::string, std::string>> attrs;
    std::vector<Node> children;
};

/** What was wrong with a document; an empty message when nothing was. */
struct Error
{
    std::string message;
    size_t offset = 0;
};

/** Reads a whole document. FALSE with @p error filled, and @p root unspecified, when it is damaged. */
bool Parse(const void* data, size_t size, Node& root, Error& error);

/** Writes a document with declaration and indentation. */
std::string Write(const Node& root);

/** Tells whether a UTF-16 text may be the name of an element or attribute. */
bool IsName(const char16_t* name);

} // namespace qor::xml
