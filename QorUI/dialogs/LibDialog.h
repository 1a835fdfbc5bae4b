#pragma once

#include "QorDialog.h"

#include <QorUI/app/module/ResourceSwitch.h>

#include <type_traits>
#include <utility>

/** For a dialog that has no element of its own in the language data. */
inline constexpr LPCWSTR kNoDialogKey = nullptr;

/**
 * Base of every dialog whose template is the library's: the one place that knows where resources and texts come from.
 *
 * While the dialog is built they come from the library, and from the host as soon as it is open, also when something
 * throws. A function that shows such a dialog does it by `QorRunLibDialog`; a dialog that hosts construct themselves
 * needs nothing more than this base.
 */
class CLibDialog : public CQorDialog
{
  public:
    INT_PTR DoModal() override;

  protected:
    /**
     * @param idd number of the template, one of the library's.
     * @param dialogKey key of the dialog's element in the language data, "IDD_DLG_...", or `kNoDialogKey`.
     * @param parent owner; null for the program's main window.
     * @param flags values of `Flags`, joined with `|`
     */
    CLibDialog(UINT idd, LPCWSTR dialogKey, CWnd* parent, DWORD flags);

    BOOL OnInitDialog() final;

    /**
     * Makes the dialog's content when its buttons are skinned and its texts are set.
     * @return as `OnInitDialog`: TRUE lets the first control have the focus.
     */
    virtual BOOL Build() = 0;

  private:
    LPCWSTR m_dialogKey;
};

/**
 * Constructs a dialog of the library from `args`, runs it and destroys it.
 * @return what its `DoModal` returns; -1 when it could not be created.
 */
template <class Dialog, class... Args>
INT_PTR QorRunLibDialog(Args&&... args)
{
    static_assert(std::is_base_of_v<CLibDialog, Dialog>);
    const ResourceSwitch resources;
    Dialog dialog(std::forward<Args>(args)...);
    return dialog.DoModal();
}
