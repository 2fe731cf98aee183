#pragma once

#include "platform/acad/db_object.h"

#include <map>
#include <string>

/// Named objects of a drawing, which the dictionary owns. Names compare without case; entries stand in the
/// order of their names. An erased object has no entry.
class AcDbDictionary : public AcDbObject {
public:
    ACRX_DECLARE_MEMBERS(AcDbDictionary)
    /// The object of that name. eKeyNotFound, and then id is as it was.
    Acad::ErrorStatus getAt(const ACHAR* name, AcDbObjectId& id) const;
    template <class T>
    Acad::ErrorStatus getAt(const ACHAR* name, T*& pObject, AcDb::OpenMode mode) const {
        AcDbObjectId id;
        const Acad::ErrorStatus status = getAt(name, id);
        return status == Acad::eOk ? acdbOpenObject(pObject, id, mode) : status;
    }
    /// The name of an object. eKeyNotFound.
    Acad::ErrorStatus nameAt(AcDbObjectId id, std::wstring& name) const;
    bool has(const ACHAR* name) const;
    bool has(AcDbObjectId id) const;
    unsigned int numEntries() const;
    /// The entries as name and object.
    std::vector<std::pair<std::wstring, AcDbObjectId>> Entries() const;

    /// Makes a free object part of the drawing under a name; it is open for writing afterwards. An object
    /// that stands there already is erased. eInvalidInput for no name, eNullObjectPointer, eAlreadyInDb,
    /// eNoDatabase for a free dictionary, or why the former object cannot be erased; then the new one stays
    /// the caller's.
    Acad::ErrorStatus setAt(const ACHAR* name, AcDbObject* pObject, AcDbObjectId& id);
    /// Enters an object of the drawing, whatever its owner, as a file has it. eInvalidInput for no name.
    Acad::ErrorStatus Enter(const ACHAR* name, AcDbObjectId id);
    /// Takes an entry out. The object is not erased. eKeyNotFound.
    Acad::ErrorStatus remove(const ACHAR* name);
    Acad::ErrorStatus remove(const ACHAR* name, AcDbObjectId& id); ///< the same, with the object's id
    Acad::ErrorStatus remove(AcDbObjectId id);

    /// Whether the dictionary owns its objects hard: such objects are kept for its sake alone.
    bool isTreatElementsAsHard() const { return m_bHard; }
    void setTreatElementsAsHard(Adesk::Boolean hard);
    Acad::ErrorStatus dwgOutFields(AcDbDwgFiler* pFiler) const override;
    Acad::ErrorStatus dwgInFields(AcDbDwgFiler* pFiler) override;

private:
    struct CEntry {
        std::wstring m_strName; ///< as it was given
        AcDbObjectId m_id;
    };
    using CEntries = std::map<std::wstring, CEntry>; ///< by the name in upper case
    CEntries::const_iterator Find(const ACHAR* name) const;
    CEntries::const_iterator Find(AcDbObjectId id) const;

    CEntries m_mapEntries;
    bool m_bHard = false;
};
