#include "commands/template_pass.h"

#include "commands/text_conversion.h"
#include "data/project_context.h"
#include "data/show_message.h"
#include "drawing/model_space.h"
#include "drawing/title_fields.h"
#include "platform/acad/editor.h"
#include "platform/mfc/file_find.h"
#include "ui/bren_dlg.h"
#include "ui/qs_para.h"

CTemplateMarks g_templateMarks;

namespace {
constexpr const char* g_pBlockName = "BRMB";
constexpr const char* g_pPeopleClass = "三轴剪切试验曲线";
constexpr double g_dFrameWidth = 210.0, g_dFrameHeight = 297.0, g_dFrameMargin = 25.0;
} // namespace

int CheckNotTemplate(const CString& strTemplate) {
    return IsCurrentDrawing(strTemplate) ? 0 : 1;
}

CString CTemplatePass::TemplatePath() const {
    return m_dialog.m_pageGen.m_strFramePath + m_dialog.m_pageGen.m_strFrameFile;
}

int CTemplatePass::Load() {
    const CString strTemplate = TemplatePath();
    if (!CFileFind().FindFile(strTemplate)) {
        acutPrintf(L"\n图框文件%s不存在!", ToWide(strTemplate));
        return 0;
    }
    ReadFields();
    if (!LoadBlock(strTemplate)) {
        ShowMessage("请关闭打开的模板!");
        return 0;
    }
    m_block.ReplaceBlockTexts(m_saKeys, m_saValues);
    ReadLayoutMarks();
    ReplaceAnnotations();
    Replace("[SYFF]", "");
    return 1;
}

void CTemplatePass::ReadFields() {
    CString strGCSY;
    strGCSY.Format("%d", ReadProjectNumber("GCSY"));
    BuildSheetFields(strGCSY, m_dialog.m_strZKBH, m_saKeys, m_saValues, 1, 1);
    CQSPara().GetPeople(g_pPeopleClass, &m_saKeys, &m_saValues);
}

int CTemplatePass::LoadBlock(const CString& strTemplate) {
    return CheckNotTemplate(strTemplate) && m_block.InsertBlockDef(strTemplate, g_pBlockName, m_pDatabase);
}

int CTemplatePass::Replace(const char* pMark, const CString& strText) {
    AcGePoint3dArray points;
    AcDbIntArray modes;
    if (!m_block.FindBlockText(pMark, strText, points, modes)) return 0;
    m_ptFound = points[0];
    return 1;
}

void CTemplatePass::ReadLayoutMarks() {
    if (Replace("[DIST]", "")) g_templateMarks.m_dDist = m_ptFound.x;
    Replace("[EP]", "");
    if (Replace("[SP]", "")) g_templateMarks.m_ptSP = m_ptFound;
    if (Replace("[SP1]", "")) g_templateMarks.m_ptSP1 = m_ptFound;
}

void CTemplatePass::ReplaceAnnotations() {
    const auto replace = [this](const char* pMark, int bShown, const CString& strText) {
        Replace(pMark, bShown ? strText : CString());
    };
    replace("[WCDW]", m_dialog.m_bUnit, m_dialog.m_strUnit);
    replace("[SYZ]", m_dialog.m_bTester, m_dialog.m_strTester);
    replace("[JCZ]", m_dialog.m_bChecker, m_dialog.m_strChecker);
    replace("[RQ]", m_dialog.m_bDate, m_dialog.m_strDate);
}

void CTemplatePass::AddFrame(int nSheet, const AcGePoint3d& ptSheet) {
    CString strNumber, strName;
    strNumber.Format("%d", nSheet + 1);
    strName.Format("三轴剪切-%d", nSheet);
    AcGePoint3dArray points;
    AcDbIntArray modes;
    m_block.FindBlockText("[TH]", strNumber, points, modes);
    const AcDbObjectId idFrame = m_block.InsertReference(ptSheet, 0.0, 1.0, 1.0, m_pDatabase);
    CInsertBlock::FillAttributes(idFrame, m_saKeys, m_saValues);
    CInsertBlock::StampFrame(ptSheet, strName, g_dFrameWidth, g_dFrameHeight, g_dFrameMargin);
}
