#pragma once

#include <QorPub/QorPub.h>

#include <afxwin.h>

/** Exports the service library's names while it is built and imports them everywhere else. */
#ifdef QORAPI_EXPORTS
#define QORAPI_API __declspec(dllexport)
#else
#define QORAPI_API __declspec(dllimport)
#endif
