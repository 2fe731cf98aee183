#pragma once
// How an object's record is written and read: typed values, one after the other, without names.

#include "platform/acad/db_object_id.h"
#include "platform/acad/error_status.h"
#include "platform/acad/geometry.h"

struct CDbRecord;

namespace AcDb {
/// What a record is written or read for.
enum FilerType {
    kFileFiler = 0, ///< a drawing file
    kCopyFiler = 1, ///< a copy in the same drawing
    kUndoFiler = 2,
    kDeepCloneFiler = 6,
    kWblockCloneFiler = 9, ///< a copy into another drawing
};
} // namespace AcDb

/// Writes or reads the values of a record. A reading that cannot give its value leaves a zero (empty text,
/// null id) and sets the status, which stays: an object's own reading goes on and looks at it where it must.
/// A reading filer refuses to write and a writing one to read, with eFilerError.
class AcDbDwgFiler {
public:
    AcDbDwgFiler() = default;
    AcDbDwgFiler(const AcDbDwgFiler&) = delete;
    AcDbDwgFiler& operator=(const AcDbDwgFiler&) = delete;
    virtual ~AcDbDwgFiler() = default;

    virtual AcDb::FilerType filerType() const = 0;
    virtual Acad::ErrorStatus filerStatus() const = 0;
    virtual void setFilerStatus(Acad::ErrorStatus status) = 0;
    virtual void resetFilerStatus() = 0;

    virtual Acad::ErrorStatus readBoolean(Adesk::Boolean* pValue) = 0;
    virtual Acad::ErrorStatus writeBoolean(Adesk::Boolean value) = 0;
    virtual Acad::ErrorStatus readInt8(Adesk::Int8* pValue) = 0;
    virtual Acad::ErrorStatus writeInt8(Adesk::Int8 value) = 0;
    virtual Acad::ErrorStatus readInt16(Adesk::Int16* pValue) = 0;
    virtual Acad::ErrorStatus writeInt16(Adesk::Int16 value) = 0;
    virtual Acad::ErrorStatus readUInt16(Adesk::UInt16* pValue) = 0;
    virtual Acad::ErrorStatus writeUInt16(Adesk::UInt16 value) = 0;
    virtual Acad::ErrorStatus readInt32(Adesk::Int32* pValue) = 0;
    virtual Acad::ErrorStatus writeInt32(Adesk::Int32 value) = 0;
    virtual Acad::ErrorStatus readDouble(double* pValue) = 0;
    virtual Acad::ErrorStatus writeDouble(double value) = 0;
    virtual Acad::ErrorStatus readPoint2d(AcGePoint2d* pValue) = 0;
    virtual Acad::ErrorStatus writePoint2d(const AcGePoint2d& value) = 0;
    virtual Acad::ErrorStatus readPoint3d(AcGePoint3d* pValue) = 0;
    virtual Acad::ErrorStatus writePoint3d(const AcGePoint3d& value) = 0;
    virtual Acad::ErrorStatus readVector3d(AcGeVector3d* pValue) = 0;
    virtual Acad::ErrorStatus writeVector3d(const AcGeVector3d& value) = 0;
    /// The text is made with acutNewString and the caller's to release with acutDelString; empty, never null,
    /// when none could be read.
    virtual Acad::ErrorStatus readString(ACHAR** pText) = 0;
    virtual Acad::ErrorStatus writeString(const ACHAR* text) = 0;
    /// length bytes as they are.
    virtual Acad::ErrorStatus readBytes(void* pBytes, Adesk::UInt32 length) = 0;
    virtual Acad::ErrorStatus writeBytes(const void* pBytes, Adesk::UInt32 length) = 0;
    /// All that follows in the record, for an object whose class is not known at present.
    virtual Acad::ErrorStatus readRest(CDbRecord* pRest) = 0;
    virtual Acad::ErrorStatus writeRest(const CDbRecord& rest) = 0;

    // References: a hard one keeps what it refers to in the drawing, a soft one does not; an owner's are
    // apart.
    virtual Acad::ErrorStatus readHardPointerId(AcDbObjectId* pId) = 0;
    virtual Acad::ErrorStatus writeHardPointerId(const AcDbObjectId& id) = 0;
    virtual Acad::ErrorStatus readSoftPointerId(AcDbObjectId* pId) = 0;
    virtual Acad::ErrorStatus writeSoftPointerId(const AcDbObjectId& id) = 0;
    virtual Acad::ErrorStatus readHardOwnershipId(AcDbObjectId* pId) = 0;
    virtual Acad::ErrorStatus writeHardOwnershipId(const AcDbObjectId& id) = 0;
    virtual Acad::ErrorStatus readSoftOwnershipId(AcDbObjectId* pId) = 0;
    virtual Acad::ErrorStatus writeSoftOwnershipId(const AcDbObjectId& id) = 0;
};
