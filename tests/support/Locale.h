#pragma once

#include <windows.h>

#include <string>

namespace ts
{

/** Runs a block under another locale of the thread (date, number and text functions asked with LOCALE_USER_DEFAULT
 * aside). */
class ThreadLocale
{
  public:
    /** @param name Such as L"de-DE". An unknown name fails the test. */
    explicit ThreadLocale(const wchar_t* name);
    ~ThreadLocale();
    ThreadLocale(const ThreadLocale&) = delete;
    ThreadLocale& operator=(const ThreadLocale&) = delete;

  private:
    LCID m_old;
};

/** Runs a block with one value of the user's regional settings changed, for example LOCALE_IFIRSTDAYOFWEEK. */
class UserLocaleValue
{
  public:
    UserLocaleValue(LCTYPE type, const wchar_t* value);
    ~UserLocaleValue();
    UserLocaleValue(const UserLocaleValue&) = delete;
    UserLocaleValue& operator=(const UserLocaleValue&) = delete;

  private:
    LCTYPE m_type;
    std::wstring m_old;
};

/** Runs a block under another locale of the C run-time. */
class CrtLocale
{
  public:
    /** @param name Such as L"German" or L"C". An unknown name fails the test. */
    explicit CrtLocale(const wchar_t* name);
    ~CrtLocale();
    CrtLocale(const CrtLocale&) = delete;
    CrtLocale& operator=(const CrtLocale&) = delete;

  private:
    std::wstring m_old;
};

} // namespace ts
