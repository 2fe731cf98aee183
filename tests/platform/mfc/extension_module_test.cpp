#include "platform/mfc/extension_module.h"

#include "platform/mfc/resources.h"

#include <gtest/gtest.h>

TEST(ExtensionModule, HasItsOwnResourcesWhileItIsAttached) {
    const CModuleResources resources{};
    AFX_EXTENSION_MODULE state;
    EXPECT_EQ(AfxInitExtensionModule(state, &resources), TRUE);
    const auto* const pLibrary = new CDynLinkLibrary(state);
    EXPECT_EQ(state.pLibrary, pLibrary);
    EXPECT_EQ(pLibrary->m_hModule, &resources);
    EXPECT_EQ(pLibrary->m_hResource, &resources);
    AfxTermExtensionModule(state);
    EXPECT_EQ(state.pLibrary, nullptr);
    EXPECT_EQ(state.hModule, nullptr);
    EXPECT_EQ(state.bInitialized, FALSE);
}

TEST(ExtensionModule, KeepsTheHandleItWasInitialisedWithFirst) {
    const CModuleResources first{}, second{};
    AFX_EXTENSION_MODULE state;
    AfxInitExtensionModule(state, &first);
    EXPECT_EQ(AfxInitExtensionModule(state, &second), TRUE);
    EXPECT_EQ(state.hModule, &first);
    AfxTermExtensionModule(state);
    AfxInitExtensionModule(state, &second);
    EXPECT_EQ(state.hModule, &second);
}
