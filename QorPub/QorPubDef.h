#pragma once

#include <afx.h>
#include <afxcoll.h>

/** Exports the common library's names while it is built and imports them everywhere else. */
#ifdef QORPUB_EXPORTS
#define QORPUB_API __declspec(dllexport)
#else
#define QORPUB_API __declspec(dllimport)
#endif
