#pragma once

#include "platform/acad/db_object_id.h"
#include "platform/acad/db_xdata.h"
#include "platform/acad/error_status.h"
#include "platform/acad/rx_class.h"

#include <memory>
#include <vector>

class AcDbDwgFiler;

namespace AcDb {
enum OpenMode { kForRead = 0, kForWrite = 1, kForNotify = 2 };
enum SaveType { kR13Save = 0, kR14Save = 1 };
} // namespace AcDb

/// Memory of drawing objects: module and host share one heap, so this only marks the intent.
class AcHeapOperators {};

/// An object of a drawing. It is free (made with new, owned by its maker), or stored in a database, and then
/// open for reading (by any number), open for writing (by one), open for notification, or closed.
class AcDbObject : public AcRxObject {
public:
    ACRX_DECLARE_MEMBERS(AcDbObject)
    AcDbObject() = default;
    ~AcDbObject() override = default;

    AcDbObjectId objectId() const { return m_id; } ///< null while free
    AcDbObjectId ownerId() const { return m_idOwner; }
    AcDbHandle handle() const { return m_id.handle(); }
    AcDbDatabase* database() const { return m_id.database(); }

    /// Ends the caller's opening. A write-closing tells the persistent reactors and the host. eNoDatabase for
    /// a free object, eNotOpenForRead for a closed one.
    Acad::ErrorStatus close();
    Acad::ErrorStatus upgradeOpen();   ///< for read -> for write
    Acad::ErrorStatus downgradeOpen(); ///< for write -> for read
    /// Marks (or with false unmarks) a stored object as erased; it must be open for writing.
    virtual Acad::ErrorStatus erase(bool bErasing = true);

    bool isErased() const;
    bool isReadEnabled() const;
    bool isWriteEnabled() const;
    bool isNotifyEnabled() const;
    bool isUndoing() const; ///< what happens to it now is an undo or a redo

    /// Open for notify -> for write and back. wasWritable tells that it was open for writing besides, and is
    /// handed to the way back. eWasOpenForRead when somebody reads it; eNotOpenForNotify.
    Acad::ErrorStatus upgradeFromNotify(Adesk::Boolean& wasWritable);
    Acad::ErrorStatus downgradeToNotify(Adesk::Boolean wasWritable);

    /// Objects that are told of changes to this one, from one session to the next. eKeyNotFound.
    Acad::ErrorStatus addPersistentReactor(AcDbObjectId idReactor);
    Acad::ErrorStatus removePersistentReactor(AcDbObjectId idReactor);
    bool hasPersistentReactor(AcDbObjectId idReactor) const;
    const std::vector<AcDbObjectId>& PersistentReactors() const { return m_arReactors; }

    /// The extended data of one application, or of all for null: see CXData::Chain.
    resbuf* xData(const ACHAR* appName = nullptr) const;
    Acad::ErrorStatus setXData(const resbuf* pChain); ///< see CXData::Put
    const CXData& XData() const { return m_xdata; }
    void PutXData(CXDataOfApp app); ///< see CXData::PutApp

    /// A free object of the same class, for a copy; null when the class makes none.
    virtual std::unique_ptr<AcDbObject> NewOfSameClass() const;

    // What a persistent reactor is told, opened for notify; the notifier is open for reading then.
    virtual void modified(const AcDbObject*) {}                           ///< it was closed after a change
    virtual void erased(const AcDbObject*, Adesk::Boolean /*bErased*/) {} ///< or brought back

    /// Writes or reads the object's record, whatever its class.
    Acad::ErrorStatus dwgOut(AcDbDwgFiler* pFiler) const { return dwgOutFields(pFiler); }
    Acad::ErrorStatus dwgIn(AcDbDwgFiler* pFiler) { return dwgInFields(pFiler); }
    /// A class's part of the record: it runs its base's first, and ends with its status if that is not eOk.
    virtual Acad::ErrorStatus dwgOutFields(AcDbDwgFiler* pFiler) const;
    virtual Acad::ErrorStatus dwgInFields(AcDbDwgFiler* pFiler);

    /// What every reading operation starts with: the object is free or open in some way. A violation is a
    /// defect of the caller and stops the program with a message, as in the CAD program.
    void assertReadEnabled() const;
    /// What every changing operation starts with; the object is free or open for writing.
    void assertWriteEnabled(Adesk::Boolean autoUndo = Adesk::kTrue,
                            Adesk::Boolean recordModified = Adesk::kTrue);

private:
    friend class AcDbDatabase;
    friend class CUndoLog;
    void EndWriting();
    void TellReactors();

    AcDbObjectId m_id, m_idOwner;
    std::vector<AcDbObjectId> m_arReactors;
    CXData m_xdata;
};

/// Opens a stored object. eNullObjectId, eWasErased (unless asked for erased ones), eWasOpenFor...,
/// eNotThatKindOfClass.
Acad::ErrorStatus acdbOpenAcDbObject(AcDbObject*& pObject, AcDbObjectId id, AcDb::OpenMode mode,
                                     bool bOpenErased = false);

/// The same for one class; the pointer is null unless eOk comes back.
template <class T>
Acad::ErrorStatus acdbOpenObject(T*& pObject, AcDbObjectId id, AcDb::OpenMode mode = AcDb::kForRead,
                                 bool bOpenErased = false) {
    pObject = nullptr;
    AcDbObject* pAny = nullptr;
    const Acad::ErrorStatus status = acdbOpenAcDbObject(pAny, id, mode, bOpenErased);
    if (status != Acad::eOk) return status;
    pObject = T::cast(pAny);
    if (pObject) return Acad::eOk;
    pAny->close();
    return Acad::eNotThatKindOfClass;
}

/// Opens for the length of a scope. Get() is null when the object could not be opened.
template <class T>
class CDbOpen {
public:
    explicit CDbOpen(AcDbObjectId id, AcDb::OpenMode mode = AcDb::kForRead) {
        m_status = acdbOpenObject(m_pObject, id, mode);
    }
    ~CDbOpen() {
        if (m_pObject) m_pObject->close();
    }
    CDbOpen(const CDbOpen&) = delete;
    CDbOpen& operator=(const CDbOpen&) = delete;
    T* Get() const { return m_pObject; }
    T* operator->() const { return m_pObject; }
    explicit operator bool() const { return m_pObject != nullptr; }
    Acad::ErrorStatus Status() const { return m_status; }

private:
    T* m_pObject = nullptr;
    Acad::ErrorStatus m_status = Acad::eOk;
};
