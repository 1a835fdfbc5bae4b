#include "LibDialog.h"

#include <QorUI/app/module/LibText.h>

CLibDialog::CLibDialog(UINT idd, LPCWSTR dialogKey, CWnd* parent, DWORD flags)
    : CQorDialog(idd, parent, flags), m_dialogKey(dialogKey)
{
}

INT_PTR CLibDialog::DoModal()
{
    const ResourceSwitch resources;
    return CQorDialog::DoModal();
}

BOOL CLibDialog::OnInitDialog()
{
    const ResourceSwitch resources;
    CQorDialog::OnInitDialog();
    if (m_dialogKey) {
        SetDlgLang(kQorUIModule, m_dialogKey, 1);
    }
    return Build();
}
