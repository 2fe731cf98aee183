#include "platform/mfc/resources.h"

namespace {

HINSTANCE g_hResources = nullptr;

} // namespace

const CDialogTemplate* CModuleResources::FindDialog(UINT nId) const {
    for (const CDialogTemplate& dialog : m_arDialogs)
        if (dialog.m_nId == nId) return &dialog;
    return nullptr;
}

const CDialogTemplate* CModuleResources::FindDialog(const char* name) const {
    for (const CDialogTemplate& dialog : m_arDialogs)
        if (!dialog.m_strName.empty() && dialog.m_strName == name) return &dialog;
    return nullptr;
}

const CIconTemplate* CModuleResources::FindIcon(UINT nId) const {
    for (const CIconTemplate& icon : m_arIcons)
        if (icon.m_nId == nId) return &icon;
    return nullptr;
}

HINSTANCE AfxGetResourceHandle() {
    return g_hResources;
}

void AfxSetResourceHandle(HINSTANCE hResources) {
    g_hResources = hResources;
}
