#include "commands/sheet_layout.h"

namespace {
struct CSheetRow {
    int m_nWidth, m_nHeight, m_nChartsPerRow, m_nChartsPerSheet;
};
constexpr CSheetRow g_papers[] = {
    {841, 1189, 4, 16}, {841, 594, 4, 8}, {420, 594, 2, 4}, {420, 297, 2, 2}, {210, 297, 1, 1},
};
constexpr CSheetRow g_sheetWithStrip{420, 297, 2, 2};
} // namespace

void GetSheetLayout(Adesk::Int32 nGCBZ, int nPaper, int& nWidth, int& nHeight, int& nChartsPerRow,
                    int& nChartsPerSheet) {
    const bool bStrip = nGCBZ == g_nStandardWithStrip;
    if (!bStrip && (nPaper < 0 || nPaper >= static_cast<int>(std::size(g_papers)))) return;
    const CSheetRow& row = bStrip ? g_sheetWithStrip : g_papers[nPaper];
    nWidth = row.m_nWidth;
    nHeight = row.m_nHeight;
    nChartsPerRow = row.m_nChartsPerRow;
    nChartsPerSheet = row.m_nChartsPerSheet;
}

AcGePoint3d SheetCorner(const AcGePoint3d& ptPicked, int nSheet) {
    return {ptPicked.x + g_dSheetStep * (nSheet - 1), ptPicked.y + g_dSheetHeight, ptPicked.z};
}

AcGePoint3d SheetBlockPoint(const AcGePoint3d& ptCorner) {
    return {ptCorner.x, ptCorner.y - g_dSheetHeight, ptCorner.z};
}

AcGePoint3d FirstChartPoint(const AcGePoint3d& ptCorner, Adesk::Int32 nGCBZ) {
    if (nGCBZ == g_nStandardWithStrip) return {ptCorner.x + 13.0, ptCorner.y - 30.0, 0.0};
    return {ptCorner.x + 25.0, ptCorner.y - 35.0, 0.0};
}
