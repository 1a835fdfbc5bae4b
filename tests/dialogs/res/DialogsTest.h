#pragma once

#define IDD_OF_THE_HOST 101 // the number of the library's message box
#define IDD_PLAIN 300
#define IDD_OK_CANCEL 301
#define IDD_OK_ONLY 302
#define IDD_EMBEDDED 303
#define IDC_FIRST 1001
#define IDC_SECOND 1002
#define IDC_THIRD 1005
#define IDC_EDIT 1010
#define IDC_CHECK 1011
#define IDC_PUSH 1012
