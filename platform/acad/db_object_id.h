#pragma once

#include "platform/acad/ac_array.h"
#include "platform/acad/adesk.h"

#include <compare>
#include <string>

class AcDbDatabase;
class AcDbObject;
struct CDbStub;

/// An object's number in its drawing, for as long as the drawing lives. 0 is no handle.
class AcDbHandle {
public:
    AcDbHandle() = default;
    explicit AcDbHandle(Adesk::UInt64 value)
        : m_nValue(value) {}
    Adesk::UInt64 Value() const { return m_nValue; }
    bool isNull() const { return m_nValue == 0; }
    std::string Hex() const; ///< upper case, no leading zeros
    auto operator<=>(const AcDbHandle&) const = default;

private:
    Adesk::UInt64 m_nValue = 0;
};

/// Names an object of an open drawing. A null id names none. An id lives as long as its drawing; a null check
/// is all that may be asked of one that outlived it.
class AcDbObjectId {
public:
    AcDbObjectId() = default;
    explicit AcDbObjectId(CDbStub* pStub)
        : m_pStub(pStub) {}

    bool isNull() const { return m_pStub == nullptr; }
    void setNull() { m_pStub = nullptr; }
    AcDbHandle handle() const; ///< null handle for a null id
    AcDbDatabase* database() const;
    bool isErased() const;

    bool operator==(const AcDbObjectId&) const = default;
    CDbStub* Stub() const { return m_pStub; } ///< for the drawing database only

    static const AcDbObjectId kNull;

private:
    CDbStub* m_pStub = nullptr;
};

using AcDbObjectIdArray = AcArray<AcDbObjectId>;
