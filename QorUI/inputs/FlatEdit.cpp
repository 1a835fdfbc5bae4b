#include "FlatEdit.h"

#include "FlatBorder.h"

BEGIN_MESSAGE_MAP(CFlatEdit, CEdit)
    ON_WM_NCPAINT()
END_MESSAGE_MAP()

void CFlatEdit::OnNcPaint()
{
    Default();
    QorDrawFlatBorder(this, TRUE);
}
