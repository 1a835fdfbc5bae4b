#pragma once

#define IDB_STRIP 201
#define IDB_GREYS 202
