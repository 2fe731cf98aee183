#include "commands/sheet_frame.h"

#include "commands/sheet_layout.h"
#include "ui/bren_dlg.h"

namespace {
void FillSignatures(CBRENFrame& frame, const CBRENDlg& dialog) {
    frame.m_bRQ = dialog.m_bDate;
    frame.m_bJCZ = dialog.m_bChecker;
    frame.m_bSYZ = dialog.m_bTester;
    frame.m_bWCDW = dialog.m_bUnit;
    frame.m_sJCZ = dialog.m_strChecker;
    frame.m_sWCDW = dialog.m_strUnit;
    frame.m_sSYZ = dialog.m_strTester;
    frame.m_nYear = static_cast<Adesk::Int16>(dialog.m_tDate.GetYear());
    frame.m_nMonth = static_cast<Adesk::Int16>(dialog.m_tDate.GetMonth());
    frame.m_nDay = static_cast<Adesk::Int16>(dialog.m_tDate.GetDay());
    frame.m_bReserved = dialog.m_nReserved;
}
} // namespace

std::unique_ptr<CBRENFrame> MakeSheetFrame(const CBRENDlg& dialog, const QYPropty& sample,
                                           const AcGePoint3d& ptBase, AcDbObjectId idTextStyle,
                                           AcDbObjectId idChart) {
    auto pFrame = std::make_unique<CBRENFrame>();
    pFrame->m_ptBase = ptBase;
    pFrame->m_nGCSY = dialog.m_nGCSY;
    pFrame->m_strZKBH = sample.m_strZKBH;
    pFrame->m_strQYBH = sample.m_strQYBH;
    pFrame->m_strSYFF = sample.m_strSYFF;
    pFrame->m_strGCBH = dialog.m_strGCBH;
    pFrame->m_strGCMC = dialog.m_strGCMC;
    pFrame->m_strQYSD = sample.m_strDepth;
    pFrame->m_nGCBZ = static_cast<Adesk::Int16>(dialog.m_nGCBZ);
    pFrame->m_dTextHeight = g_dChartText;
    pFrame->m_idTextStyle = pFrame->m_idBannerStyle = idTextStyle;
    pFrame->setColorIndex(g_nChartColor, Adesk::kTrue);
    if (dialog.m_nGCBZ != g_nStandardWithStrip) FillSignatures(*pFrame, dialog);
    pFrame->addPersistentReactor(idChart);
    return pFrame;
}
