#include "chart/chart_entity.h"
#include "commands/br_editor_reactor.h"
#include "data/project_context.h"
#include "frame/frame_entity.h"
#include "platform/acad/command_stack.h"
#include "platform/acad/dynamic_linker.h"
#include "platform/acad/rx_class.h"
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

TEST_F(ModuleEntry, RegistersPathsReactorClassesAndCommands) {
    g_strProjectIni.Empty();
    Load();
    EXPECT_TRUE(g_strProjectIni == (m_project.Root() + "/Project.ini").c_str());
    EXPECT_TRUE(g_strSettingsIni == (m_project.Root() + "/Settings.ini").c_str());
    EXPECT_TRUE(g_strMarksIni == (m_project.Root() + "/Marks.ini").c_str());
    EXPECT_NE(g_pEdReactor, nullptr);
    EXPECT_NE(CBRENChart::desc(), nullptr);
    EXPECT_NE(CBRENFrame::desc(), nullptr);
    std::wstring strCommands;
    for (const CRegisteredCommand& command : acedRegCmds->Commands()) {
        EXPECT_EQ(command.m_strGroup, L"BREN");
        EXPECT_EQ(command.m_strLocalName, command.m_strGlobalName);
        EXPECT_EQ(command.m_nFlags, 0);
        strCommands += command.m_strGlobalName + L" ";
    }
    EXPECT_EQ(strCommands, L"BREN BRCF BROPEN ");
    Unload();
}

TEST_F(ModuleEntry, TakesEverythingBackWhenUnloaded) {
    Load();
    Unload();
    EXPECT_EQ(g_pEdReactor, nullptr);
    for (const ACHAR* pName : {L"BREN", L"BRCF", L"BROPEN"})
        EXPECT_EQ(acedRegCmds->lookup(pName), nullptr);
    EXPECT_EQ(CBRENChart::desc(), nullptr);
    EXPECT_EQ(CBRENFrame::desc(), nullptr);
}

TEST_F(ModuleEntry, AnswersOtherMessagesWithoutAnyChange) {
    for (const AcRx::AppMsgCode msg : {AcRx::kNullMsg, AcRx::kLoadDwgMsg, AcRx::kQuitMsg}) {
        EXPECT_EQ(acrxEntryPoint(msg, &m_nPackage), 0);
        EXPECT_EQ(g_pEdReactor, nullptr);
        EXPECT_EQ(acedRegCmds->lookup(L"BREN"), nullptr);
    }
    Load();
    const CEdBRReactor* const pReactor = g_pEdReactor;
    const AcRxClass* const pChart = CBRENChart::desc();
    EXPECT_EQ(acrxEntryPoint(AcRx::kLoadDwgMsg, &m_nPackage), 0);
    EXPECT_EQ(g_pEdReactor, pReactor);
    EXPECT_EQ(CBRENChart::desc(), pChart);
    Unload();
}

TEST_F(ModuleEntry, LeavesAClassThatIsKnownAlreadyAsItIs) {
    const AcRxClass* const pKnown = newAcRxClass(L"CBRENFrame", L"AcDbEntity", 1);
    Load();
    EXPECT_EQ(CBRENFrame::desc(), pKnown);
    Unload();
}
