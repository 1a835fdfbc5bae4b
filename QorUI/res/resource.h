#pragma once

/**
 * @file
 * Numbers of the library's resources and of the controls in its dialog templates.
 *
 * The file is read by the resource compiler too: it holds preprocessor definitions only.
 */

/* ------------------------------------------------------------------ dialog templates */

#define IDD_DLG_MSGBOX 101     /**< message box, 265 x 121 dialog units */
#define IDD_DLG_LOGON 103      /**< log-on */
#define IDD_DLG_WAITING 104    /**< waiting animation with a text */
#define IDD_DLG_ABOUTEX 105    /**< about box */
#define IDD_DLG_SHEET 106      /**< tabbed settings sheet */
#define IDD_DLG_RESTRICT 107   /**< user restrictions */
#define IDD_DLG_TASKINFO 108   /**< scheduled task */
#define IDD_DLG_WEB_MSG 109    /**< information box with a link */
#define IDD_DLG_CHKUPDATE 110  /**< update check */
#define IDD_DLG_USERINFO 111   /**< user account and rights */
#define IDD_DLG_SYNCREG 112    /**< registry keys kept across a restore */
#define IDD_DLG_UPDATE_SET 114 /**< update settings, also shown after installation */
#define IDD_DLG_PROGRESS 115   /**< progress bar with a status line */

/* ------------------------------------------------------------------ pictures */

#define IDB_RADIO 200          /**< radio glyphs, six frames of 13 x 13, white is the colour key */
#define IDB_CHECK 201          /**< check glyphs, six frames of 13 x 13, opaque on the dialog body */
#define IDB_BTN_NORMAL 202     /**< push button face, 6 x 17; the three that follow must stay consecutive */
#define IDB_BTN_HOT 203        /**< push button face under the mouse, 6 x 17 */
#define IDB_BTN_PRESSED 204    /**< push button face held down, 6 x 17 */
#define IDB_BTN_DISABLED 205   /**< push button face of a disabled button, 6 x 17 */
#define IDB_CHECK_TREE 210     /**< state images of the check trees, seven of 15 x 15, key QOR_IMAGE_MASK */
#define IDB_CHECK_LIST 211     /**< state images of the check lists, two of 15 x 15, key QOR_IMAGE_MASK */
#define IDB_PROGRESS 212       /**< progress fill pattern, 8 x 18; its height sets the bar's height */
#define IDB_TAB 213            /**< face of the tabs behind the current one, 5 x 16 */
#define IDB_FRAME_MINIMIZE 220 /**< title button, four frames of 26 x 17; the two that follow must stay consecutive */
#define IDB_FRAME_MAXIMIZE 221 /**< title button, four frames of 25 x 17 */
#define IDB_FRAME_CLOSE 222    /**< title button, four frames of 42 x 17 */
#define IDB_DLG_CLOSE 223      /**< close button of dialogs and wizards, four frames of 42 x 17 */
#define IDB_WIZARD 230         /**< picture of the wizard's title band, 48 x 48 */
#define IDB_MENUBAR_LARGE 231  /**< menu bar, large, application flag 0, 6 x 42 */
#define IDB_MENUBTN_LARGE 232  /**< its hot button, 6 x 24 */
#define IDB_MENUBAR 233        /**< menu bar, normal, 6 x 30 */
#define IDB_MENUBTN 234        /**< its hot button, 6 x 20 */
#define IDB_MENUBAR_LARGE2 235 /**< menu bar, large, application flag set, 6 x 42 */
#define IDB_MENUBTN_LARGE2 236 /**< its hot button, 6 x 24 */
#define IDB_REGTREE 261        /**< registry key and value, two of 16 x 16, key QOR_IMAGE_MASK */
#define IDB_LOGON 262          /**< log-on picture, 72 x 72, opaque on the dialog body */
#define IDB_SEARCH 263         /**< magnifier of the search box, 16 x 17, opaque on white */
#define IDB_SYNCREG 264        /**< add and delete, two of 16 x 16, key QOR_IMAGE_MASK */

#define IDR_AVI_WAITING 280 /**< waiting animation, resource type "AVI", 56 x 56 */
#define IDR_PNG_BANNER 281  /**< frame banner, application flag 0, resource type "PNG" */
#define IDR_PNG_BANNER2 282 /**< frame banner, application flag set, resource type "PNG" */
#define IDR_PNG_MENUBAR 283 /**< picture at the right end of the large menu bar, 200 x 20, resource type "PNG" */

/** Colour key of the image strips 210, 211, 261 and 264. */
#define QOR_IMAGE_MASK RGB(0, 128, 128)

/** Frames of the strips 200 and 201: one of the three states, plus QOR_GLYPH_CHECKED when checked. */
#define QOR_GLYPH_NORMAL 0
#define QOR_GLYPH_HOT 1
#define QOR_GLYPH_DISABLED 2
#define QOR_GLYPH_CHECKED 3

/* ------------------------------------------------------------------ controls shared by several templates */

#define IDC_FRAME_MINIMIZE 1000
#define IDC_FRAME_MAXIMIZE 1001
#define IDC_FRAME_CLOSE 1002
#define IDC_DLG_CLOSE 1003
#define IDC_SHEET_TAB 1004
#define IDC_PROGRESS 1006

#define IDC_BOX_ICON 1100
#define IDC_BOX_TEXT 1101
#define IDC_WAIT_ANIMATION 1150
#define IDC_TEXT 1151
#define IDC_NAME_LABEL 1152
#define IDC_NAME 1153
#define IDC_PASSWORD_LABEL 1154
#define IDC_PASSWORD 1155

/* ------------------------------------------------------------------ log-on */

#define IDC_LOGON_PICTURE 1261
#define IDC_LOGON_REMEMBER 1260

/* ------------------------------------------------------------------ about box and information box */

#define IDC_ABOUT_PRODUCT 1200
#define IDC_ABOUT_SUPPORT_LABEL 1215
#define IDC_ABOUT_SUPPORT_LINK 1216
#define IDC_ABOUT_FORUM_LINK 1217
#define IDC_ABOUT_WEB 1223
#define IDC_ABOUT_FREEWARE 1224
#define IDC_WEBMSG_LINK 1225

/* ------------------------------------------------------------------ restrictions: one box per bit, consecutive */

#define IDC_RESTRICT_TITLE 1240
#define IDC_RESTRICT_FIRST 1241
#define IDC_RESTRICT_FIRST_ADMIN 1244
#define IDC_RESTRICT_LAST 1248

/* ------------------------------------------------------------------ user account */

#define IDC_USER_DESCRIPTION_LABEL 1388
#define IDC_USER_DESCRIPTION 1389
#define IDC_USER_CONFIRM_LABEL 1390
#define IDC_USER_CONFIRM 1391
#define IDC_USER_RIGHTS_LABEL 1392
#define IDC_USER_RIGHTS 1393
#define IDC_USER_ACTIVE 1394
#define IDC_USER_RESET 1395
#define IDC_USER_CHANGE 1396

/* ------------------------------------------------------------------ scheduled task */

#define IDC_TASK_NAME_LABEL 1400
#define IDC_TASK_NAME 1401
#define IDC_TASK_KIND_LABEL 1402
#define IDC_TASK_KIND 1403
#define IDC_TASK_SCHEDULE_LABEL 1404
#define IDC_TASK_SCHEDULE 1405
#define IDC_TASK_DATE 1406
#define IDC_TASK_TIME 1407
#define IDC_TASK_SUSPEND 1408
#define IDC_TASK_SUSPEND_DAY 1409
#define IDC_TASK_FROM_LABEL 1410
#define IDC_TASK_FIRST_HOUR 1411
#define IDC_TASK_TO_LABEL 1412
#define IDC_TASK_LAST_HOUR 1413
#define IDC_TASK_HOUR_LABEL 1414
#define IDC_TASK_DAY 1415
#define IDC_TASK_DAY_LABEL 1416
#define IDC_TASK_MINUTE 1417
#define IDC_TASK_MINUTE_LABEL 1418
#define IDC_TASK_WEEKDAY 1419
#define IDC_TASK_AT 1420
#define IDC_TASK_FIRST_BOOT 1421
#define IDC_TASK_WEEKDAYS 1422
#define IDC_TASK_SETTINGS_LABEL 1423
#define IDC_TASK_LOCK 1424
#define IDC_TASK_ROLL_LATEST 1425
#define IDC_TASK_ROLL_SNAPSHOT 1426
#define IDC_TASK_SNAPSHOT 1427
#define IDC_TASK_OTHERS_GROUP 1428
#define IDC_TASK_KEEP_ALL 1429
#define IDC_TASK_REMOVE_UNLOCKED 1430
#define IDC_TASK_KEEP 1431
#define IDC_TASK_KEEP_DAYS 1432
#define IDC_TASK_KEEP_UNIT 1433
#define IDC_TASK_SHUTDOWN 1434

/* ------------------------------------------------------------------ updates */

#define IDC_UPDATE_AUTO_CHECK 1460
#define IDC_UPDATE_HEADING 1476
#define IDC_UPDATE_TEXT 1477
#define IDC_UPDATE_YES 1478
#define IDC_UPDATE_NO 1479
#define IDC_UPDATE_HEADING2 1480
#define IDC_UPDATE_TEXT2 1481
#define IDC_UPDATE_NO2 1482
#define IDC_UPDATE_YES2 1483

/* ------------------------------------------------------------------ registry keys */

#define ID_SYNCREG_ADD 32771
#define ID_SYNCREG_DELETE 32772
