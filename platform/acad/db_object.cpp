#include "platform/acad/db_object.h"

#include "platform/acad/db_database.h"
#include "platform/acad/db_stub.h"
#include "platform/windows/host_assert.h"

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
    stub.m_bModified = false;
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
    stub.m_bWriting = false;
    // An entity counts as changed by every opening for writing, since its class may have changed fields
    // without a word; a table or a record only when it said so.
    if (stub.m_bModified || isKindOf(AcDbEntity::desc())) stub.m_pDatabase->NoteChanged(stub);
    stub.m_bModified = false;
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
    stub.m_bErased = bErasing;
    stub.m_bModified = true;
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

void AcDbObject::assertReadEnabled() const {
    HOST_ASSERT(isReadEnabled(), "an object that is read is free or open");
}

void AcDbObject::assertWriteEnabled(Adesk::Boolean, Adesk::Boolean recordModified) {
    HOST_ASSERT(isWriteEnabled(), "an object that is changed is free or open for writing");
    if (recordModified && !m_id.isNull()) m_id.Stub()->m_bModified = true;
}
