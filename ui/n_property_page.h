#pragma once

#include "platform/mfc/property_page.h"

#include <memory>

/// Base of the module's pages: it carries its dialog resource with it, so it does not depend on the resources
/// that the host searches.
class CNPropertyPage : public CPropertyPage {
public:
    explicit CNPropertyPage(UINT nDialog);
    explicit CNPropertyPage(const char* dialogName);

private:
    void UseResource(const CDialogTemplate* pResource);

    std::unique_ptr<CDialogTemplate> m_pBlock;
};
