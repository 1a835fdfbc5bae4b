#pragma once

/** @file
 *  Starting the system's object model for a program. */

#include <afxwin.h>

/** Initialises the object model for the calling thread; it is ended with the application. @return FALSE when that
 *  failed. */
AFX_LIB BOOL AfxOleInit();
