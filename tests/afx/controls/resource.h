#pragma once

#define IDB_STRIP 201
#define IDA_CLIP 203
#define IDS_TIP 205
