#include <tests/support/Locale.h>

#include <gtest/gtest.h>

#include <clocale>
#include <cwchar>

namespace ts
{
namespace
{
std::wstring UserValue(LCTYPE type)
{
    wchar_t value[256] = {};
    GetLocaleInfoW(LOCALE_USER_DEFAULT, type, value, static_cast<int>(std::size(value)));
    return value;
}
} // namespace

ThreadLocale::ThreadLocale(const wchar_t* name) : m_old(GetThreadLocale())
{
    const LCID locale = LocaleNameToLCID(name, 0);
    if (locale == 0 || !SetThreadLocale(locale)) {
        ADD_FAILURE() << "ThreadLocale: the system does not know this locale";
    }
}

ThreadLocale::~ThreadLocale()
{
    SetThreadLocale(m_old);
}

UserLocaleValue::UserLocaleValue(LCTYPE type, const wchar_t* value) : m_type(type), m_old(UserValue(type))
{
    if (!SetLocaleInfoW(LOCALE_USER_DEFAULT, type, value)) {
        ADD_FAILURE() << "UserLocaleValue: the value was refused, error " << GetLastError();
    }
}

UserLocaleValue::~UserLocaleValue()
{
    SetLocaleInfoW(LOCALE_USER_DEFAULT, m_type, m_old.c_str());
}

CrtLocale::CrtLocale(const wchar_t* name)
{
    const wchar_t* old = _wsetlocale(LC_ALL, nullptr);
    m_old = old ? old : L"C";
    if (!_wsetlocale(LC_ALL, name)) {
        ADD_FAILURE() << "CrtLocale: the C run-time does not know this locale";
    }
}

CrtLocale::~CrtLocale()
{
    _wsetlocale(LC_ALL, m_old.c_str());
}

} // namespace ts
