#include "FlatPickers.h"

#include "FlatBorder.h"

/** One map for all pickers: the border is all that they paint outside their client area. */
#define FLAT_PICKER(theClass, baseClass)                                                                               \
    BEGIN_MESSAGE_MAP(theClass, baseClass)                                                                             \
        ON_WM_NCPAINT()                                                                                                \
    END_MESSAGE_MAP()                                                                                                  \
                                                                                                                       \
    void theClass::OnNcPaint()                                                                                         \
    {                                                                                                                  \
        QorDrawFlatBorder(this, TRUE);                                                                                 \
    }

FLAT_PICKER(CFlatHotKey, CHotKeyCtrl)
FLAT_PICKER(CFlatDateTime, CDateTimeCtrl)
FLAT_PICKER(CFlatIPAddr, CIPAddressCtrl)
