#pragma once

/** @file
 *  Standard command and window ids; also for resource scripts. */

#ifndef IDC_STATIC
#define IDC_STATIC (-1)
#endif

#define ID_FILE_NEW 0xE100
#define ID_FILE_OPEN 0xE101
#define ID_FILE_CLOSE 0xE102
#define ID_FILE_SAVE 0xE103
#define ID_FILE_SAVE_AS 0xE104
#define ID_FILE_PRINT 0xE107
#define ID_EDIT_CLEAR 0xE120
#define ID_EDIT_CLEAR_ALL 0xE121
#define ID_EDIT_COPY 0xE122
#define ID_EDIT_CUT 0xE123
#define ID_EDIT_FIND 0xE124
#define ID_EDIT_PASTE 0xE125
#define ID_EDIT_SELECT_ALL 0xE12A
#define ID_EDIT_UNDO 0xE12B
#define ID_EDIT_REDO 0xE12C
#define ID_APP_ABOUT 0xE140
#define ID_APP_EXIT 0xE141
#define ID_HELP_INDEX 0xE142
#define ID_HELP 0xE146
#define ID_CONTEXT_HELP 0xE145

#define AFX_IDW_PANE_FIRST 0xE900
#define AFX_IDW_PANE_LAST 0xE9FF
#define AFX_IDW_HSCROLL_FIRST 0xEA00
#define AFX_IDW_VSCROLL_FIRST 0xEA10
