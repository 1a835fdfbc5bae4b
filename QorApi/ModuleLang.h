#pragma once

#include <QorPub/Xml.h>

#include <map>
#include <memory>
#include <string>
#include <vector>

/** The locale whose texts are the model of all others. */
constexpr wchar_t kEnglish[] = L"en";

/** The texts of one module in one language: sections by name, English where the translation has nothing fit. */
class ModuleLang
{
  public:
    /**
     * Reads the module's files: those of @p locales, the best one first, then English.
     * @param folder  folder with one folder per locale.
     * @param locales names of locales without `en`.
     */
    ModuleLang(const std::wstring& folder, const std::vector<std::wstring>& locales, const std::wstring& module);

    /** The section, or an empty one. */
    CXmlElem* GetSection(LPCWSTR name) const;

  private:
    using Section = std::map<std::wstring, std::wstring>;
    using Sections = std::map<std::wstring, Section>;

    static bool Read(const std::wstring& path, bool needed, Sections& sections);
    static bool IsFit(const std::wstring& text, const std::wstring* english);
    static void Translate(Sections& texts, const Sections& translation, const Sections& english,
                          const std::wstring& path);
    void Build(const Sections& texts);

    std::unique_ptr<CXmlElem> m_root;
    std::unique_ptr<CXmlElem> m_empty;
};
