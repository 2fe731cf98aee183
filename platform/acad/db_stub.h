#pragma once
// What a drawing knows of one of its objects. For the drawing database itself only.

#include "platform/acad/db_object.h"
#include "platform/acad/memory_filer.h"

#include <memory>
#include <optional>

struct CDbStub {
    AcDbDatabase* m_pDatabase = nullptr;
    AcDbHandle m_handle;
    std::unique_ptr<AcDbObject> m_pObject;
    int m_nReaders = 0;
    bool m_bWriting = false, m_bNotifying = false, m_bErased = false;
    bool m_bModified = false;          ///< changed in this opening
    bool m_bErasureChanged = false;    ///< erased or brought back in this opening
    bool m_bUndoing = false;           ///< an undo or redo is reading its record
    std::optional<CDbRecord> m_before; ///< as it was when opened for writing, while undo is recorded
    bool m_bNoted = false;             ///< stands in the drawing's list of changed entities

    bool IsOpen() const { return m_nReaders > 0 || m_bWriting || m_bNotifying; }
};

/// The object itself in whatever state it is, for looking something up in passing; null for a null id and for
/// an object of another class.
template <class T>
T* PeekObject(AcDbObjectId id) {
    return id.isNull() ? nullptr : T::cast(id.Stub()->m_pObject.get());
}

/// Whether an object of a drawing (null: a free one) may refer to a record, which is of class T:
/// eNotThatKindOfClass, also for a null id, eWrongDatabase.
template <class T>
Acad::ErrorStatus CheckRecord(AcDbObjectId idRecord, const AcDbDatabase* pDatabase) {
    if (!PeekObject<T>(idRecord)) return Acad::eNotThatKindOfClass;
    return pDatabase && idRecord.database() != pDatabase ? Acad::eWrongDatabase : Acad::eOk;
}
