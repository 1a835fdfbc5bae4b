#include "Language.h"

#include "Environment.h"
#include "FormatSignature.h"
#include "ModuleLang.h"

#include <QorPub/Guard.h>

#include <cwctype>
#include <mutex>

namespace
{

constexpr wchar_t kProductModule[] = L"Product";
constexpr wchar_t kStringsSection[] = L"Strings";
constexpr wchar_t kWindowText[] = L"Text";
constexpr wchar_t kControlPrefix[] = L"Ctrl";
constexpr int kSetTexts = 1;

std::wstring GetLangFolder()
{
    const std::wstring named = ReadEnvironment(L"QOR_LANG_DIR");
    return named.empty() ? std::wstring(g_AppPath.GetString()) + L"lang" : named;
}

/** Names of locales become names of folders: nothing but letters, digits and hyphens. */
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

/** zh-Hans-CN, zh-Hans, zh. English is no member: it is what remains when nothing else is there. */
std::vector<std::wstring> GetChain(std::wstring locale)
{
    std::vector<std::wstring> chain;
    while (!locale.empty() && _wcsicmp(locale.c_str(), kEnglish) != 0) {
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

/** The best folder that exists for a locale; empty when there is none but perhaps English. */
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
    return _wcsicmp(locale.substr(0, locale.find(L'-')).c_str(), kEnglish) == 0;
}

std::wstring GetUserLocale()
{
    wchar_t name[LOCALE_NAME_MAX_LENGTH] = {};
    return GetUserDefaultLocaleName(name, LOCALE_NAME_MAX_LENGTH) ? name : kEnglish;
}

/** The control that an element such as Ctrl1152 is for; 0 for any other. */
int GetControlId(LPCWSTR name)
{
    constexpr size_t kLength = std::size(kControlPrefix) - 1;
    if (wcsncmp(name, kControlPrefix, kLength) != 0 || !iswdigit(name[kLength])) {
        return 0;
    }
    wchar_t* end = nullptr;
    const unsigned long id = wcstoul(name + kLength, &end, 10);
    return *end == 0 && id <= 0xFFFF ? static_cast<int>(id) : 0;
}

void SetTexts(HWND window, const CXmlElem& element)
{
    for (int i = 0; i < element.GetChildCount(); ++i) {
        const CXmlElem* child = element.GetChild(i);
        HWND target = nullptr;
        if (wcscmp(child->GetName(), kWindowText) == 0) {
            target = window;
        } else if (const int id = GetControlId(child->GetName())) {
            target = GetDlgItem(window, id);
        }
        if (target) {
            SetWindowTextW(target, child->GetData());
        }
    }
}

/** The process's language and all texts that were read. */
class LanguageState
{
  public:
    static LanguageState& Get();

    /** Never null; also for null names, and when memory runs out. */
    CXmlElem* GetSection(LPCWSTR module, LPCWSTR section);
    BOOL Choose(LPCWSTR locale);
    std::wstring GetFolderName();

  private:
    CXmlElem* FindSection(LPCWSTR module, LPCWSTR section);
    std::wstring GetLocale() const;

    std::mutex m_lock;
    std::wstring m_chosen;
    std::map<std::wstring, std::unique_ptr<ModuleLang>> m_modules;
    CXmlElem m_empty;
};

LanguageState& LanguageState::Get()
{
    static LanguageState language;
    return language;
}

CXmlElem* LanguageState::GetSection(LPCWSTR module, LPCWSTR section)
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

CXmlElem* LanguageState::FindSection(LPCWSTR module, LPCWSTR section)
{
    const std::lock_guard guard(m_lock);
    const std::wstring folder = GetLangFolder();
    const std::wstring locale = GetLocale();
    std::unique_ptr<ModuleLang>& texts = m_modules[folder + L"|" + locale + L"|" + module];
    if (!texts) {
        texts = std::make_unique<ModuleLang>(folder, GetChain(locale), module);
    }
    return texts->GetSection(section);
}

BOOL LanguageState::Choose(LPCWSTR locale)
{
    const std::wstring name = locale ? locale : L"";
    if (!name.empty()) {
        if (!IsLocaleName(name)) {
            return FALSE;
        }
        if (FindFolder(name).empty() && !(IsEnglish(name) && HasFolder(GetLangFolder() + L"\\" + kEnglish))) {
            return FALSE;
        }
    }
    const std::lock_guard guard(m_lock);
    m_chosen = name;
    return TRUE;
}

std::wstring LanguageState::GetFolderName()
{
    const std::lock_guard guard(m_lock);
    const std::wstring name = FindFolder(GetLocale());
    return name.empty() ? kEnglish : name;
}

std::wstring LanguageState::GetLocale() const
{
    if (!m_chosen.empty()) {
        return m_chosen;
    }
    const std::wstring named = ReadEnvironment(L"QOR_LANG");
    return IsLocaleName(named) ? named : GetUserLocale();
}

} // namespace

CXmlElem* QorSetDlgLang(HWND window, LPCWSTR module, LPCWSTR dialogKey, int flag)
{
    CXmlElem* element = LanguageState::Get().GetSection(module, dialogKey);
    if ((flag & kSetTexts) && window && IsWindow(window)) {
        SetTexts(window, *element);
    }
    return element;
}

CXmlElem* QorGetModuleLang(LPCWSTR module, LPCWSTR section)
{
    return LanguageState::Get().GetSection(module, section);
}

LPCWSTR QorGetString(LPCWSTR key)
{
    return QorGetModuleLang(kProductModule, kStringsSection)->GetChildData(key, 1);
}

BOOL QorSetLanguage(LPCWSTR locale)
{
    return LanguageState::Get().Choose(locale);
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
    return LanguageState::Get().GetFolderName().c_str();
}
