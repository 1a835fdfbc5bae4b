#pragma once

#define IDB_DIAL 300      /* 161 x 161 */
#define IDB_FLAT_DIAL 302 /* 78 x 13 */
