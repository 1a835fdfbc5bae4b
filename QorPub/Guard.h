#pragma once

#include <QorPub/QorPubDef.h>

#include <exception>

namespace qor
{

/** Runs work that gives a status, which is ERROR_NOT_ENOUGH_MEMORY when memory runs out under it. */
template <class Work>
DWORD GuardMemory(Work work)
{
    try {
        return work();
    } catch (const std::exception&) { // std::length_error as well as std::bad_alloc
        return ERROR_NOT_ENOUGH_MEMORY;
    } catch (CException* error) {
        error->Delete();
        return ERROR_NOT_ENOUGH_MEMORY;
    }
}

} // namespace qor
