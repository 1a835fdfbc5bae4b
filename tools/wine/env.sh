# Shared by the scripts of this folder: where Wine is and the environment it runs in. Sourced, not run.

qor_fail()
{
    echo "${0##*/}: $*" >&2
    exit 2
}

qor_find_wine()
{
    for QOR_WINE in "${QOR_WINE:-}" /usr/lib/wine/wine64 "$(command -v wine64)" "$(command -v wine)"; do
        [ -n "$QOR_WINE" ] && [ -x "$QOR_WINE" ] && break
    done
    [ -x "$QOR_WINE" ] || qor_fail "Wine is missing: install the packages wine and wine64"
    for QOR_WINESERVER in "$(dirname "$QOR_WINE")/wineserver" "$(command -v wineserver)"; do
        [ -x "$QOR_WINESERVER" ] && break
    done
    [ -x "$QOR_WINESERVER" ] || qor_fail "wineserver is missing: install the packages wine and wine64"
}

# Dialogs have their size only with the metrics of Tahoma, and window captions need Marlett.
qor_check_fonts()
{
    [ -e /usr/share/wine/fonts/tahoma.ttf ] && return
    command -v fc-list >/dev/null && [ -n "$(fc-list :family=Tahoma file)" ] && return
    qor_fail "the font Tahoma is missing: install the package fonts-wine"
}

qor_has_locale()
{
    [ -n "${LOCPATH:-}" ] && [ -d "$LOCPATH/$1" ] && return
    locale -a 2>/dev/null | tr 'A-Z' 'a-z' | tr -d - | grep -qx "$(echo "$1" | tr 'A-Z' 'a-z' | tr -d -)"
}

# QOR_LANG wins over the user's own settings, so that a run does not depend on who starts it.
qor_set_language()
{
    unset LC_ALL LC_CTYPE LC_TIME LC_NUMERIC LC_MONETARY LC_MESSAGES LC_COLLATE LANGUAGE
    if [ -n "${QOR_LANG:-}" ]; then
        qor_has_locale "$QOR_LANG" || qor_fail "the locale $QOR_LANG is not generated: see the package locales"
        LANG=$QOR_LANG
    elif qor_has_locale en_US.UTF-8; then
        LANG=en_US.UTF-8
    else
        LANG=C.UTF-8
    fi
    export LANG
}

qor_set_environment()
{
    qor_find_wine
    qor_check_fonts
    qor_set_language
    export WINEDEBUG="${WINEDEBUG:--all}"
    # With the newer interpreter the widths that tools/wine/fonts adds are left aside.
    export FREETYPE_PROPERTIES="truetype:interpreter-version=35"
    export WINEDLLOVERRIDES="mscoree=;mshtml=;winemenubuilder.exe=d"
}
