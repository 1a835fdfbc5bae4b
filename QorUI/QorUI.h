#pragma once

/** @file
 * Everything that the user-interface library offers to a host program.
 */

#include <QorUI/app/draw/Draw.h>
#include <QorUI/app/draw/MemDC.h>
#include <QorUI/app/draw/Picture.h>
#include <QorUI/app/draw/QorBmp.h>
#include <QorUI/app/look/Shared.h>
#include <QorUI/app/look/SysLook.h>
#include <QorUI/app/module/Messages.h>
#include <QorUI/app/module/QorUIDef.h>
#include <QorUI/buttons/BmpBtn.h>
#include <QorUI/buttons/CheckRadio.h>
#include <QorUI/buttons/CmdBtn.h>
#include <QorUI/buttons/Links.h>
#include <QorUI/buttons/QorBtn.h>
#include <QorUI/datetime/QorCalendar.h>
#include <QorUI/datetime/QorClock.h>
#include <QorUI/dialogs/CtrlLayout.h>
#include <QorUI/dialogs/QorBaseDlg.h>
#include <QorUI/dialogs/QorCmnDlg.h>
#include <QorUI/dialogs/QorDialog.h>
#include <QorUI/dialogs/QorFrame.h>
#include <QorUI/indicators/ChartCtrl.h>
#include <QorUI/indicators/DesktopTip.h>
#include <QorUI/indicators/ProgressBar.h>
#include <QorUI/indicators/ProgressList.h>
#include <QorUI/indicators/QorInfo.h>
#include <QorUI/indicators/QorStatusBar.h>
#include <QorUI/inputs/DragLB.h>
#include <QorUI/inputs/FlatChkList.h>
#include <QorUI/inputs/FlatCombo.h>
#include <QorUI/inputs/FlatEdit.h>
#include <QorUI/inputs/FlatEditEx.h>
#include <QorUI/inputs/FlatListBox.h>
#include <QorUI/inputs/FlatPickers.h>
#include <QorUI/inputs/FlatRichEdit.h>
#include <QorUI/inputs/IntEdit.h>
#include <QorUI/inputs/SearchBox.h>
#include <QorUI/lists/FlatHdr.h>
#include <QorUI/lists/FlatList.h>
