// A loadable module for running real scripts: commands that ask and draw, and a reactor that asks too.

#include "platform/acad/command_stack.h"
#include "platform/acad/db_block_reference.h"
#include "platform/acad/db_polyline.h"
#include "platform/acad/db_text.h"
#include "platform/acad/dynamic_linker.h"
#include "platform/acad/editor.h"
#include "platform/acad/editor_reactor.h"
#include "platform/acad/host_application.h"
#include "platform/windows/message_box.h"
#include "tests/host/console/sample_entity.h"

#include <string>

namespace {

void PrintPoint(const ACHAR* szWhat, const ads_point point) {
    acutPrintf(L"\n%ls %g %g %g", szWhat, point[0], point[1], point[2]);
}

// Reports what came of the prompt.
int AskPoint(const ACHAR* szPrompt, ads_point point) {
    const int status = acedGetPoint(nullptr, szPrompt, point);
    if (status == RTNORM) PrintPoint(L"point", point);
    if (status == RTNONE) acutPrintf(L"\nno point");
    if (status == RTCAN) acutPrintf(L"\ncancelled");
    return status;
}

void Append(AcDbEntity* pEntity) {
    AcDbDatabase& drawing = *acdbHostApplicationServices()->workingDatabase();
    const CDbOpen<AcDbBlockTableRecord> space(drawing.ModelSpaceId(), AcDb::kForWrite);
    space->appendAcDbEntity(pEntity);
    pEntity->close();
}

// Asks for two points, and goes on asking whatever the first answer was.
void TwoPointsCommand() {
    ads_point point = {};
    AskPoint(L"\r\n请指定第一点:", point);
    AskPoint(L"Second point: ", point);
}

void SheetCommand() {
    ads_point point = {};
    if (AskPoint(L"Insert at: ", point) != RTNORM) return;
    auto* const pSheet = new CSampleSheet;
    pSheet->m_ptOrigin.set(point[0], point[1], point[2]);
    pSheet->m_idStyle = acdbHostApplicationServices()->workingDatabase()->textstyle();
    Append(pSheet);
}

void BrokenSheetCommand() {
    auto* const pSheet = new CSampleSheet;
    pSheet->m_nCount = 0;
    Append(pSheet);
}

void LinesCommand() {
    auto* const pPolyline = new AcDbPolyline;
    pPolyline->addVertexAt(0, AcGePoint2d(0.0, 0.0));
    pPolyline->addVertexAt(1, AcGePoint2d(20.0, 0.0));
    Append(pPolyline);
    Append(new AcDbText(AcGePoint3d(0.0, 200.0, 0.0), L"固结", AcDbObjectId::kNull, 5.0));
}

/// Makes the block FRAME: a line, and an attribute definition in its middle.
void FrameCommand() {
    AcDbBlockTable* pTable = nullptr;
    acdbHostApplicationServices()->workingDatabase()->getBlockTable(pTable, AcDb::kForWrite);
    auto* const pBlock = new AcDbBlockTableRecord;
    pBlock->setName(L"FRAME");
    pTable->add(pBlock);
    pTable->close();
    auto* const pLine = new AcDbPolyline;
    pLine->addVertexAt(0, AcGePoint2d(0.0, 0.0));
    pLine->addVertexAt(1, AcGePoint2d(20.0, 0.0));
    auto* const pDefinition = new AcDbAttributeDefinition({10.0, 5.0, 0.0}, L"未填", L"图号", L"图号?");
    pDefinition->setHeight(2.5);
    pDefinition->setFieldLength(25);
    for (AcDbEntity* const pEntity : std::initializer_list<AcDbEntity*>{pLine, pDefinition}) {
        pBlock->appendAcDbEntity(pEntity);
        pEntity->close();
    }
    pBlock->close();
}

void BoxesCommand() {
    acutPrintf(L"begun");
    MessageBoxA(nullptr, "第一行\r\n第二行", "Tervo", MB_OK | MB_ICONINFORMATION);
    const int answer = MessageBoxA(nullptr, "固结?", "Tervo", MB_YESNOCANCEL);
    acutPrintf(L"answer %d", answer);
}

void FindCommand() {
    ACHAR path[1024];
    const bool bFound = acedFindFile(L"SUPPORT-file.TXT", path) == RTNORM;
    acutPrintf(L"\n%ls", bFound ? path : L"none");
}

void TellCommand() {
    g_bTellDraws = true;
}

/// Asks for a point before each command "PLOT" and tells the ends of commands, once told to watch.
class CSampleReactor final : public AcEditorReactor {
public:
    bool m_bWatching = false;
    void commandWillStart(const ACHAR* szName) override {
        if (!m_bWatching) return;
        acutPrintf(L"\nwill %ls", szName);
        ads_point point = {};
        if (std::wstring(szName) == L"TWOPOINTS") AskPoint(L"Reactor: ", point);
    }
    void commandEnded(const ACHAR* szName) override { Tell(L"ended", szName); }
    void commandCancelled(const ACHAR* szName) override { Tell(L"cancelled", szName); }

private:
    void Tell(const ACHAR* szWhat, const ACHAR* szName) const {
        if (m_bWatching) acutPrintf(L"\n%ls %ls", szWhat, szName);
    }
};

CSampleReactor g_reactor;

void WatchCommand() {
    g_reactor.m_bWatching = true;
}

void Load(void* pPackage) {
    acrxDynamicLinker()->unlockApplication(pPackage);
    acrxDynamicLinker()->registerAppMDIAware(pPackage);
    RegisterSampleSheet();
    acedEditor->addReactor(&g_reactor);
    AcEdCommandStack& stack = *acedRegCmds;
    stack.addCommand(L"SAMPLE", L"TwoPoints", L"ZWEI", ACRX_CMD_MODAL, TwoPointsCommand);
    stack.addCommand(L"SAMPLE", L"SHEET", L"SHEET", ACRX_CMD_MODAL, SheetCommand);
    stack.addCommand(L"SAMPLE", L"BROKEN", L"BROKEN", ACRX_CMD_TRANSPARENT, BrokenSheetCommand);
    stack.addCommand(L"SAMPLE", L"LINES", L"LINES", ACRX_CMD_MODAL, LinesCommand);
    stack.addCommand(L"SAMPLE", L"BOXES", L"BOXES", ACRX_CMD_MODAL, BoxesCommand);
    stack.addCommand(L"SAMPLE", L"FIND", L"FIND", ACRX_CMD_MODAL, FindCommand);
    stack.addCommand(L"SAMPLE", L"TELL", L"TELL", ACRX_CMD_MODAL, TellCommand);
    stack.addCommand(L"SAMPLE", L"WATCH", L"WATCH", ACRX_CMD_MODAL, WatchCommand);
    stack.addCommand(L"SAMPLE", L"FRAME", L"FRAME", ACRX_CMD_MODAL, FrameCommand);
}

void Unload() {
    acedRegCmds->removeGroup(L"SAMPLE");
    acedEditor->removeReactor(&g_reactor);
    UnregisterSampleSheet();
}

} // namespace

extern "C" {

AcRx::AppRetCode acrxEntryPoint(AcRx::AppMsgCode msg, void* pkt) {
    if (msg == AcRx::kInitAppMsg) Load(pkt);
    if (msg == AcRx::kUnloadAppMsg) Unload();
    return AcRx::kRetOK;
}

int acrxGetApiVersion() {
    return g_nApiVersion;
}
}
