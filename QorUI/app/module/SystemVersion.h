#pragma once

#include <QorPub/System.h>

/** Codes of the systems (see g_OsVer) from which on something is done in another way. */
enum QorSystem : WORD
{
    kSystemXp = 2,
    kSystemWindows8 = 8
};

/** Whether the program runs on this system or a later one. */
inline bool QorOsAtLeast(QorSystem system)
{
    return g_OsVer >= system;
}
