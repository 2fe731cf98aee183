#pragma once
// A class's fields as one table of typed rows: whoever files, shows, sets or compares them walks the same
// rows.

#include "platform/acad/field_table.h"
#include "platform/mfc/collections.h"
#include "platform/mfc/string.h"

#include <span>
#include <type_traits>

/// A 32-bit field that is a flag.
template <class T>
struct CFlagMember {
    Adesk::Int32 T::*m_pMember;
};

/// How a field stands in the file's record.
enum class CFiling {
    Plain,
    None,     ///< not at all
    Appended, ///< a list with a count of 16 bits, to which a reading adds what it reads
    Again,    ///< once more: its field has a row already
};

/// One row: a field's name, its place in the class's declaration, its member, and how the file's record has
/// it. A member of another type does not compile.
template <class T>
struct CFieldRow {
    using CMember =
        std::variant<AcGePoint3d T::*, AcGeVector3d T::*, Adesk::Int16 T::*, Adesk::UInt16 T::*,
                     Adesk::Int32 T::*, CFlagMember<T>, double T::*, CString T::*, AcArray<double> T::*,
                     CArray<AcArray<double>, AcArray<double>> T::*, CStringArray T::*, AcDbObjectId T::*>;
    const char* m_pName;
    int m_nDeclared;
    CMember m_member;
    CFiling m_filing = CFiling::Plain;
};

/// Fields as plain values, for those who know the class by its table only.
namespace FieldValue {
inline CFieldValue From(const AcGePoint3d& value) {
    return value;
}
inline CFieldValue From(const AcGeVector3d& value) {
    return AcGePoint3d(value.x, value.y, value.z);
}
inline CFieldValue From(Adesk::Int32 value) {
    return value;
}
inline CFieldValue From(double value) {
    return value;
}
inline CFieldValue From(const CString& value) {
    return std::string(value.View());
}
inline CFieldValue From(const AcDbObjectId& value) {
    return value;
}
inline CFieldValue From(const AcArray<double>& value) {
    return std::vector<double>(value.begin(), value.end());
}
CFieldValue From(const CArray<AcArray<double>, AcArray<double>>& value);
CFieldValue From(const CStringArray& value);

inline void Into(AcGePoint3d& field, const AcGePoint3d& value) {
    field = value;
}
inline void Into(AcGeVector3d& field, const AcGePoint3d& value) {
    field = value.asVector();
}
inline void Into(Adesk::Int32& field, Adesk::Int32 value) {
    field = value;
}
inline void Into(Adesk::Int16& field, Adesk::Int32 value) {
    field = static_cast<Adesk::Int16>(value);
}
inline void Into(Adesk::UInt16& field, Adesk::Int32 value) {
    field = static_cast<Adesk::UInt16>(value);
}
inline void Into(double& field, double value) {
    field = value;
}
inline void Into(CString& field, const std::string& value) {
    field = value.c_str();
}
inline void Into(AcDbObjectId& field, const AcDbObjectId& value) {
    field = value;
}
void Into(AcArray<double>& field, const std::vector<double>& value);
void Into(CArray<AcArray<double>, AcArray<double>>& field, const std::vector<std::vector<double>>& value);
void Into(CStringArray& field, const std::vector<std::string>& value);
} // namespace FieldValue

/// The rows of class T as the platform's field table.
template <class T>
class CFieldTableOf final : public CFieldTable {
public:
    explicit CFieldTableOf(std::span<const CFieldRow<T>> rows) {
        for (const CFieldRow<T>& row : rows)
            if (row.m_filing != CFiling::Again) m_arRows.push_back(&row);
    }

    int Count() const override { return static_cast<int>(m_arRows.size()); }
    CFieldInfo Info(int index) const override {
        const CFieldRow<T>& row = Row(index);
        return {row.m_pName, row.m_nDeclared, row.m_filing != CFiling::None};
    }
    CFieldValue Get(const AcDbObject& object, int index) const override {
        const T& source = static_cast<const T&>(object);
        return std::visit([&](auto member) { return Read(source, member); }, Row(index).m_member);
    }
    int Set(AcDbObject& object, int index, const CFieldValue& value) const override {
        T& target = static_cast<T&>(object);
        return std::visit([&](auto member) { return Write(target, member, value); }, Row(index).m_member);
    }

private:
    const CFieldRow<T>& Row(int index) const { return *m_arRows[static_cast<std::size_t>(index)]; }

    template <class M>
    static CFieldValue Read(const T& object, M T::*pMember) {
        return FieldValue::From(object.*pMember);
    }
    static CFieldValue Read(const T& object, CFlagMember<T> flag) { return CFlag{object.*flag.m_pMember}; }

    template <class M>
    static int Write(T& object, M T::*pMember, const CFieldValue& value) {
        return std::visit(
            [&](const auto& given) {
                if constexpr (requires { FieldValue::Into(object.*pMember, given); } &&
                              std::is_same_v<decltype(FieldValue::From(object.*pMember)), CFieldValue>) {
                    if (FieldValue::From(object.*pMember).index() != value.index()) return 0;
                    FieldValue::Into(object.*pMember, given);
                    return 1;
                } else {
                    return 0;
                }
            },
            value);
    }
    static int Write(T& object, CFlagMember<T> flag, const CFieldValue& value) {
        const CFlag* pFlag = std::get_if<CFlag>(&value);
        if (!pFlag) return 0;
        object.*flag.m_pMember = pFlag->m_nValue;
        return 1;
    }

    std::vector<const CFieldRow<T>*> m_arRows; ///< each field once
};
