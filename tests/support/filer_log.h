#pragma once
// A filer that notes the kinds of the values it is given, for tests of a record's order.

#include "platform/acad/memory_filer.h"

#include <string>
#include <vector>

/// Notes one word a value: "Point3d", "Int16", ... with the numbers and texts behind it.
class CFilerLog final : public AcDbDwgFiler {
public:
    const std::vector<std::string>& Words() const { return m_arWords; }

    AcDb::FilerType filerType() const override { return AcDb::kFileFiler; }
    Acad::ErrorStatus filerStatus() const override { return m_status; }
    void setFilerStatus(Acad::ErrorStatus status) override { m_status = status; }
    void resetFilerStatus() override { m_status = Acad::eOk; }

    Acad::ErrorStatus writeBoolean(Adesk::Boolean value) override { return Note("Boolean", value); }
    Acad::ErrorStatus writeInt8(Adesk::Int8 value) override { return Note("Int8", value); }
    Acad::ErrorStatus writeInt16(Adesk::Int16 value) override { return Note("Int16", value); }
    Acad::ErrorStatus writeUInt16(Adesk::UInt16 value) override { return Note("UInt16", value); }
    Acad::ErrorStatus writeInt32(Adesk::Int32 value) override { return Note("Int32", value); }
    Acad::ErrorStatus writeDouble(double value) override { return Note("Double", value); }
    Acad::ErrorStatus writePoint2d(const AcGePoint2d& value) override { return Note("Point2d", value.x); }
    Acad::ErrorStatus writePoint3d(const AcGePoint3d& value) override { return Note("Point3d", value.x); }
    Acad::ErrorStatus writeVector3d(const AcGeVector3d& value) override { return Note("Vector3d", value.x); }
    Acad::ErrorStatus writeString(const ACHAR* text) override;
    Acad::ErrorStatus writeBytes(const void*, Adesk::UInt32 length) override { return Note("Bytes", length); }
    Acad::ErrorStatus writeRest(const CDbRecord&) override { return Note("Rest"); }
    Acad::ErrorStatus writeHardPointerId(const AcDbObjectId&) override { return Note("HardPointer"); }
    Acad::ErrorStatus writeSoftPointerId(const AcDbObjectId&) override { return Note("SoftPointer"); }
    Acad::ErrorStatus writeHardOwnershipId(const AcDbObjectId&) override { return Note("HardOwnership"); }
    Acad::ErrorStatus writeSoftOwnershipId(const AcDbObjectId&) override { return Note("SoftOwnership"); }

    // Nothing is read from a log.
    Acad::ErrorStatus readBoolean(Adesk::Boolean*) override { return Acad::eFilerError; }
    Acad::ErrorStatus readInt8(Adesk::Int8*) override { return Acad::eFilerError; }
    Acad::ErrorStatus readInt16(Adesk::Int16*) override { return Acad::eFilerError; }
    Acad::ErrorStatus readUInt16(Adesk::UInt16*) override { return Acad::eFilerError; }
    Acad::ErrorStatus readInt32(Adesk::Int32*) override { return Acad::eFilerError; }
    Acad::ErrorStatus readDouble(double*) override { return Acad::eFilerError; }
    Acad::ErrorStatus readPoint2d(AcGePoint2d*) override { return Acad::eFilerError; }
    Acad::ErrorStatus readPoint3d(AcGePoint3d*) override { return Acad::eFilerError; }
    Acad::ErrorStatus readVector3d(AcGeVector3d*) override { return Acad::eFilerError; }
    Acad::ErrorStatus readString(ACHAR** pText) override;
    Acad::ErrorStatus readBytes(void*, Adesk::UInt32) override { return Acad::eFilerError; }
    Acad::ErrorStatus readRest(CDbRecord*) override { return Acad::eFilerError; }
    Acad::ErrorStatus readHardPointerId(AcDbObjectId*) override { return Acad::eFilerError; }
    Acad::ErrorStatus readSoftPointerId(AcDbObjectId*) override { return Acad::eFilerError; }
    Acad::ErrorStatus readHardOwnershipId(AcDbObjectId*) override { return Acad::eFilerError; }
    Acad::ErrorStatus readSoftOwnershipId(AcDbObjectId*) override { return Acad::eFilerError; }

private:
    Acad::ErrorStatus Note(const std::string& strWord) {
        m_arWords.push_back(strWord);
        return m_status;
    }
    template <class Number>
    Acad::ErrorStatus Note(const std::string& strWord, Number value) {
        std::string strNumber = std::to_string(value);
        if (const auto point = strNumber.find('.'); point != std::string::npos) {
            strNumber.erase(strNumber.find_last_not_of('0') + 1);
            if (strNumber.ends_with('.')) strNumber.pop_back();
        }
        return Note(strWord + " " + strNumber);
    }

    Acad::ErrorStatus m_status = Acad::eOk;
    std::vector<std::string> m_arWords;
};
