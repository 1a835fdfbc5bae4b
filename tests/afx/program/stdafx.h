#pragma once

#include "targetver.h"

#include <afxcmn.h>
#include <afxcontrolbars.h>
#include <afxdisp.h>
#include <afxdtctl.h>
#include <afxext.h>
#include <afxwin.h>
