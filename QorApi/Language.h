#pragma once

#include <QorApi/QorApi.h>

#include <map>
#include <memory>
#include <mutex>
#include <string>
#include <vector>

/** The texts of one module in one language: sections by name, English where the translation has nothing fit. */
class CModuleLang
{
  public:
    /**
     * Reads the module's files: those of @p locales, the best one first, then English.
     * @param folder  folder with one folder per locale.
     * @param locales names of locales without `en`.
     */
    CModuleLang(const std::wstring& folder, const std::vector<std::wstring>& locales, const std::wstring& module);

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

/** The process's language and all texts that were read. */
class CLanguage
{
  public:
    static CLanguage& Get();

    /** Never null; also for null names, and when memory runs out. */
    CXmlElem* GetSection(LPCWSTR module, LPCWSTR section);
    BOOL Choose(LPCWSTR locale);
    std::wstring GetFolderName();

  private:
    CXmlElem* FindSection(LPCWSTR module, LPCWSTR section);
    std::wstring GetLocale() const;

    std::mutex m_lock;
    std::wstring m_chosen;
    std::map<std::wstring, std::unique_ptr<CModuleLang>> m_modules;
    CXmlElem m_empty;
};
