#pragma once

#include <afxcmn.h>
