#pragma once
// Reduction of a sample's readings to its curves, circles, envelopes and scales.

#include "analysis/mor_circles.h"
#include "analysis/reading.h"
#include "chart/chart_entity.h"

/// Feeds the readings of one sample, in order of specimen and running number, into a new chart.
class CReduction {
public:
    /// The chart's method must be one of the three.
    explicit CReduction(CBRENChart& chart);
    /// 0 when the reading is faulty, which it has reported on the command line.
    int AddReading(const CTestReading& reading);
    /// Ends the run: envelopes, scales. 0 when an envelope could not be found, which it has reported.
    int Finish();

private:
    int AddFailureRow(const CTestReading& reading, const CReducedReading& reduced);
    void CloseSeries();
    int FindEnvelopes();

    CBRENChart& m_chart;
    CTestMethod m_method;
    bool m_bFirstReading = true, m_bFirstGroup = true;
    Adesk::Int32 m_nFirstSJBH = 0;
    double m_dLastWY = -1.0;
    double m_dMaxStrain = 0.0, m_dMaxDeviator = 0.0, m_dMaxSigma1 = 0.0, m_dMaxTau = 0.0;
    CDoubleList m_arStrain, m_arStress;
    CMorCircles m_circles, m_circlesEff;
};
