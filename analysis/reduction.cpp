#include "analysis/reduction.h"

#include "analysis/scales.h"
#include "platform/acad/editor.h"

CReduction::CReduction(CBRENChart& chart)
    : m_chart(chart)
    , m_method(chart.Method()) {
    // The one list emptied here; the others rely on the chart being new.
    m_chart.m_arTotal.setLogicalLength(0);
}

int CReduction::AddReading(const CTestReading& reading) {
    if (m_bFirstReading) m_nFirstSJBH = reading.m_nSJBH;
    m_bFirstReading = false;
    if (reading.m_nSJBH != m_nFirstSJBH) m_chart.m_bSingleSpecimen = 0;

    if (reading.HasNegativeFault()) {
        acutPrintf(L"\n原始数据不正确导致出现不正常负值!");
        return 0;
    }
    const CReducedReading reduced = ReduceReading(reading, m_method);
    const double dSigma1 = reading.m_dWY + reduced.m_dDeviator;
    const double dTau = reduced.m_dDeviator / 2.0;
    if (reduced.m_dStrain > m_dMaxStrain) m_dMaxStrain = reduced.m_dStrain;
    if (reduced.m_dDeviator > m_dMaxDeviator) m_dMaxDeviator = reduced.m_dDeviator;
    if (dSigma1 > m_dMaxSigma1) m_dMaxSigma1 = dSigma1;
    if (dTau > m_dMaxTau) m_dMaxTau = dTau;

    if (reading.FeedsCircles() && !AddFailureRow(reading, reduced)) return 0;

    // Groups follow adjacency, not value: a cell pressure that comes back starts a new curve.
    if (reading.m_dWY != m_dLastWY) {
        m_dLastWY = reading.m_dWY;
        if (!m_bFirstGroup) CloseSeries();
        m_bFirstGroup = false;
    }
    if (reading.FeedsCurve()) {
        m_arStrain.append(reduced.m_dStrain);
        m_arStress.append(reduced.m_dDeviator);
    }
    return 1;
}

int CReduction::AddFailureRow(const CTestReading& reading, const CReducedReading& reduced) {
    const double q = reduced.m_dDeviator;
    double dSigma3 = reading.m_dWY;
    double dSigma1 = reading.m_dWY + q;
    if (m_method == CTestMethod::CD) { // a drained test is evaluated in effective stress
        dSigma1 = dSigma1 - reading.m_dKXYL;
        dSigma3 = dSigma3 - reading.m_dKXYL;
        if (dSigma1 < g_dLimit || dSigma3 < g_dLimit) {
            acutPrintf(L"\n原始数据不正确导致σ3或σ1值错误!");
            return 0;
        }
    }
    m_chart.m_arSigma3.append(dSigma3);
    m_chart.m_arDeviator.append(q);
    for (const double dValue : {dSigma3, dSigma1, dSigma1 + dSigma3, dSigma1 - dSigma3,
                                (dSigma1 + dSigma3) / 2.0, (dSigma1 - dSigma3) / 2.0})
        m_chart.m_arTotal.append(dValue);
    m_circles.AddCircle((dSigma1 + dSigma3) / 2.0, (dSigma1 - dSigma3) / 2.0);

    if (m_method != CTestMethod::CU) return 1;
    const double dSigma1Eff = dSigma1 - reading.m_dKXYL;
    const double dSigma3Eff = dSigma3 - reading.m_dKXYL;
    if (dSigma1Eff < g_dLimit || dSigma3Eff < g_dLimit) {
        acutPrintf(L"\n原始数据不正确导致σ'3或σ'1值错误!");
        return 0;
    }
    m_chart.m_arSigma3Eff.append(dSigma3Eff);
    m_chart.m_arDeviatorEff.append(q);
    for (const double dValue :
         {dSigma3Eff, dSigma1Eff, dSigma1Eff + dSigma3Eff, (dSigma1Eff + dSigma3Eff) / 2.0})
        m_chart.m_arEffective.append(dValue);
    m_circlesEff.AddCircle((dSigma1Eff + dSigma3Eff) / 2.0, (dSigma1Eff - dSigma3Eff) / 2.0);
    return 1;
}

void CReduction::CloseSeries() {
    if (m_arStrain.isEmpty()) return;
    m_chart.m_arStrainSeries.Add(m_arStrain);
    m_chart.m_arStressSeries.Add(m_arStress);
    m_arStrain.setLogicalLength(0);
    m_arStress.setLogicalLength(0);
}

int CReduction::Finish() {
    CloseSeries();
    m_chart.m_dMaxSigma1 = m_dMaxSigma1;
    if (!FindEnvelopes()) return 0;

    const CPanelScales scales = ChooseScales(m_dMaxStrain * 100.0, m_dMaxDeviator, m_dMaxSigma1, m_dMaxTau);
    m_chart.m_dCurveStepX = scales.m_dStrainStep;
    m_chart.m_dCurveStepY = scales.m_dDeviatorStep;
    m_chart.m_dMohrStepX = scales.m_dSigmaStep;
    m_chart.m_dMohrStepY = scales.m_dSigmaStep;
    m_chart.m_nMohrRows = scales.m_nMohrRows;
    return 1;
}

int CReduction::FindEnvelopes() {
    const bool bEffective = m_method == CTestMethod::CU;
    if (m_chart.m_arSigma3.length() > 1) {
        // One wording for both sets, the total one with the primed φ as well.
        if (!m_circles.FindEnvelope(&m_chart.m_dGraphC, &m_chart.m_dGraphPhi) ||
            (bEffective && !m_circlesEff.FindEnvelope(&m_chart.m_dGraphCEff, &m_chart.m_dGraphPhiEff))) {
            acutPrintf(L"\n原始数据不正确导致φ'值错误!");
            return 0;
        }
        return 1;
    }
    m_chart.m_bNoEnvelope = 1;
    acutPrintf(L"摩尔圆个数少于2个,无法图解切线。");
    m_chart.m_dGraphPhi = m_chart.m_dGraphC = 0.0;
    if (bEffective) m_chart.m_dGraphPhiEff = m_chart.m_dGraphCEff = 0.0;
    return 1;
}
