#pragma once

#include <afx/coll.h>
#include <afx/templ.h>
