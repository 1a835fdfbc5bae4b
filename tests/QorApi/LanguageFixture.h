#pragma once

#include <QorApi/QorApi.h>
#include <tests/support/Support.h>

#include <gtest/gtest.h>

constexpr LPCWSTR kModule = L"App.exe";

/** Language data made for one test, with German chosen. */
class LanguageTest : public testing::Test
{
  protected:
    LanguageTest()
        : m_data(L"QOR_LANG_DIR", m_folder.File(L"lang").c_str()),
          m_locale(L"QOR_LANG", L"de-AT"),
          m_store(L"QOR_STORE", m_folder.File(L"store.db").c_str())
    {
        QorSetLanguage(nullptr);
    }
    ~LanguageTest() override { QorSetLanguage(nullptr); }

    /** Writes a language file with the given sections. */
    void Write(const std::wstring& locale, const std::string& sections, const std::wstring& module = kModule) const
    {
        WriteRaw(locale, "<?xml version=\"1.0\" encoding=\"UTF-8\"?><QorLang>" + sections + "</QorLang>", module);
    }

    void WriteRaw(const std::wstring& locale, const std::string& bytes, const std::wstring& module = kModule) const
    {
        const std::wstring folder = m_folder.MakeFolder(L"lang\\" + locale);
        ts::WriteBytes(folder + L"\\" + module + L".xml", bytes);
    }

    static std::wstring Text(LPCWSTR key, LPCWSTR section = L"Strings")
    {
        return QorGetModuleLang(kModule, section)->GetChildData(key, 1);
    }

    std::string TraceLog() const { return ts::ReadBytes(m_folder.File(L"qor.log")); }
    bool HasTraceLog() const { return ts::FileExists(m_folder.File(L"qor.log")); }

  private:
    ts::TempFolder m_folder;
    ts::EnvironmentVariable m_data;
    ts::EnvironmentVariable m_locale;
    ts::EnvironmentVariable m_store;
};

inline std::wstring WindowText(HWND window)
{
    WCHAR text[100] = {};
    GetWindowTextW(window, text, 100);
    return text;
}
