// acedTextBox.

#include "platform/acad/ads_point.h"
#include "platform/acad/db_database.h"
#include "platform/acad/db_text.h"
#include "platform/acad/editor.h"
#include "platform/acad/host_application.h"

namespace {

constexpr short g_nTextGroup = 1, g_nStyleGroup = 7, g_nHeightGroup = 40, g_nWidthFactorGroup = 41;

/// The style of that name; null when the drawing lacks it.
AcDbObjectId FindStyle(const ACHAR* szName) {
    const AcDbDatabase* const pDrawing = acdbHostApplicationServices()->workingDatabase();
    AcDbObjectId id;
    if (!pDrawing) return id;
    const CDbOpen<AcDbTextStyleTable> styles(pDrawing->textStyleTableId());
    if (styles && szName) styles->getAt(szName, id);
    return id;
}

/// Takes one group over into the text; false when there can be no text with it.
bool Take(const resbuf& group, AcDbText* pText) {
    switch (group.restype) {
    case g_nTextGroup:
        return pText->setTextString(group.resval.rstring) == Acad::eOk;
    case g_nHeightGroup:
        return pText->setHeight(group.resval.rreal) == Acad::eOk;
    case g_nWidthFactorGroup:
        return pText->setWidthFactor(group.resval.rreal) == Acad::eOk;
    case g_nStyleGroup: {
        const AcDbObjectId idStyle = FindStyle(group.resval.rstring);
        return !idStyle.isNull() && pText->setTextStyle(idStyle) == Acad::eOk;
    }
    default:
        return true; // the rest of the entity has no part in the box
    }
}

} // namespace

int acedTextBox(const resbuf* pText, ads_point low, ads_point high) {
    if (!low || !high) return RTERROR;
    AcDbText text;
    for (; pText; pText = pText->rbnext)
        if (!Take(*pText, &text)) return RTERROR;
    AcDbExtents box;
    if (text.getGeomExtents(box) != Acad::eOk) return RTERROR;
    PutPoint(box.minPoint(), low);
    PutPoint(box.maxPoint(), high);
    return RTNORM;
}
