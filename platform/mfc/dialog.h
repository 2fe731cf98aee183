#pragma once

#include "platform/mfc/modal_window.h"

/// A dialog made from a template of the resources in force, or from one handed in.
class CDialog : public CModalWindow {
public:
    explicit CDialog(void* pOwner = nullptr)
        : CModalWindow(pOwner) {}
    explicit CDialog(UINT nIDTemplate, void* pOwner = nullptr)
        : CModalWindow(pOwner)
        , m_nTemplate(nIDTemplate) {}
    explicit CDialog(const char* templateName, void* pOwner = nullptr)
        : CModalWindow(pOwner)
        , m_strTemplate(templateName) {}

    /// Takes a template in memory, which has to outlive the dialog. Zero for null.
    BOOL InitModalIndirect(const CDialogTemplate* pTemplate);

    /// Moves the variables to the controls.
    BOOL OnInitDialog() override;
    BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) override;
    /// The buttons 1 and 2, where the message map has no handler for them: OnOK closes when all values are
    /// taken.
    virtual void OnOK();
    virtual void OnCancel();

protected:
    bool Create() override;
    /// Null when there is no such template.
    virtual const CDialogTemplate* FindTemplate() const;

private:
    UINT m_nTemplate = 0;
    std::string m_strTemplate;
    const CDialogTemplate* m_pTemplate = nullptr;
};
