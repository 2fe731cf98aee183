#include "chart/chart_fields.h"

#include "chart/chart_entity.h"
#include "drawing/field_rows.h"

namespace {
using CRow = CFieldRow<CBRENChart>;

// In the order of the drawing file's record; the number is the place in the class. The greatest stress stands
// in it twice. The last rows are not filed: a reloaded chart starts with these flags off.
const CRow g_chartRows[] = {
    {"m_ptBase", 0, &CBRENChart::m_ptBase},
    {"m_ptCurveOrigin", 1, &CBRENChart::m_ptCurveOrigin},
    {"m_ptMohrOrigin", 2, &CBRENChart::m_ptMohrOrigin},
    {"m_ptTableOrigin", 3, &CBRENChart::m_ptTableOrigin},
    {"m_ptSummaryOrigin", 4, &CBRENChart::m_ptSummaryOrigin},
    {"m_ptEnvStart", 50, &CBRENChart::m_ptEnvStart},
    {"m_ptEnvEnd", 51, &CBRENChart::m_ptEnvEnd},
    {"m_ptEnvStartEff", 52, &CBRENChart::m_ptEnvStartEff},
    {"m_ptEnvEndEff", 53, &CBRENChart::m_ptEnvEndEff},
    {"m_nPolylineMode", 54, &CBRENChart::m_nPolylineMode},
    {"m_nGCSY", 27, &CBRENChart::m_nGCSY},
    {"m_nCurveRows", 5, &CBRENChart::m_nCurveRows},
    {"m_nCurveCols", 6, &CBRENChart::m_nCurveCols},
    {"m_dCurveStepY", 7, &CBRENChart::m_dCurveStepY},
    {"m_dCurveStepX", 8, &CBRENChart::m_dCurveStepX},
    {"m_nCurveCellW", 9, &CBRENChart::m_nCurveCellW},
    {"m_nCurveCellH", 10, &CBRENChart::m_nCurveCellH},
    {"m_nMohrRows", 11, &CBRENChart::m_nMohrRows},
    {"m_nMohrCols", 12, &CBRENChart::m_nMohrCols},
    {"m_dMohrStepY", 13, &CBRENChart::m_dMohrStepY},
    {"m_dMohrStepX", 14, &CBRENChart::m_dMohrStepX},
    {"m_nMohrCellW", 15, &CBRENChart::m_nMohrCellW},
    {"m_nMohrCellH", 16, &CBRENChart::m_nMohrCellH},
    {"m_dArrowHalfWidth", 17, &CBRENChart::m_dArrowHalfWidth},
    {"m_dTextHeight", 18, &CBRENChart::m_dTextHeight},
    {"m_dMaxSigma1", 55, &CBRENChart::m_dMaxSigma1},
    {"m_nColor", 60, &CBRENChart::m_nColor},
    {"m_arTotal", 19, &CBRENChart::m_arTotal},
    {"m_arEffective", 21, &CBRENChart::m_arEffective},
    {"m_arStrainSeries", 36, &CBRENChart::m_arStrainSeries},
    {"m_arStressSeries", 37, &CBRENChart::m_arStressSeries},
    {"m_arSigma3", 23, &CBRENChart::m_arSigma3, CFiling::Appended},
    {"m_arDeviator", 24, &CBRENChart::m_arDeviator, CFiling::Appended},
    {"m_arSigma3Eff", 25, &CBRENChart::m_arSigma3Eff, CFiling::Appended},
    {"m_arDeviatorEff", 26, &CBRENChart::m_arDeviatorEff, CFiling::Appended},
    {"m_strGCBH", 28, &CBRENChart::m_strGCBH},
    {"m_strZKBH", 29, &CBRENChart::m_strZKBH},
    {"m_strQYBH", 30, &CBRENChart::m_strQYBH},
    {"m_strSYFF", 31, &CBRENChart::m_strSYFF},
    {"m_strSoilName", 32, &CBRENChart::m_strSoilName},
    {"m_strWater", 33, &CBRENChart::m_strWater},
    {"m_strLiquidity", 34, &CBRENChart::m_strLiquidity},
    {"m_strPlasticity", 35, &CBRENChart::m_strPlasticity},
    {"m_saCells", 20, &CBRENChart::m_saCells},
    {"m_saCellsEff", 22, &CBRENChart::m_saCellsEff},
    {"m_dCalcPhi", 38, &CBRENChart::m_dCalcPhi},
    {"m_dCalcC", 39, &CBRENChart::m_dCalcC},
    {"m_dCalcPhiEff", 44, &CBRENChart::m_dCalcPhiEff},
    {"m_dCalcCEff", 45, &CBRENChart::m_dCalcCEff},
    {"m_dGraphPhi", 40, &CBRENChart::m_dGraphPhi},
    {"m_dGraphC", 41, &CBRENChart::m_dGraphC},
    {"m_dGraphPhiEff", 46, &CBRENChart::m_dGraphPhiEff},
    {"m_dGraphCEff", 47, &CBRENChart::m_dGraphCEff},
    {"m_dAdoptPhi", 42, &CBRENChart::m_dAdoptPhi},
    {"m_dAdoptC", 43, &CBRENChart::m_dAdoptC},
    {"m_dAdoptPhiEff", 48, &CBRENChart::m_dAdoptPhiEff},
    {"m_dAdoptCEff", 49, &CBRENChart::m_dAdoptCEff},
    {"m_dMaxSigma1", 55, &CBRENChart::m_dMaxSigma1, CFiling::Again},
    {"m_bSingleSpecimen", 56, CFlagMember<CBRENChart>{&CBRENChart::m_bSingleSpecimen}},
    {"m_idTextStyle", 59, &CBRENChart::m_idTextStyle},
    {"m_bNoEnvelope", 57, CFlagMember<CBRENChart>{&CBRENChart::m_bNoEnvelope}, CFiling::None},
    {"m_bColorChanging", 58, CFlagMember<CBRENChart>{&CBRENChart::m_bColorChanging}, CFiling::None},
};
} // namespace

std::span<const CFieldRow<CBRENChart>> ChartRows() {
    return g_chartRows;
}

CFieldTable* ChartFields() {
    static CFieldTableOf<CBRENChart> table(g_chartRows);
    return &table;
}
