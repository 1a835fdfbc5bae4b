#pragma once

/** @file
 * Export macro of the user-interface library.
 *
 * `QORUI_EXPORTS` is defined while QorUI.dll itself is built, `QORUI_STATIC` in a program that its core is linked
 * into; everybody else imports.
 */

#include <afxcmn.h>
#include <afxwin.h>

/** Marks what the library offers. */
#if defined(QORUI_EXPORTS)
#define QORUI_API __declspec(dllexport)
#elif defined(QORUI_STATIC)
#define QORUI_API
#else
#define QORUI_API __declspec(dllimport)
#endif
