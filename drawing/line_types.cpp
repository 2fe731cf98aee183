#include "drawing/line_types.h"

#include "commands/text_conversion.h"
#include "drawing/working_drawing.h"
#include "platform/acad/editor.h"

namespace {
constexpr double g_dDashedScale = 10.0;

/// The line type's id if the drawing has it; else it is loaded, and the id stays as it was.
Acad::ErrorStatus FindOrLoadLinetype(const CString& strName, AcDbDatabase& database,
                                     AcDbObjectId& idLinetype) {
    AcDbLinetypeTable* pTable = nullptr;
    if (const Acad::ErrorStatus status = database.getLinetypeTable(pTable, AcDb::kForRead);
        status != Acad::eOk)
        return status;
    const Acad::ErrorStatus found = pTable->getAt(ToWide(strName), idLinetype);
    pTable->close();
    if (found == Acad::eOk) return found;
    const Acad::ErrorStatus loaded = database.loadLineTypeFile(ToWide(strName), L"acad.lin");
    if (loaded != Acad::eOk) acutPrintf(L"未找到线型");
    return loaded;
}
} // namespace

int LoadLinetypeId(const CString& strName, AcDbDatabase* pDatabase, AcDbObjectId& idLinetype) {
    pDatabase = OrWorking(pDatabase);
    if (!pDatabase || FindOrLoadLinetype(strName, *pDatabase, idLinetype) != Acad::eOk) return 0;
    if (strName == g_pDashedLinetype) pDatabase->setLtscale(g_dDashedScale);
    return 1;
}

int SetCurrentLinetype(const CString& strName, AcDbDatabase* pDatabase) {
    pDatabase = OrWorking(pDatabase);
    AcDbObjectId idLinetype;
    if (!pDatabase || FindOrLoadLinetype(strName, *pDatabase, idLinetype) != Acad::eOk) return 0;
    if (idLinetype.isNull()) { // loaded just now
        const CDbOpen<AcDbLinetypeTable> pTable(pDatabase->linetypeTableId());
        if (!pTable || pTable->getAt(ToWide(strName), idLinetype) != Acad::eOk) return 0;
    }
    pDatabase->setCeltype(idLinetype);
    return 1;
}
