#include "chart/chart_entity.h"
#include "commands/br_editor_reactor.h"
#include "data/project_context.h"
#include "platform/acad/command_stack.h"
#include "platform/acad/dynamic_linker.h"
#include "platform/acad/rx_registry.h"
#include "tests/support/project.h"

#include <gtest/gtest.h>

extern "C" {
int acrxGetApiVersion();
AcRx::AppRetCode acrxEntryPoint(AcRx::AppMsgCode msg, void* pPackage);
}

namespace {
class ModuleEntry : public testing::Test {
protected:
    CTestProject m_project;
    int m_nPackage = 0;

    void Load() { EXPECT_EQ(acrxEntryPoint(AcRx::kInitAppMsg, &m_nPackage), 0); }
    void Unload() { EXPECT_EQ(acrxEntryPoint(AcRx::kUnloadAppMsg, &m_nPackage), 0); }
};
} // namespace

TEST_F(ModuleEntry, ReportsTheApiVersion) {
    EXPECT_EQ(acrxGetApiVersion(), 0x130000);
}

TEST_F(ModuleEntry, RegistersPathsReactorClassAndCommand) {
    g_strProjectIni.Empty();
    Load();
    EXPECT_TRUE(g_strProjectIni == (m_project.Root() + "/Project.ini").c_str());
    EXPECT_TRUE(g_strSettingsIni == (m_project.Root() + "/Settings.ini").c_str());
    EXPECT_TRUE(g_strMarksIni == (m_project.Root() + "/Marks.ini").c_str());
    EXPECT_NE(g_pEdReactor, nullptr);
    EXPECT_NE(CBRENChart::desc(), nullptr);
    const CRegisteredCommand* pCommand = acedRegCmds->lookup(L"BREN");
    ASSERT_NE(pCommand, nullptr);
    EXPECT_EQ(pCommand->m_strGroup, L"BREN");
    EXPECT_EQ(pCommand->m_strLocalName, L"BREN");
    EXPECT_EQ(pCommand->m_nFlags, 0);
    Unload();
}

TEST_F(ModuleEntry, TakesEverythingBackWhenUnloaded) {
    Load();
    Unload();
    EXPECT_EQ(g_pEdReactor, nullptr);
    EXPECT_EQ(acedRegCmds->lookup(L"BREN"), nullptr);
    EXPECT_EQ(CBRENChart::desc(), nullptr);
}

TEST_F(ModuleEntry, AnswersOtherMessagesWithoutAnyChange) {
    for (const AcRx::AppMsgCode msg : {AcRx::kNullMsg, AcRx::kLoadDwgMsg, AcRx::kQuitMsg}) {
        EXPECT_EQ(acrxEntryPoint(msg, &m_nPackage), 0);
        EXPECT_EQ(g_pEdReactor, nullptr);
        EXPECT_EQ(acedRegCmds->lookup(L"BREN"), nullptr);
    }
}
