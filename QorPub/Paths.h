#pragma once

/** @file
 * Where the program and the store are.
 */

#include <QorPub/QorPubDef.h>

/** Folder of the host program, with a trailing backslash. */
extern QORPUB_API CString g_AppPath;

/**
 * The product's store file: what the environment variable QOR_STORE names (as a full path), else
 * `%LOCALAPPDATA%\Qor\store.db`. Read anew at each call.
 */
QORPUB_API CString QorGetStorePath();

/** Folder of the store file, without trailing backslash (a drive's root keeps it). It need not exist. */
QORPUB_API CString QorGetStoreFolder();

/** Makes a folder with the folders above it. TRUE when it exists afterwards. */
QORPUB_API BOOL QorCreateFolder(LPCWSTR path);
