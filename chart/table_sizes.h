#pragma once
// Sizes of the two tables in drawing units. A consolidated undrained test has rows for the effective set too.

inline constexpr int g_nTableColumn = 15; ///< width of a column of the stress table
inline constexpr int g_nTableRow = 8;     ///< height of a row, but for the high ones of the stress table
inline constexpr int g_nFractionRow = 10; ///< height of a row whose title is a fraction
inline constexpr int g_nTotalHeight = 52; ///< of the stress table's rows of the total set

constexpr int StressTableRows(bool bEffective) {
    return bEffective ? 10 : 6;
}
constexpr int StressTableHeight(bool bEffective) {
    return bEffective ? 86 : g_nTotalHeight;
}
constexpr int SummaryTableRows(bool bEffective) {
    return bEffective ? 8 : 6;
}
constexpr int SummaryTableHeight(bool bEffective) {
    return g_nTableRow * SummaryTableRows(bEffective);
}
