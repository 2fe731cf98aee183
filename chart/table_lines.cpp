#include "chart/table_lines.h"

namespace {
constexpr double g_dFrameWidth = 0.5;
}

void DrawTableRow(CPictureSink& sink, const AcGePoint3d& ptLeft, double dRight, bool bFrame) {
    const double dOverrun = bFrame ? g_dFrameWidth / 2.0 : 0.0;
    sink.WideLine({ptLeft.x - dOverrun, ptLeft.y, ptLeft.z}, {dRight + dOverrun, ptLeft.y, ptLeft.z},
                  bFrame ? g_dFrameWidth : 0.0);
}

void DrawTableColumn(CPictureSink& sink, const AcGePoint3d& ptTop, double dHeight, bool bFrame) {
    sink.WideLine(ptTop, {ptTop.x, ptTop.y - dHeight, ptTop.z}, bFrame ? g_dFrameWidth : 0.0);
}
