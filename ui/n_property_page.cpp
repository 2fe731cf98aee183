#include "ui/n_property_page.h"

#include "ui/resources.h"

CNPropertyPage::CNPropertyPage(UINT nDialog)
    : CPropertyPage(nDialog) {
    UseResource(ModuleResources()->FindDialog(nDialog));
}

CNPropertyPage::CNPropertyPage(const char* dialogName)
    : CPropertyPage(dialogName) {
    UseResource(ModuleResources()->FindDialog(dialogName));
}

void CNPropertyPage::UseResource(const CDialogTemplate* pResource) {
    if (pResource) m_pBlock = std::make_unique<CDialogTemplate>(*pResource);
    InitModalIndirect(m_pBlock.get());
    m_psp.dwFlags |= PSP_DLGINDIRECT;
    m_psp.pResource = m_pBlock.get();
}
