#pragma once

/**
 * @file
 * The product's common library: text files, archives, digests, registry keys, XML elements, resources, read-only
 * memory streams, the trace log and what is known of the running system.
 *
 * Unless a declaration says otherwise, a null pointer given for a text counts as an empty text, nothing throws while
 * there is memory, and a failure is told by the result alone.
 *
 * When memory runs out, reading and writing of text files, XML documents and archives answers ERROR_NOT_ENOUGH_MEMORY;
 * any other call that makes texts or elements may let a std::bad_alloc or a CMemoryException* out.
 */

#include <QorPub/Key.h>
#include <QorPub/Md5.h>
#include <QorPub/MemStream.h>
#include <QorPub/Paths.h>
#include <QorPub/QorPubDef.h>
#include <QorPub/System.h>
#include <QorPub/Text.h>
#include <QorPub/TextFile.h>
#include <QorPub/Trace.h>
#include <QorPub/Xml.h>
#include <QorPub/Zip.h>
