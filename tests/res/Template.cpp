#include "Template.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cwctype>

namespace
{
/** Reads a template word by word and never beyond its end. */
class Reader
{
  public:
    explicit Reader(const std::vector<BYTE>& bytes) : m_bytes(bytes) {}

    WORD Word()
    {
        if (m_at + 2 > m_bytes.size()) {
            ADD_FAILURE() << "the template is cut off";
            return 0;
        }
        const WORD value = static_cast<WORD>(m_bytes[m_at] | m_bytes[m_at + 1] << 8);
        m_at += 2;
        return value;
    }

    DWORD Long()
    {
        const DWORD low = Word();
        return low | static_cast<DWORD>(Word()) << 16;
    }

    std::wstring Text()
    {
        std::wstring text;
        for (WORD c = Word(); c != 0; c = Word()) {
            text += static_cast<wchar_t>(c);
        }
        return text;
    }

    /** A name or a number: the number goes to ordinal. */
    std::wstring NameOrOrdinal(WORD& ordinal)
    {
        ordinal = 0;
        const size_t start = m_at;
        if (Word() == 0xFFFF) {
            ordinal = Word();
            return {};
        }
        m_at = start;
        return Text();
    }

    void Align() { m_at = (m_at + 3) / 4 * 4; }
    void Skip(size_t bytes) { m_at += bytes; }

  private:
    const std::vector<BYTE>& m_bytes;
    size_t m_at = 0;
};

std::wstring ClassName(Reader& reader)
{
    static const wchar_t* const kNames[] = {L"button", L"edit", L"static", L"listbox", L"scrollbar", L"combobox"};
    WORD ordinal = 0;
    std::wstring name = reader.NameOrOrdinal(ordinal);
    if (ordinal >= 0x80 && ordinal - 0x80 < static_cast<int>(std::size(kNames))) {
        name = kNames[ordinal - 0x80];
    }
    std::transform(name.begin(), name.end(), name.begin(), std::towlower);
    return name;
}

TemplateItem ReadItem(Reader& reader)
{
    TemplateItem item = {};
    reader.Align();
    reader.Long();
    item.exStyle = reader.Long();
    item.style = reader.Long();
    item.x = static_cast<short>(reader.Word());
    item.y = static_cast<short>(reader.Word());
    item.cx = static_cast<short>(reader.Word());
    item.cy = static_cast<short>(reader.Word());
    item.id = reader.Long();
    item.className = ClassName(reader);
    reader.NameOrOrdinal(item.picture);
    reader.Skip(reader.Word());
    return item;
}
} // namespace

const TemplateItem& Template::Item(DWORD id) const
{
    static const TemplateItem kNone = {};
    const TemplateItem* found = &kNone;
    for (const TemplateItem& item : items) {
        if (item.id != id) {
            continue;
        }
        EXPECT_EQ(&kNone, found) << "two controls have the id " << id;
        found = &item;
    }
    EXPECT_NE(&kNone, found) << "no control has the id " << id;
    return *found;
}

bool Template::Has(DWORD id) const
{
    return std::any_of(items.begin(), items.end(), [id](const TemplateItem& item) { return item.id == id; });
}

HMODULE Resources()
{
    static const HMODULE library = LoadLibraryExW(L"QorUI.dll", nullptr, LOAD_LIBRARY_AS_DATAFILE);
    EXPECT_NE(nullptr, library) << "QorUI.dll is not beside the test program";
    return library;
}

std::vector<BYTE> ResourceBytes(UINT id, LPCWSTR type)
{
    const HRSRC resource = FindResourceW(Resources(), MAKEINTRESOURCEW(id), type);
    if (!resource) {
        return {};
    }
    const BYTE* bytes = static_cast<const BYTE*>(LockResource(LoadResource(Resources(), resource)));
    return {bytes, bytes + SizeofResource(Resources(), resource)};
}

Template ReadTemplate(UINT id)
{
    Template found;
    const std::vector<BYTE> bytes = ResourceBytes(id, RT_DIALOG);
    Reader reader(bytes);
    if (reader.Word() != 1 || reader.Word() != 0xFFFF) {
        ADD_FAILURE() << "there is no extended template " << id;
        return found;
    }
    reader.Skip(8);
    found.style = reader.Long();
    const WORD count = reader.Word();
    reader.Skip(4);
    found.cx = static_cast<short>(reader.Word());
    found.cy = static_cast<short>(reader.Word());
    WORD ordinal = 0;
    reader.NameOrOrdinal(ordinal);
    reader.NameOrOrdinal(ordinal);
    found.caption = reader.Text();
    found.pointSize = reader.Word();
    reader.Skip(4);
    found.font = reader.Text();
    for (WORD i = 0; i < count; ++i) {
        found.items.push_back(ReadItem(reader));
    }
    return found;
}
