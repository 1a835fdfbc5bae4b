#pragma once

#include <afxwin.h>

/** Loads and locks a resource found in the resource chain. @return null when it is missing. */
void* AfxLoadLockedResource(LPCTSTR lpszName, LPCTSTR lpszType, HINSTANCE* phInst = nullptr);
