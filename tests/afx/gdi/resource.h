#pragma once

#define IDB_STRIP 201
#define IDB_GREYS 202
#define IDA_CLIP 203
#define IDM_MAIN 204
#define IDS_TIP 205
#define ID_OPEN 301
#define ID_EXIT 302
#define ID_HELP_ITEM 303
