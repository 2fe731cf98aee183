#include "drawing/layers.h"

#include "commands/text_conversion.h"
#include "drawing/working_drawing.h"
#include "platform/acad/editor.h"

Acad::ErrorStatus LayerIdByName(const CString& strName, AcDbObjectId& idLayer, AcDbDatabase* pDatabase) {
    pDatabase = OrWorking(pDatabase);
    if (!pDatabase) return Acad::eNoDatabase;
    const CDbOpen<AcDbLayerTable> pTable(pDatabase->layerTableId());
    return pTable ? pTable->getAt(ToWide(strName), idLayer) : pTable.Status();
}

int SetLayerZeroLinetype(const CString& strName) {
    AcDbDatabase* const pDatabase = OrWorking(nullptr);
    AcDbObjectId idLayer;
    if (!pDatabase || LayerIdByName("0", idLayer, pDatabase) != Acad::eOk) return 0;
    AcDbObjectId idLinetype;
    const CDbOpen<AcDbLinetypeTable> pLinetypes(pDatabase->linetypeTableId());
    if (pLinetypes && pLinetypes->getAt(ToWide(strName), idLinetype) != Acad::eOk) {
        acutPrintf(L"\nUnable to find DASHED linetype. Using CONTINUOUS");
        pLinetypes->getAt(L"CONTINUOUS", idLinetype);
    }
    const CDbOpen<AcDbLayerTableRecord> pLayer(idLayer, AcDb::kForWrite);
    return pLayer && pLayer->setLinetypeObjectId(idLinetype) == Acad::eOk;
}
