#pragma once
// A class's fields written to and read from a file's record by the rows of its table: both walk the same
// rows, so that a field cannot be written and not read.

#include "drawing/field_rows.h"
#include "platform/acad/db_filer.h"

namespace FieldFiling {
/// Writes and reads values one after the other; a reading list ends at the first value that the filer could
/// not give.
class CFieldWriter {
public:
    /// Texts are cut, at a character, to the bytes that the record has room for.
    CFieldWriter(AcDbDwgFiler* pFiler, std::size_t nLongestText)
        : m_pFiler(pFiler)
        , m_nLongestText(nLongestText) {}

    void operator()(const AcGePoint3d& value, CFiling) const { m_pFiler->writePoint3d(value); }
    void operator()(const AcGeVector3d& value, CFiling) const { m_pFiler->writeVector3d(value); }
    void operator()(Adesk::Int16 value, CFiling) const { m_pFiler->writeInt16(value); }
    void operator()(Adesk::UInt16 value, CFiling) const { m_pFiler->writeUInt16(value); }
    void operator()(Adesk::Int32 value, CFiling) const { m_pFiler->writeInt32(value); }
    void operator()(double value, CFiling) const { m_pFiler->writeDouble(value); }
    void operator()(const CString& value, CFiling) const;
    void operator()(const AcDbObjectId& value, CFiling) const { m_pFiler->writeHardPointerId(value); }
    void operator()(const AcArray<double>& values, CFiling filing) const;
    void operator()(const CArray<AcArray<double>, AcArray<double>>& lists, CFiling) const;
    void operator()(const CStringArray& texts, CFiling) const;
    void Flag(Adesk::Int32 value) const { m_pFiler->writeBoolean(value); }

private:
    void ShortList(const AcArray<double>& values) const;

    AcDbDwgFiler* m_pFiler;
    std::size_t m_nLongestText;
};

class CFieldReader {
public:
    explicit CFieldReader(AcDbDwgFiler* pFiler)
        : m_pFiler(pFiler) {}

    void operator()(AcGePoint3d& field, CFiling) const { m_pFiler->readPoint3d(&field); }
    void operator()(AcGeVector3d& field, CFiling) const { m_pFiler->readVector3d(&field); }
    void operator()(Adesk::Int16& field, CFiling) const { m_pFiler->readInt16(&field); }
    void operator()(Adesk::UInt16& field, CFiling) const { m_pFiler->readUInt16(&field); }
    void operator()(Adesk::Int32& field, CFiling) const { m_pFiler->readInt32(&field); }
    void operator()(double& field, CFiling) const { m_pFiler->readDouble(&field); }
    void operator()(CString& field, CFiling) const;
    void operator()(AcDbObjectId& field, CFiling) const { m_pFiler->readHardPointerId(&field); }
    void operator()(AcArray<double>& values, CFiling filing) const;
    void operator()(CArray<AcArray<double>, AcArray<double>>& lists, CFiling) const;
    void operator()(CStringArray& texts, CFiling) const;
    void Flag(Adesk::Int32& field) const { m_pFiler->readBoolean(&field); }

private:
    bool Gives() const { return m_pFiler->filerStatus() == Acad::eOk; }
    /// Appends what a list of that many values gives.
    void Append(AcArray<double>& values, Adesk::Int32 nCount) const;

    AcDbDwgFiler* m_pFiler;
};
} // namespace FieldFiling

/// Writes the filed fields in the order of the rows. nLongestText is the greatest number of bytes of a text.
template <class T>
void WriteFields(const T& object, std::span<const CFieldRow<T>> rows, AcDbDwgFiler* pFiler,
                 std::size_t nLongestText) {
    const FieldFiling::CFieldWriter write(pFiler, nLongestText);
    for (const CFieldRow<T>& row : rows) {
        if (row.m_filing == CFiling::None) continue;
        std::visit(
            [&](auto member) {
                if constexpr (std::is_same_v<decltype(member), CFlagMember<T>>)
                    write.Flag(object.*member.m_pMember);
                else
                    write(object.*member, row.m_filing);
            },
            row.m_member);
    }
}

/// Reads them over what the object holds. What the filer cannot give becomes zero, empty or null.
template <class T>
void ReadFields(T& object, std::span<const CFieldRow<T>> rows, AcDbDwgFiler* pFiler) {
    const FieldFiling::CFieldReader read(pFiler);
    for (const CFieldRow<T>& row : rows) {
        if (row.m_filing == CFiling::None) continue;
        std::visit(
            [&](auto member) {
                if constexpr (std::is_same_v<decltype(member), CFlagMember<T>>)
                    read.Flag(object.*member.m_pMember);
                else
                    read(object.*member, row.m_filing);
            },
            row.m_member);
    }
}
