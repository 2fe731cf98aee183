#pragma once
// A module's resources, and which module's are in force.

#include "platform/mfc/dialog_template.h"
#include "platform/mfc/icon_template.h"
#include "platform/windows/types.h"

/// What a module brings with it.
struct CModuleResources {
    std::vector<CDialogTemplate> m_arDialogs;
    std::vector<CIconTemplate> m_arIcons{};

    /// Null when there is none.
    const CDialogTemplate* FindDialog(UINT nId) const;
    const CDialogTemplate* FindDialog(const char* name) const;
    /// Null when there is none.
    const CIconTemplate* FindIcon(UINT nId) const;
};

/// The resources in which a dialog finds its template by number; null when no module's are in force.
HINSTANCE AfxGetResourceHandle();
void AfxSetResourceHandle(HINSTANCE hResources);

/// Puts a module's resources in force for a scope and restores the former ones at its end.
class CTemporaryResourceOverride {
public:
    explicit CTemporaryResourceOverride(HINSTANCE hResources)
        : m_hFormer(AfxGetResourceHandle()) {
        AfxSetResourceHandle(hResources);
    }
    ~CTemporaryResourceOverride() { AfxSetResourceHandle(m_hFormer); }
    CTemporaryResourceOverride(const CTemporaryResourceOverride&) = delete;
    CTemporaryResourceOverride& operator=(const CTemporaryResourceOverride&) = delete;

private:
    HINSTANCE m_hFormer;
};
