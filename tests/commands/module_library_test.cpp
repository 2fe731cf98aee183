#include "commands/module_library.h"

#include "ui/resources.h"

#include <gtest/gtest.h>

TEST(ModuleLibrary, HasItsHandlesFromTheMomentItIsThere) {
    EXPECT_EQ(g_hModuleInstance, ModuleResources());
    EXPECT_EQ(g_hModuleResources, ModuleResources());
}

TEST(ModuleLibrary, GivesItsHandlesBackWhenItGoes) {
    EXPECT_EQ(DetachModule(), TRUE);
    EXPECT_EQ(g_hModuleInstance, nullptr);
    EXPECT_EQ(g_hModuleResources, nullptr);
    EXPECT_EQ(AttachModule(), TRUE);
    EXPECT_EQ(g_hModuleResources, ModuleResources());
}
