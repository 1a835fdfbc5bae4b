#pragma once

#include <QorUI/app/module/QorUIDef.h>

/**
 * Draws the frame that dialogs and the wizard share: white caption band, body, outline, application icon and title.
 * @param client the whole client area of the window.
 * @param title drawn in the caption; empty for none.
 */
void QorDrawDialogFrame(CDC& dc, const CRect& client, const CString& title);
