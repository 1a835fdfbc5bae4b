#pragma once

/** @file
 *  Objects, run-time classes, exceptions, strings, collections, diagnostics and module states. */

#include <afx/coll.h>
#include <afx/config.h>
#include <afx/diag.h>
#include <afx/except.h>
#include <afx/object.h>
#include <afx/rect.h>
#include <afx/state.h>
#include <afx/str.h>
