#include "platform/mfc/resources.h"

#include <gtest/gtest.h>

namespace {

CModuleResources Resources() {
    CModuleResources resources;
    resources.m_arDialogs = {{11, "", "one", 10, 10, {}}, {12, "OPTIONS", "two", 10, 10, {}}};
    return resources;
}

} // namespace

TEST(ModuleResources, FindsADialogByNumberOrName) {
    const CModuleResources resources = Resources();
    EXPECT_EQ(resources.FindDialog(11), &resources.m_arDialogs[0]);
    EXPECT_EQ(resources.FindDialog("OPTIONS"), &resources.m_arDialogs[1]);
    EXPECT_EQ(resources.FindDialog(13), nullptr);
    EXPECT_EQ(resources.FindDialog("options"), nullptr);
    EXPECT_EQ(resources.FindDialog(""), nullptr); // the nameless one does not go by an empty name
}

TEST(ModuleResources, FindsAnIconByNumber) {
    CModuleResources resources;
    resources.m_arIcons = {{1006, {}, ""}, {1007, {}, ""}};
    EXPECT_EQ(resources.FindIcon(1007), &resources.m_arIcons[1]);
    EXPECT_EQ(resources.FindIcon(11), nullptr);
}

TEST(TemporaryResourceOverride, RestoresTheFormerResourcesAtTheEndOfItsScope) {
    const CModuleResources outer = Resources();
    const CModuleResources inner = Resources();
    ASSERT_EQ(AfxGetResourceHandle(), nullptr);
    {
        const CTemporaryResourceOverride first(&outer);
        {
            const CTemporaryResourceOverride second(&inner);
            EXPECT_EQ(AfxGetResourceHandle(), &inner);
        }
        EXPECT_EQ(AfxGetResourceHandle(), &outer);
    }
    EXPECT_EQ(AfxGetResourceHandle(), nullptr);
}
