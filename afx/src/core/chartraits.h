#pragma once

#include "private.h"

#include <mbstring.h>

#include <algorithm>
#include <cctype>
#include <cstdio>
#include <cwchar>
#include <cwctype>
#include <utility>

/** The run-time library's string functions by character width. The narrow ones know multi-byte characters. */
template <typename XCHAR>
struct CharFunctions;

template <>
struct CharFunctions<wchar_t>
{
    static int Length(const wchar_t* psz) { return static_cast<int>(wcslen(psz)); }
    static const wchar_t* Next(const wchar_t* psz) { return psz + 1; }
    static const wchar_t* FindChar(const wchar_t* psz, wchar_t ch) { return wcschr(psz, ch); }
    static const wchar_t* FindLastChar(const wchar_t* psz, wchar_t ch) { return wcsrchr(psz, ch); }
    static const wchar_t* FindString(const wchar_t* psz, const wchar_t* pszSub) { return wcsstr(psz, pszSub); }
    static const wchar_t* FindAnyOf(const wchar_t* psz, const wchar_t* pszSet) { return wcspbrk(psz, pszSet); }
    static int SpanOf(const wchar_t* psz, const wchar_t* pszSet) { return static_cast<int>(wcsspn(psz, pszSet)); }
    static int SpanNotOf(const wchar_t* psz, const wchar_t* pszSet) { return static_cast<int>(wcscspn(psz, pszSet)); }
    static int Compare(const wchar_t* psz1, const wchar_t* psz2) { return wcscmp(psz1, psz2); }
    static int CompareNoCase(const wchar_t* psz1, const wchar_t* psz2) { return _wcsicmp(psz1, psz2); }
    static int Collate(const wchar_t* psz1, const wchar_t* psz2) { return wcscoll(psz1, psz2); }
    static int CollateNoCase(const wchar_t* psz1, const wchar_t* psz2) { return _wcsicoll(psz1, psz2); }
    static bool IsSpace(const wchar_t* psz) { return iswspace(*psz) != 0; }
    static void Upper(wchar_t* psz, int nLength) { CharUpperBuffW(psz, static_cast<DWORD>(nLength)); }
    static void Lower(wchar_t* psz, int nLength) { CharLowerBuffW(psz, static_cast<DWORD>(nLength)); }
    static void Reverse(wchar_t* psz, int nLength)
    {
        std::reverse(psz, psz + nLength);
        for (int i = 0; i + 1 < nLength; ++i) {
            if (IS_LOW_SURROGATE(psz[i]) && IS_HIGH_SURROGATE(psz[i + 1])) {
                std::swap(psz[i], psz[i + 1]);
                ++i;
            }
        }
    }
    static int FormattedLength(const wchar_t* pszFormat, va_list args) { return _vscwprintf(pszFormat, args); }
    static void Format(wchar_t* psz, int nLength, const wchar_t* pszFormat, va_list args)
    {
        _vsnwprintf(psz, static_cast<size_t>(nLength), pszFormat, args);
    }
    static DWORD FormatSystem(const wchar_t* pszFormat, wchar_t** ppsz, va_list* pArgs)
    {
        return FormatMessageW(FORMAT_MESSAGE_FROM_STRING | FORMAT_MESSAGE_ALLOCATE_BUFFER, pszFormat, 0, 0,
                              reinterpret_cast<LPWSTR>(ppsz), 0, pArgs);
    }
    static DWORD Environment(const wchar_t* pszVar, wchar_t* psz, DWORD nSize)
    {
        return GetEnvironmentVariableW(pszVar, psz, nSize);
    }
    /** @return length of the converted text, without terminator */
    static int Convert(const char* pch, int nLength, wchar_t* pDest, int nDest)
    {
        return MultiByteToWideChar(CP_THREAD_ACP, 0, pch, nLength, pDest, nDest);
    }
};

template <>
struct CharFunctions<char>
{
    static const unsigned char* U(const char* psz) { return reinterpret_cast<const unsigned char*>(psz); }
    static unsigned char* U(char* psz) { return reinterpret_cast<unsigned char*>(psz); }
    static const char* C(const unsigned char* psz) { return reinterpret_cast<const char*>(psz); }

    static int Length(const char* psz) { return static_cast<int>(strlen(psz)); }
    static const char* Next(const char* psz) { return C(_mbsinc(U(psz))); }
    static const char* FindChar(const char* psz, char ch) { return C(_mbschr(U(psz), static_cast<unsigned char>(ch))); }
    static const char* FindLastChar(const char* psz, char ch)
    {
        return C(_mbsrchr(U(psz), static_cast<unsigned char>(ch)));
    }
    static const char* FindString(const char* psz, const char* pszSub) { return C(_mbsstr(U(psz), U(pszSub))); }
    static const char* FindAnyOf(const char* psz, const char* pszSet) { return C(_mbspbrk(U(psz), U(pszSet))); }
    static int SpanOf(const char* psz, const char* pszSet) { return static_cast<int>(_mbsspn(U(psz), U(pszSet))); }
    static int SpanNotOf(const char* psz, const char* pszSet) { return static_cast<int>(_mbscspn(U(psz), U(pszSet))); }
    static int Compare(const char* psz1, const char* psz2) { return strcmp(psz1, psz2); }
    static int CompareNoCase(const char* psz1, const char* psz2) { return _mbsicmp(U(psz1), U(psz2)); }
    static int Collate(const char* psz1, const char* psz2) { return strcoll(psz1, psz2); }
    static int CollateNoCase(const char* psz1, const char* psz2) { return _stricoll(psz1, psz2); }
    static bool IsSpace(const char* psz) { return isspace(static_cast<unsigned char>(*psz)) != 0; }
    static void Upper(char* psz, int nLength) { CharUpperBuffA(psz, static_cast<DWORD>(nLength)); }
    static void Lower(char* psz, int nLength) { CharLowerBuffA(psz, static_cast<DWORD>(nLength)); }
    static void Reverse(char* psz, int) { _mbsrev(U(psz)); }
    static int FormattedLength(const char* pszFormat, va_list args) { return _vscprintf(pszFormat, args); }
    static void Format(char* psz, int nLength, const char* pszFormat, va_list args)
    {
        _vsnprintf(psz, static_cast<size_t>(nLength), pszFormat, args);
    }
    static DWORD FormatSystem(const char* pszFormat, char** ppsz, va_list* pArgs)
    {
        return FormatMessageA(FORMAT_MESSAGE_FROM_STRING | FORMAT_MESSAGE_ALLOCATE_BUFFER, pszFormat, 0, 0,
                              reinterpret_cast<LPSTR>(ppsz), 0, pArgs);
    }
    static DWORD Environment(const char* pszVar, char* psz, DWORD nSize)
    {
        return GetEnvironmentVariableA(pszVar, psz, nSize);
    }
    static int Convert(const wchar_t* pch, int nLength, char* pDest, int nDest)
    {
        return WideCharToMultiByte(CP_THREAD_ACP, 0, pch, nLength, pDest, nDest, nullptr, nullptr);
    }
};
