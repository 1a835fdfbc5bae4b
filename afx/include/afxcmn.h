#pragma once

#include <afx/cmnctrl.h>
#include <afx/draglist.h>
#include <afx/imagelist.h>
#include <afx/richedit.h>
#include <afxwin.h>
