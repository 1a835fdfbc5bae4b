#pragma once

#include <QorApi/QorApi.h>

/**
 * @file
 * Control of the double of QorApi.dll: the service library itself, with calls that fail on demand and are counted.
 *
 * A test program that wants it is made with `qor_double_test` instead of `qor_test`: it stands in a folder of its own,
 * where it and every DLL that it loads find the double in place of the library.
 */

namespace qordouble
{

/**
 * Makes a call fail, without doing anything.
 *
 * A call that gives a status gives @p status. The others give what they give on failure: BOOL FALSE, QorGetAllInfo null
 * (with the status as last error), QorGetModuleLang and QorSetDlgLang an empty element, QorGetString the key.
 * @param call   name of the function, for example "QorAddUser".
 * @param status what a failing call answers.
 * @param times  how many calls fail; after that the call works again.
 */
QORAPI_API void Fail(const char* call, DWORD status, int times = 1000000);

/** Number of times a function was called since Reset(). */
QORAPI_API int CountCalls(const char* call);

/** Makes every call work again and forgets the counts. */
QORAPI_API void Reset();

} // namespace qordouble
