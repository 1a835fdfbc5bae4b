#pragma once

#define IDS_DATE_FORMAT 130
#define IDS_SPAN_FORMAT 131
