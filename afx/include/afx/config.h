#pragma once

/** @file
 *  Base configuration: system headers, the export macro of afx.dll and the calling-convention names. */

#if !defined(UNICODE) || !defined(_UNICODE)
#error The class framework is built for wide characters only: define UNICODE and _UNICODE.
#endif

#ifndef STRICT
#define STRICT
#endif

#include <windows.h>

#include <commctrl.h>
#include <commdlg.h>
#include <ole2.h>
#include <richedit.h>
#include <shellapi.h>
#include <tchar.h>

#include <cstdarg>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>

/** The level of the documented interface that programs ask for. */
#define _MFC_VER 0x0C00

/** Marks what afx.dll offers to other modules. */
#ifdef AFX_BUILD
#define AFX_LIB __declspec(dllexport)
#else
#define AFX_LIB __declspec(dllimport)
#endif

/** Marks a class that an extension DLL exports: the DLL is compiled with `_AFXEXT`, its users without. */
#ifdef _AFXEXT
#define AFX_CLASS_EXPORT __declspec(dllexport)
#define AFX_EXT_CLASS __declspec(dllexport)
#define AFX_EXT_API __declspec(dllexport)
#define AFX_EXT_DATA __declspec(dllexport)
#else
#define AFX_CLASS_EXPORT __declspec(dllexport)
#define AFX_EXT_CLASS __declspec(dllimport)
#define AFX_EXT_API __declspec(dllimport)
#define AFX_EXT_DATA __declspec(dllimport)
#endif
#define AFX_CLASS_IMPORT __declspec(dllimport)

/* 64-bit Windows has one calling convention; the names remain for source compatibility. */
#define AFXAPI
#define AFX_CDECL
#define AFX_MSG_CALL
#define afx_msg

/** The smaller and the larger one, for programs that know them as macros of the system's headers. */
template <class T, class U>
constexpr auto min(const T& a, const U& b)
{
    return a < b ? a : b;
}
template <class T, class U>
constexpr auto max(const T& a, const U& b)
{
    return a < b ? b : a;
}

#ifndef UNREFERENCED_PARAMETER
#define UNREFERENCED_PARAMETER(P) (static_cast<void>(P))
#endif
#define UNUSED_ALWAYS(x) (static_cast<void>(x))
#ifdef _DEBUG
#define UNUSED(x)
#else
#define UNUSED(x) (static_cast<void>(x))
#endif

/** Opaque place in a list, map or other sequence; null means "none". */
struct __POSITION
{
};
typedef __POSITION* POSITION;

class CObject;
class CArchive;
class CDumpContext;
struct CRuntimeClass;
