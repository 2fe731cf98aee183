#pragma once
// Symbol tables of a drawing: named records. Names compare without case.

#include "platform/acad/db_object.h"

#include <string>
#include <unordered_map>
#include <vector>

class AcDbSymbolTableRecord : public AcDbObject, public AcHeapOperators {
public:
    ACRX_DECLARE_MEMBERS(AcDbSymbolTableRecord)
    const std::wstring& Name() const { return m_strName; }
    Acad::ErrorStatus getName(std::wstring& name) const;
    Acad::ErrorStatus setName(const ACHAR* name);
    Acad::ErrorStatus dwgOutFields(AcDbDwgFiler* pFiler) const override;
    Acad::ErrorStatus dwgInFields(AcDbDwgFiler* pFiler) override;

private:
    void Rename(std::wstring strName);

    std::wstring m_strName;
};

class AcDbSymbolTable : public AcDbObject {
public:
    ACRX_DECLARE_MEMBERS(AcDbSymbolTable)
    /// The id of the record of that name. eKeyNotFound, and then id is as it was.
    Acad::ErrorStatus getAt(const ACHAR* name, AcDbObjectId& id) const;
    template <class T>
    Acad::ErrorStatus getAt(const ACHAR* name, T*& pRecord, AcDb::OpenMode mode) const {
        AcDbObjectId id;
        const Acad::ErrorStatus status = getAt(name, id);
        return status == Acad::eOk ? acdbOpenObject(pRecord, id, mode) : status;
    }
    bool has(const ACHAR* name) const;
    /// Makes the record part of the drawing; it is open for writing afterwards. eDuplicateKey, eAlreadyInDb,
    /// eInvalidInput for a record without a name; then it stays the caller's.
    Acad::ErrorStatus add(AcDbObjectId& id, AcDbSymbolTableRecord* pRecord);
    Acad::ErrorStatus add(AcDbSymbolTableRecord* pRecord);
    const std::vector<AcDbObjectId>& RecordIds() const { return m_arIds; } ///< in order of adding
    /// The record of that name, in whatever state the table is, for looking it up in passing. Null when there
    /// is none.
    AcDbObjectId Find(const ACHAR* name) const;

private:
    friend class AcDbSymbolTableRecord;
    void Renamed(AcDbObjectId id, const std::wstring& strFormer, const std::wstring& strName);

    std::vector<AcDbObjectId> m_arIds;
    /// Each record once, by its name in upper case. Erased ones stay, since an undo brings them back, so
    /// several may have one name.
    std::unordered_multimap<std::wstring, AcDbObjectId> m_mapByName;
};

/// The records of a table in order of adding, erased ones left out; none of a table that somebody changes.
std::vector<AcDbObjectId> LivingRecords(AcDbObjectId idTable);

inline constexpr const ACHAR* ACDB_MODEL_SPACE = L"*Model_Space";
inline constexpr const ACHAR* ACDB_PAPER_SPACE = L"*Paper_Space";
