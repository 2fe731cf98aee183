#include "commands/bren_command.h"

#include "commands/document_session.h"
#include "commands/module_library.h"
#include "commands/sheet_maker.h"
#include "commands/text_conversion.h"
#include "data/project_context.h"
#include "platform/acad/editor.h"
#include "platform/acad/host_application.h"
#include "platform/mfc/resources.h"
#include "ui/bren_dlg.h"

namespace {
/// The samples of one group: those of the chosen borehole, or an element of the all-samples list.
CArray<QYPropty> GroupSamples(const CBRENDlg& dialog, int nGroup) {
    if (dialog.AllSamples()) return dialog.m_pageGen.m_arAll[nGroup].m_arQY;
    CArray<QYPropty> samples;
    for (int i = 0; i < dialog.m_saSelQY.GetSize(); i++)
        samples.Add({dialog.m_strZKBH, dialog.m_saSelQY[i], dialog.m_saSelSYFF[i], dialog.m_saDepth[i],
                     dialog.m_saWater[i], dialog.m_saIL[i], dialog.m_saIP[i], dialog.m_saLayer[i]});
    return samples;
}

bool AskInsertionPoint(AcGePoint3d& ptPicked) {
    ads_point point{0.0, 0.0, 0.0};
    CString strPrompt;
    strPrompt.Format("\r\n请指定三轴剪切曲线%s的左下插入点:", "BREN_");
    if (acedGetPoint(nullptr, ToWide(strPrompt), point) == RTCAN) return false;
    ptPicked.set(point[0], point[1], point[2]);
    return true;
}
} // namespace

void BrenCommand() {
    SetSdi(0);
    const int nGCSY = GetProjectIndex();
    if (nGCSY < 0 || !CheckDataManager()) return;
    const CString strGCBH = ReadProjectText("GCBH");
    const int nGCBZ = ReadProjectNumber("GCBZ");

    const CTemporaryResourceOverride resources(g_hModuleResources);
    CBRENDlg dialog("生成三轴剪切试验成果图", adsw_acadMainWnd());
    dialog.m_nGCSY = nGCSY;
    dialog.m_nGCBZ = nGCBZ;
    if (dialog.DoModal() != ID_OK || !dialog.m_bHasData || !dialog.m_bQuYangOk || !dialog.m_bSamplesOk)
        return;

    AcDbDatabase* pDatabase = acdbHostApplicationServices()->workingDatabase();
    const int nGroups = dialog.AllSamples() ? dialog.m_pageGen.m_arAll.GetSize() : 1;
    for (int nGroup = 0; nGroup < nGroups; nGroup++) {
        AcGePoint3d ptPicked;
        if (!AskInsertionPoint(ptPicked)) return;
        CSheetMaker sheets(pDatabase, dialog, strGCBH);
        if (!sheets.PlaceGroup(GroupSamples(dialog, nGroup), ptPicked)) return;
    }
}
