#pragma once

/** @file
 *  Dates and times in the automation format. */

#include <afx/oledate.h>
