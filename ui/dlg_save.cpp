#include "ui/dlg_save.h"

#include "analysis/numbers.h"
#include "analysis/test_method.h"
#include "platform/mfc/data_exchange.h"
#include "ui/resources.h"

namespace {

constexpr int g_nFromCalc = 0, g_nFromGraph = 1, g_nByHand = 2;
constexpr int g_nKindTotal = 0, g_nKindEffective = 2;

/// Halves, and with them negative values, go up; what is no number becomes one.
double Rounded(double dValue) {
    return TruncateToInt32(dValue * 100.0 + 0.5) / 100.0;
}

} // namespace

CDLGSAVE::CDLGSAVE(void* pOwner)
    : CDialog(IDD_SAVE, pOwner) {}

BOOL CDLGSAVE::OnInitDialog() {
    CDialog::OnInitDialog();
    SetIcon(IDI_TERVO, TRUE);
    SetIcon(IDI_TERVO, FALSE);
    for (const UINT nId : {IDC_GRAPH_C, IDC_GRAPH_PHI, IDC_GRAPH_CE, IDC_GRAPH_PHIE, IDC_CALC_C, IDC_CALC_PHI,
                           IDC_CALC_CE, IDC_CALC_PHIE, IDC_METHOD})
        GetDlgItem(nId)->EnableWindow(FALSE);
    EnableAdoptedOfKind();
    RoundValues();
    m_dSavedC = m_dAdoptC;
    m_dSavedPhi = m_dAdoptPhi;
    m_dSavedCE = m_dAdoptCE;
    m_dSavedPhiE = m_dAdoptPhiE;
    UpdateData(FALSE);
    return TRUE;
}

void CDLGSAVE::RoundValues() {
    const CTestMethod method = TestMethodOf(m_strMethod);
    if (method == CTestMethod::UU || method == CTestMethod::CU)
        for (double* pValue : {&m_dCalcPhi, &m_dCalcC, &m_dAdoptPhi, &m_dAdoptC, &m_dGraphPhi, &m_dGraphC})
            *pValue = Rounded(*pValue);
    if (method != CTestMethod::UU)
        for (double* pValue :
             {&m_dCalcPhiE, &m_dCalcCE, &m_dAdoptPhiE, &m_dAdoptCE, &m_dGraphCE, &m_dGraphPhiE})
            *pValue = Rounded(*pValue);
}

void CDLGSAVE::EnableAdopted(bool bTotal, bool bEffective) {
    for (const UINT nId : {IDC_ADOPT_C, IDC_ADOPT_PHI})
        GetDlgItem(nId)->EnableWindow(bTotal);
    for (const UINT nId : {IDC_ADOPT_CE, IDC_ADOPT_PHIE})
        GetDlgItem(nId)->EnableWindow(bEffective);
}

void CDLGSAVE::EnableAdoptedOfKind() {
    EnableAdopted(m_nKind != g_nKindEffective, m_nKind != g_nKindTotal);
}

// The controls are not read first: what was typed is given up.
void CDLGSAVE::TakeOver(double dC, double dPhi, double dCE, double dPhiE) {
    m_dAdoptC = dC;
    m_dAdoptPhi = dPhi;
    m_dAdoptCE = dCE;
    m_dAdoptPhiE = dPhiE;
    UpdateData(FALSE);
}

void CDLGSAVE::OnFromCalc() {
    m_nSource = g_nFromCalc;
    EnableAdopted(false, false);
    TakeOver(m_dCalcC, m_dCalcPhi, m_dCalcCE, m_dCalcPhiE);
}

void CDLGSAVE::OnFromGraph() {
    m_nSource = g_nFromGraph;
    EnableAdopted(false, false);
    TakeOver(m_dGraphC, m_dGraphPhi, m_dGraphCE, m_dGraphPhiE);
}

void CDLGSAVE::OnByHand() {
    m_nSource = g_nByHand;
    EnableAdoptedOfKind();
    TakeOver(m_dSavedC, m_dSavedPhi, m_dSavedCE, m_dSavedPhiE);
}

void CDLGSAVE::DoDataExchange(CDataExchange* pDX) {
    DDX_Text(pDX, IDC_ADOPT_C, m_dAdoptC);
    DDX_Text(pDX, IDC_ADOPT_PHI, m_dAdoptPhi);
    DDX_Text(pDX, IDC_CALC_C, m_dCalcC);
    DDX_Text(pDX, IDC_CALC_PHI, m_dCalcPhi);
    DDX_Text(pDX, IDC_GRAPH_PHI, m_dGraphPhi);
    DDX_Text(pDX, IDC_GRAPH_C, m_dGraphC);
    DDX_Text(pDX, IDC_METHOD, m_strMethod);
    DDX_Text(pDX, IDC_ADOPT_CE, m_dAdoptCE);
    DDX_Text(pDX, IDC_ADOPT_PHIE, m_dAdoptPhiE);
    DDX_Text(pDX, IDC_CALC_CE, m_dCalcCE);
    DDX_Text(pDX, IDC_CALC_PHIE, m_dCalcPhiE);
    DDX_Text(pDX, IDC_GRAPH_CE, m_dGraphCE);
    DDX_Text(pDX, IDC_GRAPH_PHIE, m_dGraphPhiE);
    DDX_Radio(pDX, IDC_FROM_CALC, m_nSource);
}

std::span<const CMessageEntry> CDLGSAVE::GetMessageMap() const {
    static const CMessageEntry map[] = {{IDC_FROM_CALC, BN_CLICKED, &CDLGSAVE::OnFromCalc},
                                        {IDC_FROM_GRAPH, BN_CLICKED, &CDLGSAVE::OnFromGraph},
                                        {IDC_BY_HAND, BN_CLICKED, &CDLGSAVE::OnByHand}};
    return map;
}
