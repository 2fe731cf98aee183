#include "ui/n_property_page.h"

#include <gtest/gtest.h>

#include "platform/mfc/property_sheet.h"
#include "tests/platform/mfc/dialog_script.h"
#include "ui/resources.h"

TEST(NPropertyPage, CarriesACopyOfTheModulesOwnResource) {
    const CNPropertyPage page(IDD_GEN_PAGE);
    EXPECT_NE(page.m_psp.dwFlags & PSP_DLGINDIRECT, 0U);
    ASSERT_NE(page.m_psp.pResource, nullptr);
    EXPECT_NE(page.m_psp.pResource, ModuleResources()->FindDialog(IDD_GEN_PAGE));
    EXPECT_EQ(page.m_psp.pResource->m_strCaption, "选择取样");
}

TEST(NPropertyPage, ShowsWithoutAnyResourcesInForce) {
    ASSERT_EQ(AfxGetResourceHandle(), nullptr);
    CNPropertyPage page(IDD_GEN_PAGE);
    CPropertySheet sheet("sheet");
    sheet.AddPage(&page);
    UINT nShown = 0;
    const CDialogScript script([&](CModalWindow& window) { nShown = window.GetNumber(); });
    sheet.DoModal();
    EXPECT_EQ(nShown, IDD_GEN_PAGE);
}

TEST(NPropertyPage, HasNoTemplateForANameOrNumberThatIsNoneOfTheModules) {
    EXPECT_EQ(CNPropertyPage("NO SUCH DIALOG").m_psp.pResource, nullptr);
    EXPECT_EQ(CNPropertyPage(9999U).m_psp.pResource, nullptr);
}
