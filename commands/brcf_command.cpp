#include "commands/brcf_command.h"

#include "analysis/numbers.h"
#include "chart/chart_entity.h"
#include "commands/document_session.h"
#include "commands/module_library.h"
#include "commands/pick_entity.h"
#include "platform/acad/ap_document_manager.h"
#include "platform/acad/editor.h"
#include "platform/mfc/resources.h"
#include "ui/dlg_save.h"

#include <array>

namespace {
// A set of values, in the same order in the chart and in the dialog.
using CChartValues = std::array<double CBRENChart::*, 6>;
using CDialogValues = std::array<double CDLGSAVE::*, 6>;

constexpr CChartValues g_arPlain = {&CBRENChart::m_dCalcPhi,  &CBRENChart::m_dCalcC,
                                    &CBRENChart::m_dGraphPhi, &CBRENChart::m_dGraphC,
                                    &CBRENChart::m_dAdoptPhi, &CBRENChart::m_dAdoptC};
constexpr CChartValues g_arEffective = {&CBRENChart::m_dCalcPhiEff,  &CBRENChart::m_dCalcCEff,
                                        &CBRENChart::m_dGraphPhiEff, &CBRENChart::m_dGraphCEff,
                                        &CBRENChart::m_dAdoptPhiEff, &CBRENChart::m_dAdoptCEff};
constexpr CDialogValues g_arTotalFields = {&CDLGSAVE::m_dCalcPhi,  &CDLGSAVE::m_dCalcC,
                                           &CDLGSAVE::m_dGraphPhi, &CDLGSAVE::m_dGraphC,
                                           &CDLGSAVE::m_dAdoptPhi, &CDLGSAVE::m_dAdoptC};
constexpr CDialogValues g_arPrimedFields = {&CDLGSAVE::m_dCalcPhiE,  &CDLGSAVE::m_dCalcCE,
                                            &CDLGSAVE::m_dGraphPhiE, &CDLGSAVE::m_dGraphCE,
                                            &CDLGSAVE::m_dAdoptPhiE, &CDLGSAVE::m_dAdoptCE};

double AsItStands(double dValue) {
    return dValue;
}

void Offer(const CBRENChart& chart, const CChartValues& values, CDLGSAVE& dialog, const CDialogValues& fields,
           double (*pCut)(double)) {
    for (std::size_t i = 0; i < values.size(); i++)
        dialog.*fields[i] = pCut(chart.*values[i]);
}

/// A drained test's values are shown as effective ones, though the chart keeps them in its plain fields.
void FillDialog(const CBRENChart& chart, CDLGSAVE& dialog) {
    dialog.m_strMethod = chart.m_strSYFF;
    switch (chart.Method()) {
    case CTestMethod::UU:
        dialog.m_nKind = 0;
        Offer(chart, g_arPlain, dialog, g_arTotalFields, &AsItStands);
        break;
    case CTestMethod::CU:
        dialog.m_nKind = 1;
        Offer(chart, g_arPlain, dialog, g_arTotalFields, &CutToTwoDecimals);
        Offer(chart, g_arEffective, dialog, g_arPrimedFields, &CutToTwoDecimals);
        break;
    case CTestMethod::CD:
    case CTestMethod::None:
        dialog.m_nKind = 2;
        Offer(chart, g_arPlain, dialog, g_arPrimedFields, &CutToTwoDecimals);
        break;
    }
}

void AdoptValues(const CDLGSAVE& dialog, CBRENChart& chart) {
    const bool bTotal = dialog.m_nKind != 2;
    chart.m_dAdoptPhi = bTotal ? dialog.m_dAdoptPhi : dialog.m_dAdoptPhiE;
    chart.m_dAdoptC = bTotal ? dialog.m_dAdoptC : dialog.m_dAdoptCE;
    if (!chart.HasEffectiveSet()) return;
    chart.m_dAdoptPhiEff = dialog.m_dAdoptPhiE;
    chart.m_dAdoptCEff = dialog.m_dAdoptCE;
}

void RefitEnvelopes(CBRENChart& chart) {
    chart.FitEnvelopeLine(chart.m_ptEnvStart, chart.m_ptEnvEnd, chart.m_dAdoptPhi * g_dPi / 180.0,
                          chart.m_dAdoptC);
    if (!chart.HasEffectiveSet()) return;
    chart.FitEnvelopeLine(chart.m_ptEnvStartEff, chart.m_ptEnvEndEff, chart.m_dAdoptPhiEff * g_dPi / 180.0,
                          chart.m_dAdoptCEff);
}

void AskAdoptedValues(CBRENChart& chart) {
    CDLGSAVE dialog(adsw_acadMainWnd());
    FillDialog(chart, dialog);
    if (dialog.DoModal() != ID_OK) acutPrintf(L"\n放弃存储三轴剪切数据!");
    if (IsMultiDocument()) acDocManager->popResourceHandle();
    AdoptValues(dialog, chart);
}

/// Either way the change of a line is not asked about again.
void TellOutcome(int bStored) {
    g_bChartDataChanged = 0;
    acutPrintf(bStored ? L"\n三轴剪切数据存储成功!" : L"\n三轴剪切数据存储失败!");
}
} // namespace

void BrcfCommand() {
    AcDbObjectId id;
    CPickedEntity pEntity = PickEntity("\n请选择三轴剪切试样曲线:", id, AcDb::kForWrite);
    if (!pEntity) return;
    CBRENChart* const pChart = CBRENChart::cast(pEntity.get());
    if (!pChart) {
        acutPrintf(L"\n没有选中三轴剪切试样曲线!\n请选择三轴剪切试样曲线!");
        return;
    }
    if (!pChart->CheckProjectForStore()) {
        TellOutcome(0);
        return;
    }
    const CTemporaryResourceOverride resources(g_hModuleResources);
    AskAdoptedValues(*pChart);
    const int bStored = pChart->StoreAdoptedValues();
    TellOutcome(bStored);
    if (!bStored) return;
    RefitEnvelopes(*pChart);
    pEntity.reset();
    acutPrintf(L"\n");
    acedCommand(RTSTR, L"regen", RTNONE);
}
