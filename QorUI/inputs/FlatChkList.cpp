#include "FlatChkList.h"

#include "FlatBorder.h"

BEGIN_MESSAGE_MAP(CFlatChkList, CCheckListBox)
    ON_WM_NCPAINT()
END_MESSAGE_MAP()

void CFlatChkList::OnNcPaint()
{
    Default();
    QorDrawFlatBorder(this, TRUE);
}
