#include "platform/acad/db_symbol_table.h"

#include "platform/acad/db_database.h"
#include "platform/acad/db_filer.h"
#include "platform/acad/db_stub.h"
#include "platform/acad/filed_text.h"
#include "platform/acad/wide_names.h"

#include <algorithm>

ACRX_DEFINE_ABSTRACT_MEMBERS(AcDbSymbolTableRecord, AcDbObject)
ACRX_DEFINE_ABSTRACT_MEMBERS(AcDbSymbolTable, AcDbObject)

Acad::ErrorStatus AcDbSymbolTableRecord::getName(std::wstring& name) const {
    assertReadEnabled();
    name = m_strName;
    return Acad::eOk;
}

Acad::ErrorStatus AcDbSymbolTableRecord::setName(const ACHAR* name) {
    assertWriteEnabled();
    if (!name || !*name) return Acad::eInvalidInput;
    if (const auto* const pTable = PeekObject<AcDbSymbolTable>(ownerId())) {
        const AcDbObjectId idOther = pTable->Find(name);
        if (!idOther.isNull() && idOther != objectId()) return Acad::eDuplicateKey;
    }
    m_strName = name;
    return Acad::eOk;
}

Acad::ErrorStatus AcDbSymbolTableRecord::dwgOutFields(AcDbDwgFiler* pFiler) const {
    if (const Acad::ErrorStatus status = AcDbObject::dwgOutFields(pFiler); status != Acad::eOk) return status;
    return pFiler->writeString(m_strName.c_str());
}

Acad::ErrorStatus AcDbSymbolTableRecord::dwgInFields(AcDbDwgFiler* pFiler) {
    if (const Acad::ErrorStatus status = AcDbObject::dwgInFields(pFiler); status != Acad::eOk) return status;
    return ReadText(pFiler, m_strName);
}

AcDbObjectId AcDbSymbolTable::Find(const ACHAR* name) const {
    for (const AcDbObjectId& id : m_arIds) {
        const auto* const pRecord = PeekObject<AcDbSymbolTableRecord>(id);
        if (!id.isErased() && SameName(pRecord->Name(), name)) return id;
    }
    return AcDbObjectId::kNull;
}

Acad::ErrorStatus AcDbSymbolTable::getAt(const ACHAR* name, AcDbObjectId& id) const {
    assertReadEnabled();
    const AcDbObjectId idFound = name ? Find(name) : AcDbObjectId::kNull;
    if (idFound.isNull()) return Acad::eKeyNotFound;
    id = idFound;
    return Acad::eOk;
}

bool AcDbSymbolTable::has(const ACHAR* name) const {
    assertReadEnabled();
    return name && !Find(name).isNull();
}

Acad::ErrorStatus AcDbSymbolTable::add(AcDbObjectId& id, AcDbSymbolTableRecord* pRecord) {
    assertWriteEnabled();
    if (!pRecord) return Acad::eNullObjectPointer;
    if (!pRecord->objectId().isNull()) return Acad::eAlreadyInDb;
    if (!database()) return Acad::eNoDatabase;
    if (pRecord->Name().empty()) return Acad::eInvalidInput;
    if (!Find(pRecord->Name().c_str()).isNull()) return Acad::eDuplicateKey;
    const Acad::ErrorStatus status = database()->AddObject(id, pRecord, objectId());
    if (status == Acad::eOk) m_arIds.push_back(id);
    return status;
}

Acad::ErrorStatus AcDbSymbolTable::add(AcDbSymbolTableRecord* pRecord) {
    AcDbObjectId id;
    return add(id, pRecord);
}
