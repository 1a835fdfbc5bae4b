#include "ModuleLang.h"

#include "FormatSignature.h"

#include <QorPub/QorPub.h>

namespace
{

constexpr wchar_t kRootName[] = L"QorLang";

} // namespace

ModuleLang::ModuleLang(const std::wstring& folder, const std::vector<std::wstring>& locales, const std::wstring& module)
    : m_root(std::make_unique<CXmlElem>(kRootName)), m_empty(std::make_unique<CXmlElem>())
{
    const std::wstring file = L"\\" + module + L".xml";
    Sections english;
    Read(folder + L"\\" + kEnglish + file, true, english);

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

CXmlElem* ModuleLang::GetSection(LPCWSTR name) const
{
    CXmlElem* section = name ? m_root->FindChild(name) : nullptr;
    return section ? section : m_empty.get();
}

/** @param needed a file that is not there is traced too. @return whether there are texts. */
bool ModuleLang::Read(const std::wstring& path, bool needed, Sections& sections)
{
    CQorXml xml;
    DWORD status = xml.Load(path.c_str());
    const CXmlElem* root = status == ERROR_SUCCESS ? xml.GetRoot() : nullptr;
    if (status == ERROR_SUCCESS && (!root || wcscmp(root->GetName(), kRootName) != 0)) {
        status = ERROR_INVALID_DATA;
    }
    if (status != ERROR_SUCCESS) {
        if (needed || (status != ERROR_FILE_NOT_FOUND && status != ERROR_PATH_NOT_FOUND)) {
            QorTrace(1, status, L"ModuleLang::Read", L"ModuleLang", __LINE__, L"Language file '%s' ignored. %s",
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
bool ModuleLang::IsFit(const std::wstring& text, const std::wstring* english)
{
    return HaveSameFormat(text, english ? *english : std::wstring());
}

void ModuleLang::Translate(Sections& texts, const Sections& translation, const Sections& english,
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
                QorTrace(1, ERROR_INVALID_DATA, L"ModuleLang::Translate", L"ModuleLang", __LINE__,
                         L"Text '%s' of '%s' in '%s' ignored: its placeholders are not the English ones.", key.c_str(),
                         name.c_str(), path.c_str());
            }
        }
    }
}

void ModuleLang::Build(const Sections& texts)
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
