#include "platform/acad/free_copy.h"

#include "platform/acad/memory_filer.h"

std::unique_ptr<AcDbObject> CopyOfObject(const AcDbObject& source) {
    std::unique_ptr<AcDbObject> pCopy = source.NewOfSameClass();
    if (!pCopy) return nullptr;
    CDbRecord record = RecordOf(source, AcDb::kCopyFiler);
    for (CFiledId& reference : record.m_arIds)
        if (reference.IsOwnership()) reference.m_id.setNull();
    CRecordReader reader(AcDb::kCopyFiler, record);
    return pCopy->dwgIn(&reader) == Acad::eOk ? std::move(pCopy) : nullptr;
}
