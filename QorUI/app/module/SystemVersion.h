#pragma once

#include <QorPub/System.h>

/** Codes of the systems (see g_OsVer) from which on something is done in another way. */
enum QorSystem : WORD
{
    QOR_SYSTEM_XP = 2,
    QOR_SYSTEM_WINDOWS_8 = 8
};

/** Whether the program runs on this system or a later one. */
inline bool QorOsAtLeast(QorSystem system)
{
    return g_OsVer >= system;
}
