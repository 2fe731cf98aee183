// The module's file loaded and unloaded by the platform's linker.

#include "platform/acad/command_stack.h"
#include "platform/acad/dynamic_linker.h"
#include "platform/acad/rx_class.h"
#include "platform/acad/rx_registry.h"

#include <gtest/gtest.h>

#include <dlfcn.h>

namespace {
const std::string g_strModule = TERVO_BIN "/tervo-bren.so";

class ModuleFile : public testing::Test {
protected:
    ~ModuleFile() override { acrxDynamicLinker()->unloadModule(g_strModule, nullptr); }

    static void Load() {
        std::string strReason;
        ASSERT_TRUE(acrxDynamicLinker()->loadModule(g_strModule, &strReason)) << strReason;
    }
    static bool IsInMemory() {
        void* const pLibrary = dlopen(g_strModule.c_str(), RTLD_NOW | RTLD_NOLOAD);
        if (pLibrary) dlclose(pLibrary);
        return pLibrary != nullptr;
    }
    /// A variable of the loaded module.
    template <class T>
    static T& Variable(const char* name) {
        void* const pLibrary = dlopen(g_strModule.c_str(), RTLD_NOW | RTLD_NOLOAD);
        T* const pVariable = static_cast<T*>(dlsym(pLibrary, name));
        dlclose(pLibrary);
        EXPECT_NE(pVariable, nullptr) << name;
        return *pVariable;
    }
    static AcRxObject* Class(const ACHAR* name) {
        return static_cast<AcRxDictionary*>(acrxSysRegistry()->at(ACDB_CLASS_DICTIONARY))->at(name);
    }
};
} // namespace

TEST_F(ModuleFile, BringsItsCommandClassesAndReactor) {
    Load();
    EXPECT_NE(acedRegCmds->lookup(L"BREN"), nullptr);
    EXPECT_NE(Class(L"CBRENChart"), nullptr);
    EXPECT_NE(Class(L"CBRENFrame"), nullptr);
    EXPECT_NE(Variable<void*>("g_pEdReactor"), nullptr);
    EXPECT_NE(Variable<const void*>("g_hModuleResources"), nullptr);
}

TEST_F(ModuleFile, LeavesNothingBehindWhenItGoes) {
    Load();
    ASSERT_TRUE(acrxDynamicLinker()->unloadModule(g_strModule, nullptr));
    EXPECT_FALSE(IsInMemory());
    for (const ACHAR* pName : {L"BREN", L"BRCF", L"BROPEN"})
        EXPECT_EQ(acedRegCmds->lookup(pName), nullptr);
    EXPECT_EQ(Class(L"CBRENChart"), nullptr);
    EXPECT_EQ(Class(L"CBRENFrame"), nullptr);
}

TEST_F(ModuleFile, HasItsFlagsAsAtTheStartAfterEveryLoad) {
    Load();
    Variable<int>("g_bChartDataChanged") = 1;
    Variable<int>("g_bQuitting") = 1;
    ASSERT_TRUE(acrxDynamicLinker()->unloadModule(g_strModule, nullptr));
    Load();
    EXPECT_EQ(Variable<int>("g_bChartDataChanged"), 0);
    EXPECT_EQ(Variable<int>("g_bQuitting"), 0);
}
