#include "Language.h"

#include "Environment.h"
#include "FormatSignature.h"

#include <QorPub/Guard.h>

#include <cwctype>

namespace
{

constexpr wchar_t ENGLISH[] = L"en";
constexpr wchar_t ROOT_NAME[] = L"QorLang";
constexpr wchar_t PRODUCT_MODULE[] = L"Product";
constexpr wchar_t STRINGS_SECTION[] = L"Strings";
constexpr wchar_t WINDOW_TEXT[] = L"Text";
constexpr wchar_t CONTROL_PREFIX[] = L"Ctrl";
constexpr int SET_TEXTS = 1;

std::wstring GetLangFolder()
{
    const std::wstring named = ReadEnvironment(L"QOR_LANG_DIR");
    return named.empty() ? std::wstring(g_AppPath.GetString()) + L"lang" : named;
}

// Names of locales become names of folders: nothing but letters, digits and hyphens.
bool IsLocaleName(const std::wstring& name)
{
    if (name.empty() || name.size() >= LOCALE_NAME_MAX_LENGTH) {
        return false;
    }
    for (const wchar_t ch : name) {
        const bool letter = (ch >= L'a' && ch <= L'z') || (ch >= L'A' && ch <= L'Z');
        if (!letter && !(ch >= L'0' && ch <= L'9') && ch != L'-') {
            return false;
        }
    }
    return true;
}

bool IsFileName(LPCWSTR name)
{
    return name && *name && !wcspbrk(name, L"\\/:*?\"<>|");
}

// zh-Hans-CN, zh-Hans, zh. English is no member: it is what remains when nothing else is there.
std::vector<std::wstring> GetChain(std::wstring locale)
{
    std::vector<std::wstring> chain;
    while (!locale.empty() && _wcsicmp(locale.c_str(), ENGLISH) != 0) {
        chain.push_back(locale);
        const size_t hyphen = locale.rfind(L'-');
        locale.resize(hyphen == std::wstring::npos ? 0 : hyphen);
    }
    return chain;
}

bool HasFolder(const std::wstring& path)
{
    const DWORD attributes = GetFileAttributesW(path.c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY);
}

// The best folder that exists for a locale; empty when there is none but perhaps English.
std::wstring FindFolder(const std::wstring& locale)
{
    for (const std::wstring& name : GetChain(locale)) {
        if (HasFolder(GetLangFolder() + L"\\" + name)) {
            return name;
        }
    }
    return {};
}

bool IsEnglish(const std::wstring& locale)
{
    return _wcsicmp(locale.substr(0, locale.find(L'-')).c_str(), ENGLISH) == 0;
}

std::wstring GetUserLocale()
{
    wchar_t name[LOCALE_NAME_MAX_LENGTH] = {};
    return GetUserDefaultLocaleName(name, LOCALE_NAME_MAX_LENGTH) ? name : ENGLISH;
}

// The control that an element such as Ctrl1152 is for; 0 for any other.
int GetControlId(LPCWSTR name)
{
    constexpr size_t length = std::size(CONTROL_PREFIX) - 1;
    if (wcsncmp(name, CONTROL_PREFIX, length) != 0 || !iswdigit(name[length])) {
        return 0;
    }
    wchar_t* end = nullptr;
    const unsigned long id = wcstoul(name + length, &end, 10);
    return *end == 0 && id <= 0xFFFF ? static_cast<int>(id) : 0;
}

bool HaveSameFormat(std::wstring_view text, std::wstring_view model)
{
    std::wstring own;
    std::wstring wanted;
    return GetFormatSignature(text, own) && GetFormatSignature(model, wanted) && own == wanted;
}

void SetTexts(HWND window, const CXmlElem& element)
{
    for (int i = 0; i < element.GetChildCount(); ++i) {
        const CXmlElem* child = element.GetChild(i);
        HWND target = nullptr;
        if (wcscmp(child->GetName(), WINDOW_TEXT) == 0) {
            target = window;
        } else if (const int id = GetControlId(child->GetName())) {
            target = GetDlgItem(window, id);
        }
        if (target) {
            SetWindowTextW(target, child->GetData());
        }
    }
}

} // namespace

// ------------------------------------------------------------------ one module's texts

CModuleLang::CModuleLang(const std::wstring& folder, const std::vector<std::wstring>& locales,
                         const std::wstring& module)
    : m_root(std::make_unique<CXmlElem>(ROOT_NAME)), m_empty(std::make_unique<CXmlElem>())
{
    const std::wstring file = L"\\" + module + L".xml";
    Sections english;
    Read(folder + L"\\" + ENGLISH + file, true, english);

    Sections texts;
    for (const std::wstring& locale : locales) {
        std::wstring path(folder);
        path.append(L"\\").append(locale).append(file);
        Sections translation;
        if (Read(path, false, translation)) {
            Translate(texts, translation, english, path);
        }
    }
    for (const auto& [name, section] : english) {
        for (const auto& [key, text] : section) {
            std::wstring signature;
            if (GetFormatSignature(text, signature)) {
                texts[name].try_emplace(key, text);
            }
        }
        texts[name];
    }
    Build(texts);
}

CXmlElem* CModuleLang::GetSection(LPCWSTR name) const
{
    CXmlElem* section = name ? m_root->FindChild(name) : nullptr;
    return section ? section : m_empty.get();
}

/** @param needed a file that is not there is traced too. @return whether there are texts. */
bool CModuleLang::Read(const std::wstring& path, bool needed, Sections& sections)
{
    CQorXml xml;
    DWORD status = xml.Load(path.c_str());
    const CXmlElem* root = status == 0 ? xml.GetRoot() : nullptr;
    if (root && wcscmp(root->GetName(), ROOT_NAME) != 0) {
        status = ERROR_INVALID_DATA;
    }
    if (status != 0) {
        if (needed || (status != ERROR_FILE_NOT_FOUND && status != ERROR_PATH_NOT_FOUND)) {
            QorTrace(1, status, L"CModuleLang::Read", L"Language", __LINE__, L"Language file '%s' ignored. %s",
                     path.c_str(), xml.GetErrorText());
        }
        return false;
    }
    for (int i = 0; i < root->GetChildCount(); ++i) {
        const CXmlElem* element = root->GetChild(i);
        Section& section = sections[element->GetName()];
        for (int j = 0; j < element->GetChildCount(); ++j) {
            section.try_emplace(element->GetChild(j)->GetName(), element->GetChild(j)->GetData());
        }
    }
    return true;
}

/** Whether a translation may stand for the English text, or for a text that English does not have (null). */
bool CModuleLang::IsFit(const std::wstring& text, const std::wstring* english)
{
    return HaveSameFormat(text, english ? *english : std::wstring());
}

void CModuleLang::Translate(Sections& texts, const Sections& translation, const Sections& english,
                            const std::wstring& path)
{
    for (const auto& [name, section] : translation) {
        const auto model = english.find(name);
        for (const auto& [key, text] : section) {
            const std::wstring* original = nullptr;
            if (model != english.end()) {
                const auto found = model->second.find(key);
                original = found != model->second.end() ? &found->second : nullptr;
            }
            if (IsFit(text, original)) {
                texts[name].try_emplace(key, text);
            } else {
                QorTrace(1, ERROR_INVALID_DATA, L"CModuleLang::Translate", L"Language", __LINE__,
                         L"Text '%s' of '%s' in '%s' ignored: its placeholders are not the English ones.", key.c_str(),
                         name.c_str(), path.c_str());
            }
        }
    }
}

void CModuleLang::Build(const Sections& texts)
{
    for (const auto& [name, section] : texts) {
        CXmlElem* element = m_root->AddChild(name.c_str());
        for (const auto& [key, text] : section) {
            if (element) {
                element->AddChild(key.c_str(), text.c_str());
            }
        }
    }
}

// ------------------------------------------------------------------ the process's language

CLanguage& CLanguage::Get()
{
    static CLanguage language;
    return language;
}

CXmlElem* CLanguage::GetSection(LPCWSTR module, LPCWSTR section)
{
    CXmlElem* found = &m_empty;
    if (IsFileName(module)) {
        qor::GuardMemory([&] {
            found = FindSection(module, section);
            return static_cast<DWORD>(ERROR_SUCCESS);
        });
    }
    return found;
}

CXmlElem* CLanguage::FindSection(LPCWSTR module, LPCWSTR section)
{
    const std::lock_guard guard(m_lock);
    const std::wstring folder = GetLangFolder();
    const std::wstring locale = GetLocale();
    std::unique_ptr<CModuleLang>& texts = m_modules[folder + L"|" + locale + L"|" + module];
    if (!texts) {
        texts = std::make_unique<CModuleLang>(folder, GetChain(locale), module);
    }
    return texts->GetSection(section);
}

BOOL CLanguage::Choose(LPCWSTR locale)
{
    const std::wstring name = locale ? locale : L"";
    if (!name.empty()) {
        if (!IsLocaleName(name)) {
            return FALSE;
        }
        if (FindFolder(name).empty() && !(IsEnglish(name) && HasFolder(GetLangFolder() + L"\\" + ENGLISH))) {
            return FALSE;
        }
    }
    const std::lock_guard guard(m_lock);
    m_chosen = name;
    return TRUE;
}

std::wstring CLanguage::GetFolderName()
{
    const std::lock_guard guard(m_lock);
    const std::wstring name = FindFolder(GetLocale());
    return name.empty() ? ENGLISH : name;
}

std::wstring CLanguage::GetLocale() const
{
    if (!m_chosen.empty()) {
        return m_chosen;
    }
    const std::wstring named = ReadEnvironment(L"QOR_LANG");
    return IsLocaleName(named) ? named : GetUserLocale();
}

// ------------------------------------------------------------------ exported

CXmlElem* QorSetDlgLang(HWND window, LPCWSTR module, LPCWSTR dialogKey, int flag)
{
    CXmlElem* element = CLanguage::Get().GetSection(module, dialogKey);
    if ((flag & SET_TEXTS) && window && IsWindow(window)) {
        SetTexts(window, *element);
    }
    return element;
}

CXmlElem* QorGetModuleLang(LPCWSTR module, LPCWSTR section)
{
    return CLanguage::Get().GetSection(module, section);
}

LPCWSTR QorGetString(LPCWSTR key)
{
    return QorGetModuleLang(PRODUCT_MODULE, STRINGS_SECTION)->GetChildData(key, 1);
}

BOOL QorSetLanguage(LPCWSTR locale)
{
    return CLanguage::Get().Choose(locale);
}

BOOL QorIsSameFormat(LPCWSTR text, LPCWSTR model)
{
    bool same = false;
    qor::GuardMemory([&] {
        same = HaveSameFormat(text ? text : L"", model ? model : L"");
        return static_cast<DWORD>(ERROR_SUCCESS);
    });
    return same;
}

CString QorGetLanguage()
{
    return CLanguage::Get().GetFolderName().c_str();
}
