#include "platform/acad/db_object.h"

#include "platform/acad/db_database.h"
#include "platform/acad/db_stub.h"
#include "platform/windows/host_assert.h"

#include <algorithm>

ACRX_DEFINE_ABSTRACT_MEMBERS(AcDbObject, AcRxObject)

namespace {

constexpr int g_nMaxReaders = 256;

Acad::ErrorStatus OpenForRead(CDbStub& stub) {
    if (stub.m_bWriting) return Acad::eWasOpenForWrite;
    if (stub.m_bNotifying) return Acad::eWasOpenForNotify;
    if (stub.m_nReaders >= g_nMaxReaders) return Acad::eAtMaxReaders;
    ++stub.m_nReaders;
    return Acad::eOk;
}

Acad::ErrorStatus OpenForWrite(CDbStub& stub) {
    if (stub.m_bWriting) return Acad::eWasOpenForWrite;
    if (stub.m_bNotifying) return Acad::eWasOpenForNotify;
    if (stub.m_nReaders) return Acad::eWasOpenForRead;
    stub.m_bWriting = true;
    stub.m_bModified = stub.m_bErasureChanged = false;
    stub.m_before.reset();
    if (stub.m_pDatabase->UndoLog().IsRecording())
        stub.m_before = RecordOf(*stub.m_pObject, AcDb::kUndoFiler);
    return Acad::eOk;
}

/// A notified object may be open in any other way besides.
Acad::ErrorStatus OpenForNotify(CDbStub& stub) {
    if (stub.m_bNotifying) return Acad::eWasOpenForNotify;
    stub.m_bNotifying = true;
    return Acad::eOk;
}

Acad::ErrorStatus Open(CDbStub& stub, AcDb::OpenMode mode) {
    switch (mode) {
    case AcDb::kForRead:
        return OpenForRead(stub);
    case AcDb::kForWrite:
        return OpenForWrite(stub);
    case AcDb::kForNotify:
        return OpenForNotify(stub);
    }
    return Acad::eInvalidInput;
}

} // namespace

Acad::ErrorStatus acdbOpenAcDbObject(AcDbObject*& pObject, AcDbObjectId id, AcDb::OpenMode mode,
                                     bool bOpenErased) {
    pObject = nullptr;
    if (id.isNull()) return Acad::eNullObjectId;
    CDbStub& stub = *id.Stub();
    if (stub.m_bErased && !bOpenErased) return Acad::eWasErased;
    const Acad::ErrorStatus status = Open(stub, mode);
    if (status == Acad::eOk) pObject = stub.m_pObject.get();
    return status;
}

void AcDbObject::EndWriting() {
    CDbStub& stub = *m_id.Stub();
    if (stub.m_before)
        stub.m_pDatabase->UndoLog().NoteChanged(stub, *std::exchange(stub.m_before, std::nullopt));
    stub.m_bWriting = false;
    // An entity is drawn anew after every opening for writing, since its class may have changed fields
    // without a word; a table or a record counts as changed only when it said so.
    if (stub.m_bModified || isKindOf(AcDbEntity::desc())) stub.m_pDatabase->NoteChanged(stub);
    TellReactors();
    stub.m_bModified = stub.m_bErasureChanged = false;
}

void AcDbObject::TellReactors() {
    CDbStub& stub = *m_id.Stub();
    if (m_arReactors.empty() || !(stub.m_bModified || stub.m_bErasureChanged)) return;
    ++stub.m_nReaders; // those told may look at it
    for (const AcDbObjectId& idReactor : std::vector<AcDbObjectId>(m_arReactors)) {
        AcDbObject* pReactor = nullptr;
        if (acdbOpenAcDbObject(pReactor, idReactor, AcDb::kForNotify) != Acad::eOk) continue;
        if (stub.m_bErasureChanged) pReactor->erased(this, stub.m_bErased);
        if (stub.m_bModified) pReactor->modified(this);
        pReactor->close();
    }
    --stub.m_nReaders;
}

Acad::ErrorStatus AcDbObject::close() {
    if (m_id.isNull()) return Acad::eNoDatabase;
    CDbStub& stub = *m_id.Stub();
    if (stub.m_bNotifying) {
        stub.m_bNotifying = false; // the last one opened is the first one closed
    } else if (stub.m_bWriting) {
        EndWriting();
    } else if (stub.m_nReaders) {
        --stub.m_nReaders;
    } else {
        return Acad::eNotOpenForRead;
    }
    return Acad::eOk;
}

Acad::ErrorStatus AcDbObject::upgradeOpen() {
    if (m_id.isNull()) return Acad::eNoDatabase;
    CDbStub& stub = *m_id.Stub();
    if (stub.m_bWriting) return Acad::eWasOpenForWrite;
    if (!stub.m_nReaders) return Acad::eNotOpenForRead;
    if (stub.m_bNotifying) return Acad::eWasOpenForNotify;
    if (stub.m_nReaders > 1) return Acad::eWasOpenForRead;
    stub.m_nReaders = 0;
    return OpenForWrite(stub);
}

Acad::ErrorStatus AcDbObject::downgradeOpen() {
    if (m_id.isNull()) return Acad::eNoDatabase;
    CDbStub& stub = *m_id.Stub();
    if (!stub.m_bWriting) return Acad::eNotOpenForWrite;
    EndWriting();
    stub.m_nReaders = 1;
    return Acad::eOk;
}

Acad::ErrorStatus AcDbObject::erase(bool bErasing) {
    if (m_id.isNull()) return Acad::eNoDatabase;
    CDbStub& stub = *m_id.Stub();
    if (!stub.m_bWriting) return Acad::eNotOpenForWrite;
    if (stub.m_bErased == bErasing) return Acad::eOk;
    stub.m_pDatabase->UndoLog().NoteErasure(stub);
    stub.m_bErased = bErasing;
    stub.m_bModified = stub.m_bErasureChanged = true;
    return Acad::eOk;
}

bool AcDbObject::isErased() const {
    return m_id.isErased();
}

bool AcDbObject::isReadEnabled() const {
    return m_id.isNull() || m_id.Stub()->IsOpen();
}

bool AcDbObject::isWriteEnabled() const {
    return m_id.isNull() || m_id.Stub()->m_bWriting;
}

bool AcDbObject::isNotifyEnabled() const {
    return !m_id.isNull() && m_id.Stub()->m_bNotifying;
}

bool AcDbObject::isUndoing() const {
    return !m_id.isNull() && m_id.Stub()->m_bUndoing;
}

Acad::ErrorStatus AcDbObject::upgradeFromNotify(Adesk::Boolean& wasWritable) {
    wasWritable = Adesk::kFalse;
    if (m_id.isNull()) return Acad::eNoDatabase;
    CDbStub& stub = *m_id.Stub();
    if (!stub.m_bNotifying) return Acad::eNotOpenForNotify;
    if (stub.m_nReaders) return Acad::eWasOpenForRead;
    wasWritable = stub.m_bWriting;
    if (!stub.m_bWriting) {
        stub.m_bNotifying = false;
        OpenForWrite(stub);
        stub.m_bNotifying = true;
    }
    return Acad::eOk;
}

Acad::ErrorStatus AcDbObject::downgradeToNotify(Adesk::Boolean wasWritable) {
    if (m_id.isNull()) return Acad::eNoDatabase;
    CDbStub& stub = *m_id.Stub();
    if (!stub.m_bNotifying) return Acad::eNotOpenForNotify;
    if (!stub.m_bWriting) return Acad::eNotOpenForWrite;
    if (!wasWritable) EndWriting();
    return Acad::eOk;
}

Acad::ErrorStatus AcDbObject::addPersistentReactor(AcDbObjectId idReactor) {
    assertWriteEnabled();
    if (idReactor.isNull()) return Acad::eNullObjectId;
    if (database() && idReactor.database() != database()) return Acad::eWrongDatabase;
    if (!hasPersistentReactor(idReactor)) m_arReactors.push_back(idReactor);
    return Acad::eOk;
}

Acad::ErrorStatus AcDbObject::removePersistentReactor(AcDbObjectId idReactor) {
    assertWriteEnabled();
    return std::erase(m_arReactors, idReactor) ? Acad::eOk : Acad::eKeyNotFound;
}

bool AcDbObject::hasPersistentReactor(AcDbObjectId idReactor) const {
    return std::find(m_arReactors.begin(), m_arReactors.end(), idReactor) != m_arReactors.end();
}

resbuf* AcDbObject::xData(const ACHAR* appName) const {
    assertReadEnabled();
    return m_xdata.Chain(appName);
}

Acad::ErrorStatus AcDbObject::setXData(const resbuf* pChain) {
    assertWriteEnabled();
    return m_xdata.Put(pChain, database());
}

void AcDbObject::PutXData(CXDataOfApp app) {
    assertWriteEnabled();
    m_xdata.PutApp(std::move(app));
}

Acad::ErrorStatus AcDbObject::dwgOutFields(AcDbDwgFiler* pFiler) const {
    assertReadEnabled();
    pFiler->writeInt32(static_cast<Adesk::Int32>(m_arReactors.size()));
    for (const AcDbObjectId& idReactor : m_arReactors)
        pFiler->writeSoftPointerId(idReactor);
    m_xdata.Write(pFiler);
    return pFiler->filerStatus();
}

Acad::ErrorStatus AcDbObject::dwgInFields(AcDbDwgFiler* pFiler) {
    assertWriteEnabled();
    Adesk::Int32 nReactors = 0;
    pFiler->readInt32(&nReactors);
    m_arReactors.clear();
    for (Adesk::Int32 i = 0; i < nReactors; ++i) {
        AcDbObjectId idReactor;
        if (pFiler->readSoftPointerId(&idReactor) != Acad::eOk) break;
        if (!idReactor.isNull()) m_arReactors.push_back(idReactor);
    }
    m_xdata.Read(pFiler);
    return pFiler->filerStatus();
}

std::unique_ptr<AcDbObject> AcDbObject::NewOfSameClass() const {
    return std::unique_ptr<AcDbObject>(static_cast<AcDbObject*>(isA()->create()));
}

void AcDbObject::assertReadEnabled() const {
    HOST_ASSERT(isReadEnabled(), "an object that is read is free or open");
}

void AcDbObject::assertWriteEnabled(Adesk::Boolean, Adesk::Boolean recordModified) {
    HOST_ASSERT(isWriteEnabled(), "an object that is changed is free or open for writing");
    if (recordModified && !m_id.isNull()) m_id.Stub()->m_bModified = true;
}
