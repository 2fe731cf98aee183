// acedGetVar and acedSetVar.

#include "platform/acad/ads_point.h"
#include "platform/acad/db_database.h"
#include "platform/acad/editor.h"
#include "platform/acad/host_application.h"
#include "platform/acad/wide_names.h"
#include "platform/windows/code_page.h"

namespace {

/// The variables of the program, whatever drawing is open.
struct CProgramVariables {
    short m_nSdi = 0;
    short m_nPlotDpi = 150;
};

CProgramVariables g_program;

int GiveShort(resbuf* pResult, short value) {
    pResult->restype = RTSHORT;
    pResult->resval.rint = value;
    return RTNORM;
}

int GiveText(resbuf* pResult, const std::string& strText) {
    pResult->restype = RTSTR;
    pResult->resval.rstring = acutNewString(WideFromGbk(strText).c_str());
    return RTNORM;
}

int GiveReal(resbuf* pResult, double value) {
    pResult->restype = RTREAL;
    pResult->resval.rreal = value;
    return RTNORM;
}

int GivePoint(resbuf* pResult, const AcGePoint2d& point) {
    pResult->restype = RT3DPOINT;
    PutPoint({point.x, point.y, 0.0}, pResult->resval.rpoint);
    return RTNORM;
}

int TakeLtscale(const resbuf* pValue, AcDbDatabase& drawing) {
    if (pValue->restype == RTSHORT)
        return drawing.setLtscale(pValue->resval.rint) == Acad::eOk ? RTNORM : RTERROR;
    if (pValue->restype != RTREAL) return RTERROR;
    return drawing.setLtscale(pValue->resval.rreal) == Acad::eOk ? RTNORM : RTERROR;
}

/// Makes the record named by the value the current one of its kind.
template <class Table>
int TakeRecord(const resbuf* pValue, AcDbDatabase& drawing, AcDbObjectId idTable,
               Acad::ErrorStatus (AcDbDatabase::*pSet)(AcDbObjectId)) {
    if (pValue->restype != RTSTR || !pValue->resval.rstring) return RTERROR;
    const CDbOpen<Table> table(idTable);
    AcDbObjectId id;
    if (!table || table->getAt(pValue->resval.rstring, id) != Acad::eOk) return RTERROR;
    return (drawing.*pSet)(id) == Acad::eOk ? RTNORM : RTERROR;
}

int TakeShort(const resbuf* pValue, short& field, short least, short most) {
    if (pValue->restype != RTSHORT || pValue->resval.rint < least || pValue->resval.rint > most)
        return RTERROR;
    field = pValue->resval.rint;
    return RTNORM;
}

} // namespace

bool IsSingleDocument() {
    return g_program.m_nSdi != 0;
}

int acedGetVar(const ACHAR* name, resbuf* pResult) {
    if (!name || !pResult) return RTERROR;
    if (SameName(name, L"SDI")) return GiveShort(pResult, g_program.m_nSdi);
    if (SameName(name, L"PLOTDPI")) return GiveShort(pResult, g_program.m_nPlotDpi);
    const AcDbDatabase* const pDrawing = acdbHostApplicationServices()->workingDatabase();
    if (!pDrawing) return RTERROR;
    if (SameName(name, L"LTSCALE")) return GiveReal(pResult, pDrawing->ltscale());
    if (SameName(name, L"VIEWCTR")) return GivePoint(pResult, pDrawing->View().m_ptCenter);
    if (SameName(name, L"VIEWSIZE")) return GiveReal(pResult, pDrawing->View().m_dHeight);
    if (SameName(name, L"CLAYER")) return GiveText(pResult, SymbolName(pDrawing->clayer()));
    if (SameName(name, L"TEXTSTYLE")) return GiveText(pResult, SymbolName(pDrawing->textstyle()));
    if (!SameName(name, L"CELTYPE")) return RTERROR;
    const AcDbObjectId idLinetype = pDrawing->celtype();
    return GiveText(pResult, idLinetype.isNull() ? "ByLayer" : SymbolName(idLinetype));
}

int acedSetVar(const ACHAR* name, const resbuf* pValue) {
    if (!name || !pValue) return RTERROR;
    if (SameName(name, L"SDI")) return TakeShort(pValue, g_program.m_nSdi, 0, 3);
    if (SameName(name, L"PLOTDPI")) return TakeShort(pValue, g_program.m_nPlotDpi, 1, 32767);
    AcDbDatabase* const pDrawing = acdbHostApplicationServices()->workingDatabase();
    if (!pDrawing) return RTERROR;
    if (SameName(name, L"LTSCALE")) return TakeLtscale(pValue, *pDrawing);
    if (SameName(name, L"CLAYER"))
        return TakeRecord<AcDbLayerTable>(pValue, *pDrawing, pDrawing->layerTableId(),
                                          &AcDbDatabase::setClayer);
    if (SameName(name, L"TEXTSTYLE"))
        return TakeRecord<AcDbTextStyleTable>(pValue, *pDrawing, pDrawing->textStyleTableId(),
                                              &AcDbDatabase::setTextstyle);
    if (SameName(name, L"CELTYPE"))
        return TakeRecord<AcDbLinetypeTable>(pValue, *pDrawing, pDrawing->linetypeTableId(),
                                             &AcDbDatabase::setCeltype);
    return RTERROR;
}
