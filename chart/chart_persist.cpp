// The chart's record in a drawing file.

#include "chart/chart_entity.h"
#include "chart/chart_fields.h"
#include "drawing/field_filing.h"

namespace {
constexpr std::size_t g_nLongestText = 100; // bytes of the code page
} // namespace

Acad::ErrorStatus CBRENChart::dwgOutFields(AcDbDwgFiler* pFiler) const {
    assertReadEnabled();
    if (const Acad::ErrorStatus status = AcDbEntity::dwgOutFields(pFiler); status != Acad::eOk) return status;
    WriteFields(*this, ChartRows(), pFiler, g_nLongestText);
    return Acad::eOk;
}

Acad::ErrorStatus CBRENChart::dwgInFields(AcDbDwgFiler* pFiler) {
    assertWriteEnabled(1, 1);
    if (const Acad::ErrorStatus status = AcDbEntity::dwgInFields(pFiler); status != Acad::eOk) return status;
    ReadFields(*this, ChartRows(), pFiler);
    return Acad::eOk;
}
