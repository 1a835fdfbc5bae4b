#pragma once

/** @file
 * Resources in memory, and streams over memory.
 */

#include <QorPub/QorPubDef.h>

#include <objidl.h>

/**
 * Finds a resource's bytes in a module.
 * @param inst module that holds the resource; null for the program.
 * @param name name or MAKEINTRESOURCEW(id); @param type type name or RT_... constant.
 * @param size takes the number of bytes; 0 when nothing was found.
 * @return the bytes, not copied and valid while the module is loaded; null when there is no such resource or a name is
 *         null.
 */
QORPUB_API const void* QorLoadResource(HINSTANCE inst, LPCWSTR name, LPCWSTR type, DWORD& size);

/**
 * Makes a stream that reads a block of memory without copying or owning it: the block must outlive the stream and its
 * clones. Writing is refused with STG_E_ACCESSDENIED; reading at or behind the end gives no bytes and S_OK.
 * @param flags reserved, 0.
 * @param data  the block; @param size its size in bytes.
 * @return the stream with one reference, which the caller releases; null for null @p data.
 */
QORPUB_API IStream* QorCreateReadOnlyMemStream(DWORD flags, const void* data, DWORD size);
