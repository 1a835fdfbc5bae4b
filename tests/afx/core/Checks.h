#pragma once

#include <gtest/gtest.h>

#include <afx.h>

#include <ostream>

/** Shows strings in failure messages. */
inline void PrintTo(const CString& str, std::ostream* pStream)
{
    *pStream << '"' << CStringA(str).GetString() << '"';
}

inline void PrintTo(const CStringA& str, std::ostream* pStream)
{
    *pStream << '"' << str.GetString() << '"';
}

/** Tells whether a call raises the framework's exception of one class. */
template <class EXCEPTION, typename Call>
bool Raises(Call call)
{
    try {
        call();
    } catch (EXCEPTION* e) {
        e->Delete();
        return true;
    }
    return false;
}
