#pragma once
// Where sheets, charts and texts go. Lengths are drawing units, which are millimetres on the sheet.

#include "platform/acad/geometry.h"

inline constexpr Adesk::Int32 g_nStandardWithStrip =
    2; ///< project standard code with two charts a sheet and a title strip
inline constexpr int g_nPaperA4 = 4;
inline constexpr double g_dSheetStep =
    220.0; ///< from sheet to sheet and from chart to chart, for every standard code
inline constexpr double g_dSheetHeight = 297.0;

// What charts and frames are made with.
inline constexpr double g_dChartText = 2.5;
inline constexpr Adesk::UInt16 g_nChartColor = 3;

/// Sheet size and number of charts for a project standard code and a paper index (0: A0 to 4: A4). For an
/// index it does not know, and a code other than 2, the results stay as they are.
void GetSheetLayout(Adesk::Int32 nGCBZ, int nPaper, int& nWidth, int& nHeight, int& nChartsPerRow,
                    int& nChartsPerSheet);

/// Top left corner of sheet nSheet (from 1), the picked point being the lower left corner of the first.
AcGePoint3d SheetCorner(const AcGePoint3d& ptPicked, int nSheet);

/// Where a sheet's block is inserted: its lower left corner.
AcGePoint3d SheetBlockPoint(const AcGePoint3d& ptCorner);

/// Where the first chart of a sheet stands, from the sheet's top left corner; z is 0.
AcGePoint3d FirstChartPoint(const AcGePoint3d& ptCorner, Adesk::Int32 nGCBZ);
