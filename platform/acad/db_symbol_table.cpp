#include "platform/acad/db_symbol_table.h"

#include "platform/acad/db_database.h"
#include "platform/acad/db_filer.h"
#include "platform/acad/db_stub.h"
#include "platform/acad/filed_text.h"
#include "platform/acad/wide_names.h"

#include <algorithm>
#include <utility>

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
    Rename(name);
    return Acad::eOk;
}

Acad::ErrorStatus AcDbSymbolTableRecord::dwgOutFields(AcDbDwgFiler* pFiler) const {
    if (const Acad::ErrorStatus status = AcDbObject::dwgOutFields(pFiler); status != Acad::eOk) return status;
    return pFiler->writeString(m_strName.c_str());
}

Acad::ErrorStatus AcDbSymbolTableRecord::dwgInFields(AcDbDwgFiler* pFiler) {
    if (const Acad::ErrorStatus status = AcDbObject::dwgInFields(pFiler); status != Acad::eOk) return status;
    std::wstring strName;
    const Acad::ErrorStatus status = ReadText(pFiler, strName);
    Rename(std::move(strName));
    return status;
}

void AcDbSymbolTableRecord::Rename(std::wstring strName) {
    const std::wstring strFormer = std::exchange(m_strName, std::move(strName));
    auto* const pTable = PeekObject<AcDbSymbolTable>(ownerId());
    if (pTable) pTable->Renamed(objectId(), strFormer, m_strName);
}

void AcDbSymbolTable::Renamed(AcDbObjectId id, const std::wstring& strFormer, const std::wstring& strName) {
    if (SameName(strFormer, strName)) return;
    const auto [first, last] = m_mapByName.equal_range(UpperName(strFormer));
    const auto place = std::find_if(first, last, [id](const auto& entry) { return entry.second == id; });
    if (place == last) return; // a record that another table took in
    auto node = m_mapByName.extract(place);
    node.key() = UpperName(strName);
    m_mapByName.insert(std::move(node));
}

AcDbObjectId AcDbSymbolTable::Find(const ACHAR* name) const {
    const auto [first, last] = m_mapByName.equal_range(UpperName(name));
    const auto found = std::find_if(first, last, [](const auto& entry) { return !entry.second.isErased(); });
    return found == last ? AcDbObjectId::kNull : found->second;
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
    if (status != Acad::eOk) return status;
    m_arIds.push_back(id);
    m_mapByName.emplace(UpperName(pRecord->Name()), id);
    return Acad::eOk;
}

Acad::ErrorStatus AcDbSymbolTable::add(AcDbSymbolTableRecord* pRecord) {
    AcDbObjectId id;
    return add(id, pRecord);
}

std::vector<AcDbObjectId> LivingRecords(AcDbObjectId idTable) {
    const CDbOpen<AcDbSymbolTable> table(idTable);
    if (!table) return {};
    std::vector<AcDbObjectId> ids = table->RecordIds();
    std::erase_if(ids, [](const AcDbObjectId& id) { return id.isErased(); });
    return ids;
}
