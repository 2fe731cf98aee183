#pragma once

/// At what height the text of a cell is measured, which settles where it begins.
enum class CCellMeasure { TextSize, TextHeight };

/// In what the two forms of the tables differ. Lengths are drawing units; x counts from the left edge of the
/// stress table, or from the anchor of the summary table.
struct CTableForm {
    CCellMeasure m_cellMeasure;
    // Stress table.
    double m_dMainText;            ///< size of the values, and of the titles of the total set
    double m_dSecondSubscript;     ///< x of the second subscripts of the total set
    double m_dSingleEffective;     ///< x of "σ'"
    double m_dSumEffective;        ///< x of "σ'+σ'"
    double m_dRuleFrom, m_dRuleTo; ///< x of the fraction's rule in the effective set
    // Summary table.
    double m_dSummaryValue;         ///< size and text height of the values
    double m_dSummaryTitle;         ///< x of the titles' cells
    double m_dSummaryEffectiveText; ///< text height of the titles of the effective set
};
inline constexpr CTableForm g_tableWorldForm{.m_cellMeasure = CCellMeasure::TextSize,
                                             .m_dMainText = 2.5,
                                             .m_dSecondSubscript = 11.0,
                                             .m_dSingleEffective = 5.0,
                                             .m_dSumEffective = 1.0,
                                             .m_dRuleFrom = 1.0,
                                             .m_dRuleTo = 14.0,
                                             .m_dSummaryValue = 2.5,
                                             .m_dSummaryTitle = -5.0,
                                             .m_dSummaryEffectiveText = 3.8};
inline constexpr CTableForm g_tableExplodeForm{.m_cellMeasure = CCellMeasure::TextHeight,
                                               .m_dMainText = 3.0,
                                               .m_dSecondSubscript = 12.5,
                                               .m_dSingleEffective = 7.0,
                                               .m_dSumEffective = 3.0,
                                               .m_dRuleFrom = 3.0,
                                               .m_dRuleTo = 13.0,
                                               .m_dSummaryValue = 3.0,
                                               .m_dSummaryTitle = -4.0,
                                               .m_dSummaryEffectiveText = 2.5};
