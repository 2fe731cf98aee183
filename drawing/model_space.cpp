#include "drawing/model_space.h"

#include "drawing/working_drawing.h"
#include "platform/windows/code_page.h"

int AppendToModelSpace(AcDbDatabase*& pDatabase, AcDbObjectId& idEntity, AcDbEntity* pEntity) {
    pDatabase = OrWorking(pDatabase);
    if (!pDatabase || !pEntity) return 0;
    AcDbBlockTable* pTable = nullptr;
    if (pDatabase->getBlockTable(pTable, AcDb::kForRead) != Acad::eOk) return 0;
    AcDbBlockTableRecord* pSpace = nullptr;
    const Acad::ErrorStatus found = pTable->getAt(ACDB_MODEL_SPACE, pSpace, AcDb::kForWrite);
    pTable->close();
    if (found != Acad::eOk) return 0;
    const Acad::ErrorStatus appended = pSpace->appendAcDbEntity(idEntity, pEntity);
    pSpace->close();
    if (appended != Acad::eOk) return 0;
    return pEntity->close() == Acad::eOk;
}

void AddToModelSpace(AcDbEntity* pEntity, AcDbObjectId& idEntity, AcDbDatabase* pDatabase) {
    idEntity.setNull();
    AppendToModelSpace(pDatabase, idEntity, pEntity);
}

void AddToModelSpace(AcDbEntity* pEntity, AcDbObjectId& idEntity) {
    AddToModelSpace(pEntity, idEntity, nullptr);
}

int IsCurrentDrawing(const CString& strFile) {
    const AcDbDatabase* const pDatabase = acdbHostApplicationServices()->workingDatabase();
    std::wstring strCurrent;
    if (!pDatabase || pDatabase->getFilename(strCurrent) != Acad::eOk) return 0;
    const auto plain = [](CString strPath) {
        strPath.Replace('/', '\\');
        return strPath.MakeUpper();
    };
    return plain(strFile) == plain(GbkFromWide(strCurrent.c_str())) ? 1 : 0;
}
