#pragma once
// The fields of a class by name, hung on its class descriptor as a protocol extension: the host shows and
// sets fields of classes whose headers it never sees.

#include "platform/acad/db_object.h"
#include "platform/acad/geometry.h"

#include <string>
#include <variant>
#include <vector>

/// A 32-bit flag, apart from a number.
struct CFlag {
    Adesk::Int32 m_nValue = 0;
};

/// A field's value. Texts are GBK.
using CFieldValue =
    std::variant<Adesk::Int32, CFlag, double, std::string, AcGePoint3d, AcDbObjectId, std::vector<double>,
                 std::vector<std::string>, std::vector<std::vector<double>>>;

/// What is known of one field.
struct CFieldInfo {
    const char* m_pName;
    int m_nDeclared; ///< place in the class, from 0
    bool m_bFiled;   ///< part of the drawing file's record
};

class CFieldTable : public AcRxObject {
public:
    static AcRxClass* desc();
    AcRxClass* isA() const override { return CFieldTable::desc(); }
    /// The table of an object's class; null for a class that tells no fields.
    static const CFieldTable* Of(const AcDbObject& object);

    virtual int Count() const = 0;
    virtual CFieldInfo Info(int index) const = 0; ///< rows in filing order
    virtual CFieldValue Get(const AcDbObject& object, int index) const = 0;
    /// 0 when the value is of another kind than the field, and then nothing changed.
    virtual int Set(AcDbObject& object, int index, const CFieldValue& value) const = 0;

    /// Row of a field by name, -1 if none.
    int Find(const std::string& strName) const;
    /// Rows in the order in which the class declares its fields.
    std::vector<int> DeclaredOrder() const;
};
