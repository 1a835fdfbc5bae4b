#include <QorPub/XmlParse.h>

#include <cstdint>
#include <cstdlib>

namespace
{

bool IsSame(const qor::xml::Node& a, const qor::xml::Node& b)
{
    if (a.name != b.name || a.text != b.text || a.attrs != b.attrs || a.children.size() != b.children.size()) {
        return false;
    }
    for (size_t i = 0; i < a.children.size(); ++i) {
        if (!IsSame(a.children[i], b.children[i])) {
            return false;
        }
    }
    return true;
}

} // namespace

/** What is read once, written and read again must be the same document. */
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    qor::xml::Node first;
    qor::xml::Error error;
    if (!qor::xml::Parse(data, size, first, error)) {
        return 0;
    }
    std::string text = qor::xml::Write(first);
    qor::xml::Node second;
    if (!qor::xml::Parse(text.data(), text.size(), second, error) || !IsSame(first, second)) {
        abort();
    }
    return 0;
}
