#include "File.h"
#include "Guard.h"
#include "QorPub.h"
#include "XmlParse.h"

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <limits>
#include <mutex>

namespace
{

std::mutex g_missingLock;

std::wstring Widen(const std::string& text)
{
    return UTF8ToWStr(text.c_str(), static_cast<int>(text.size())).GetString();
}

std::string Narrow(const std::wstring& text)
{
    CStringA utf8 = WStrToUTF8(text.c_str(), static_cast<int>(text.size()));
    return std::string(utf8.GetString(), static_cast<size_t>(utf8.GetLength()));
}

LPCWSTR OrEmpty(LPCWSTR text)
{
    return text ? text : L"";
}

bool IsXmlName(LPCWSTR name)
{
    static_assert(sizeof(wchar_t) == sizeof(char16_t));
    return qor::xml::IsName(reinterpret_cast<const char16_t*>(name));
}

qor::xml::Node ToNode(const CXmlElem& elem)
{
    qor::xml::Node node;
    node.name = Narrow(elem.GetName());
    node.text = Narrow(elem.GetData());
    for (int i = 0; i < elem.GetAttrCount(); ++i) {
        node.attrs.emplace_back(Narrow(elem.GetAttrName(i)), Narrow(elem.GetAttrValue(i)));
    }
    for (int i = 0; i < elem.GetChildCount(); ++i) {
        node.children.push_back(ToNode(*elem.GetChild(i)));
    }
    return node;
}

void Fill(CXmlElem& elem, const qor::xml::Node& node)
{
    elem.SetData(Widen(node.text).c_str());
    for (const auto& [name, value] : node.attrs) {
        elem.SetAttr(Widen(name).c_str(), Widen(value).c_str());
    }
    for (const qor::xml::Node& child : node.children) {
        CXmlElem* added = elem.AddChild(Widen(child.name).c_str());
        if (added) {
            Fill(*added, child);
        }
    }
}

bool ParseInt(LPCWSTR text, int& value)
{
    bool hex = text[0] == L'0' && (text[1] == L'x' || text[1] == L'X');
    wchar_t* end = nullptr;
    errno = 0;
    long long number = wcstoll(text, &end, hex ? 16 : 10);
    bool whole = end != text && *end == 0 && errno == 0;
    if (!whole || number < (std::numeric_limits<int>::min)() || number > (std::numeric_limits<int>::max)()) {
        return false;
    }
    value = static_cast<int>(number);
    return true;
}

} // namespace

CXmlElem::CXmlElem(LPCWSTR name) : m_name(OrEmpty(name)) {}

CXmlElem::~CXmlElem() = default;

LPCWSTR CXmlElem::GetName() const
{
    return m_name.c_str();
}

LPCWSTR CXmlElem::GetData() const
{
    return m_data.c_str();
}

LPCWSTR CXmlElem::GetChildData(LPCWSTR key, int flag) const
{
    const CXmlElem* child = FindChild(key);
    if (child) {
        return child->GetData();
    }
    if (flag != 1) {
        return nullptr;
    }
    std::lock_guard lock(g_missingLock);
    return m_missing.emplace(OrEmpty(key)).first->c_str();
}

LPCWSTR CXmlElem::GetAttr(LPCWSTR name, LPCWSTR missing) const
{
    for (const auto& [key, value] : m_attrs) {
        if (key == OrEmpty(name)) {
            return value.c_str();
        }
    }
    return missing;
}

int CXmlElem::GetAttrInt(LPCWSTR name, int missing) const
{
    int value = 0;
    LPCWSTR text = GetAttr(name);
    return text && ParseInt(text, value) ? value : missing;
}

int CXmlElem::GetAttrCount() const
{
    return static_cast<int>(m_attrs.size());
}

LPCWSTR CXmlElem::GetAttrName(int index) const
{
    return index >= 0 && index < GetAttrCount() ? m_attrs[static_cast<size_t>(index)].first.c_str() : nullptr;
}

LPCWSTR CXmlElem::GetAttrValue(int index) const
{
    return index >= 0 && index < GetAttrCount() ? m_attrs[static_cast<size_t>(index)].second.c_str() : nullptr;
}

int CXmlElem::GetChildCount() const
{
    return static_cast<int>(m_children.size());
}

CXmlElem* CXmlElem::GetChild(int index) const
{
    return index >= 0 && index < GetChildCount() ? m_children[static_cast<size_t>(index)].get() : nullptr;
}

CXmlElem* CXmlElem::FindChild(LPCWSTR name) const
{
    for (const auto& child : m_children) {
        if (child->m_name == OrEmpty(name)) {
            return child.get();
        }
    }
    return nullptr;
}

CXmlElem* CXmlElem::FindChildByAttr(LPCWSTR name, LPCWSTR attr, LPCWSTR value) const
{
    std::wstring wanted = OrEmpty(name);
    for (const auto& child : m_children) {
        if (!wanted.empty() && child->m_name != wanted) {
            continue;
        }
        LPCWSTR found = child->GetAttr(attr);
        if (found && wcscmp(found, OrEmpty(value)) == 0) {
            return child.get();
        }
    }
    return nullptr;
}

CXmlElem* CXmlElem::GetParent() const
{
    return m_parent;
}

void CXmlElem::SetData(LPCWSTR data)
{
    m_data = OrEmpty(data);
}

BOOL CXmlElem::SetAttr(LPCWSTR name, LPCWSTR value)
{
    if (!IsXmlName(name)) {
        return FALSE;
    }
    for (auto& [key, current] : m_attrs) {
        if (key == name) {
            current = OrEmpty(value);
            return TRUE;
        }
    }
    m_attrs.emplace_back(name, OrEmpty(value));
    return TRUE;
}

BOOL CXmlElem::RemoveAttr(LPCWSTR name)
{
    auto found = std::find_if(m_attrs.begin(), m_attrs.end(), [&](auto& attr) { return attr.first == OrEmpty(name); });
    if (found == m_attrs.end()) {
        return FALSE;
    }
    m_attrs.erase(found);
    return TRUE;
}

CXmlElem* CXmlElem::AddChild(LPCWSTR name, LPCWSTR data)
{
    if (!IsXmlName(name)) {
        return nullptr;
    }
    m_children.push_back(std::make_unique<CXmlElem>(name));
    CXmlElem* child = m_children.back().get();
    child->m_parent = this;
    child->SetData(data);
    return child;
}

BOOL CXmlElem::RemoveChild(CXmlElem* child)
{
    auto found = std::find_if(m_children.begin(), m_children.end(), [&](auto& own) { return own.get() == child; });
    if (found == m_children.end()) {
        return FALSE;
    }
    m_children.erase(found);
    return TRUE;
}

CQorXml::CQorXml() = default;

CQorXml::~CQorXml() = default;

DWORD CQorXml::Load(LPCWSTR path)
{
    Clear();
    return qor::GuardMemory([&] {
        std::vector<BYTE> bytes;
        DWORD status = qor::ReadWholeFile(path, qor::xml::kMaxSize, bytes);
        return status == ERROR_SUCCESS ? LoadMemory(bytes.data(), bytes.size()) : status;
    });
}

DWORD CQorXml::LoadMemory(const void* data, size_t size)
{
    Clear();
    if (size > qor::xml::kMaxSize) {
        return ERROR_FILE_TOO_LARGE;
    }
    return qor::GuardMemory([&]() -> DWORD {
        qor::xml::Node node;
        qor::xml::Error error;
        if (!qor::xml::Parse(data, size, node, error)) {
            m_error = Widen(error.message);
            m_errorOffset = error.offset;
            return ERROR_INVALID_DATA;
        }
        auto root = std::make_unique<CXmlElem>(Widen(node.name).c_str());
        Fill(*root, node);
        m_root = std::move(root);
        return ERROR_SUCCESS;
    });
}

DWORD CQorXml::Save(LPCWSTR path) const
{
    if (!m_root) {
        return ERROR_INVALID_DATA;
    }
    return qor::GuardMemory([&] {
        std::string text = qor::xml::Write(ToNode(*m_root));
        return qor::ReplaceWholeFile(path, text.data(), static_cast<DWORD>(text.size()));
    });
}

BOOL CQorXml::SaveMemory(CStringA& text) const
{
    if (!m_root) {
        return FALSE;
    }
    DWORD status = qor::GuardMemory([&] {
        std::string written = qor::xml::Write(ToNode(*m_root));
        text = CStringA(written.c_str(), static_cast<int>(written.size()));
        return static_cast<DWORD>(ERROR_SUCCESS);
    });
    return status == ERROR_SUCCESS;
}

CXmlElem* CQorXml::GetRoot() const
{
    return m_root.get();
}

CXmlElem* CQorXml::CreateRoot(LPCWSTR name)
{
    Clear();
    if (!IsXmlName(name)) {
        return nullptr;
    }
    m_root = std::make_unique<CXmlElem>(name);
    return m_root.get();
}

void CQorXml::Clear()
{
    m_root.reset();
    m_error.clear();
    m_errorOffset = 0;
}

LPCWSTR CQorXml::GetErrorText() const
{
    return m_error.c_str();
}

size_t CQorXml::GetErrorOffset() const
{
    return m_errorOffset;
}

void CQorXml::ReplaceEntityChar(CString& text)
{
    text.Replace(L"&", L"&amp;");
    text.Replace(L"<", L"&lt;");
    text.Replace(L">", L"&gt;");
    text.Replace(L"\"", L"&quot;");
    text.Replace(L"'", L"&apos;");
}
