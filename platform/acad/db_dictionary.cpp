#include "platform/acad/db_dictionary.h"

#include "platform/acad/db_database.h"
#include "platform/acad/db_filer.h"
#include "platform/acad/filed_text.h"
#include "platform/acad/wide_names.h"

#include <algorithm>

ACRX_DEFINE_MEMBERS(AcDbDictionary, AcDbObject, L"DICTIONARY")

AcDbDictionary::CEntries::const_iterator AcDbDictionary::Find(const ACHAR* name) const {
    assertReadEnabled();
    const auto found = name ? m_mapEntries.find(UpperName(name)) : m_mapEntries.end();
    return found != m_mapEntries.end() && found->second.m_id.isErased() ? m_mapEntries.end() : found;
}

AcDbDictionary::CEntries::const_iterator AcDbDictionary::Find(AcDbObjectId id) const {
    assertReadEnabled();
    return std::find_if(m_mapEntries.begin(), m_mapEntries.end(),
                        [&](const auto& entry) { return entry.second.m_id == id && !id.isErased(); });
}

Acad::ErrorStatus AcDbDictionary::getAt(const ACHAR* name, AcDbObjectId& id) const {
    const auto found = Find(name);
    if (found == m_mapEntries.end()) return Acad::eKeyNotFound;
    id = found->second.m_id;
    return Acad::eOk;
}

Acad::ErrorStatus AcDbDictionary::nameAt(AcDbObjectId id, std::wstring& name) const {
    const auto found = Find(id);
    if (found == m_mapEntries.end()) return Acad::eKeyNotFound;
    name = found->second.m_strName;
    return Acad::eOk;
}

bool AcDbDictionary::has(const ACHAR* name) const {
    return Find(name) != m_mapEntries.end();
}

bool AcDbDictionary::has(AcDbObjectId id) const {
    return Find(id) != m_mapEntries.end();
}

unsigned int AcDbDictionary::numEntries() const {
    return static_cast<unsigned int>(Entries().size());
}

std::vector<std::pair<std::wstring, AcDbObjectId>> AcDbDictionary::Entries() const {
    assertReadEnabled();
    std::vector<std::pair<std::wstring, AcDbObjectId>> entries;
    for (const auto& [key, entry] : m_mapEntries)
        if (!entry.m_id.isErased()) entries.emplace_back(entry.m_strName, entry.m_id);
    return entries;
}

Acad::ErrorStatus AcDbDictionary::setAt(const ACHAR* name, AcDbObject* pObject, AcDbObjectId& id) {
    assertWriteEnabled();
    if (!name || !*name) return Acad::eInvalidInput;
    if (!pObject) return Acad::eNullObjectPointer;
    if (!pObject->objectId().isNull()) return Acad::eAlreadyInDb;
    if (!database()) return Acad::eNoDatabase;
    if (const auto former = Find(name); former != m_mapEntries.end()) {
        const CDbOpen<AcDbObject> object(former->second.m_id, AcDb::kForWrite);
        if (!object) return object.Status();
        object->erase();
    }
    const Acad::ErrorStatus status = database()->AddObject(id, pObject, objectId());
    if (status == Acad::eOk) m_mapEntries[UpperName(name)] = {name, id};
    return status;
}

Acad::ErrorStatus AcDbDictionary::Enter(const ACHAR* name, AcDbObjectId id) {
    assertWriteEnabled();
    if (!name || !*name) return Acad::eInvalidInput;
    m_mapEntries[UpperName(name)] = {name, id};
    return Acad::eOk;
}

Acad::ErrorStatus AcDbDictionary::remove(const ACHAR* name) {
    AcDbObjectId id;
    return remove(name, id);
}

Acad::ErrorStatus AcDbDictionary::remove(const ACHAR* name, AcDbObjectId& id) {
    assertWriteEnabled();
    const auto found = Find(name);
    if (found == m_mapEntries.end()) return Acad::eKeyNotFound;
    id = found->second.m_id;
    m_mapEntries.erase(found);
    return Acad::eOk;
}

Acad::ErrorStatus AcDbDictionary::remove(AcDbObjectId id) {
    assertWriteEnabled();
    const auto found = Find(id);
    if (found == m_mapEntries.end()) return Acad::eKeyNotFound;
    m_mapEntries.erase(found);
    return Acad::eOk;
}

void AcDbDictionary::setTreatElementsAsHard(Adesk::Boolean hard) {
    assertWriteEnabled();
    m_bHard = hard != Adesk::kFalse;
}

// An entry whose object is erased is part of the record: an undo brings the object back, and nothing else.
Acad::ErrorStatus AcDbDictionary::dwgOutFields(AcDbDwgFiler* pFiler) const {
    if (const Acad::ErrorStatus status = AcDbObject::dwgOutFields(pFiler); status != Acad::eOk) return status;
    pFiler->writeBoolean(m_bHard);
    pFiler->writeInt32(static_cast<Adesk::Int32>(m_mapEntries.size()));
    for (const auto& [key, entry] : m_mapEntries) {
        pFiler->writeString(entry.m_strName.c_str());
        m_bHard ? pFiler->writeHardOwnershipId(entry.m_id) : pFiler->writeSoftOwnershipId(entry.m_id);
    }
    return pFiler->filerStatus();
}

Acad::ErrorStatus AcDbDictionary::dwgInFields(AcDbDwgFiler* pFiler) {
    if (const Acad::ErrorStatus status = AcDbObject::dwgInFields(pFiler); status != Acad::eOk) return status;
    Adesk::Boolean bHard = Adesk::kFalse;
    Adesk::Int32 nEntries = 0;
    pFiler->readBoolean(&bHard);
    m_bHard = bHard != Adesk::kFalse;
    pFiler->readInt32(&nEntries);
    m_mapEntries.clear();
    for (Adesk::Int32 i = 0; i < nEntries; ++i) {
        CEntry entry;
        ReadText(pFiler, entry.m_strName);
        m_bHard ? pFiler->readHardOwnershipId(&entry.m_id) : pFiler->readSoftOwnershipId(&entry.m_id);
        if (pFiler->filerStatus() != Acad::eOk) break;
        if (!entry.m_id.isNull()) m_mapEntries[UpperName(entry.m_strName)] = entry;
    }
    return pFiler->filerStatus();
}
