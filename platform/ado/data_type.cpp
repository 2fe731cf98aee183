#include "platform/ado/data_type.h"

#include <algorithm>
#include <array>
#include <string>

#include "platform/ado/com_error.h"

namespace {

using namespace ADODB;

struct CDataType {
    DataTypeEnum m_type;
    DBTYPE m_wColumn;
    long m_nSize; ///< 0 where the declaration says it
};

/// The first row of a column type is what its fields show.
constexpr std::array g_arDataTypes = {
    CDataType{adSmallInt, DBTYPE_I2, 2},      CDataType{adInteger, DBTYPE_I4, 4},
    CDataType{adSingle, DBTYPE_R4, 4},        CDataType{adDouble, DBTYPE_R8, 8},
    CDataType{adDate, DBTYPE_DATE, 8},        CDataType{adBoolean, DBTYPE_BOOL, 2},
    CDataType{adVariant, DBTYPE_EMPTY, 16},   CDataType{adNumeric, DBTYPE_DECIMAL, 19},
    CDataType{adTinyInt, DBTYPE_I1, 1},       CDataType{adUnsignedTinyInt, DBTYPE_UI1, 1},
    CDataType{adUnsignedInt, DBTYPE_UI4, 4},  CDataType{adVarWChar, DBTYPE_BSTR, 0},
    CDataType{adVarBinary, DBTYPE_BYTES, 0},  CDataType{adDecimal, DBTYPE_DECIMAL, 19},
    CDataType{adCurrency, DBTYPE_DECIMAL, 8}, CDataType{adBigInt, DBTYPE_I4, 8},
    CDataType{adBSTR, DBTYPE_BSTR, 0},        CDataType{adChar, DBTYPE_BSTR, 0},
    CDataType{adWChar, DBTYPE_BSTR, 0},       CDataType{adVarChar, DBTYPE_BSTR, 0},
    CDataType{adLongVarChar, DBTYPE_BSTR, 0}, CDataType{adLongVarWChar, DBTYPE_BSTR, 0},
    CDataType{adDBDate, DBTYPE_DATE, 8},      CDataType{adDBTimeStamp, DBTYPE_DATE, 8},
    CDataType{adBinary, DBTYPE_BYTES, 0},     CDataType{adLongVarBinary, DBTYPE_BYTES, 0},
};

constexpr long g_nLongText = 1073741823;
constexpr long g_nLongBytes = 2147483647;

const CDataType& ShownAs(DBTYPE wColumn) {
    return *std::find_if(g_arDataTypes.begin(), g_arDataTypes.end() - 1,
                         [wColumn](const CDataType& type) { return type.m_wColumn == wColumn; });
}

} // namespace

DataTypeEnum ADODB::DataTypeOf(const CDbColumn& column) {
    const DataTypeEnum type = ShownAs(column.m_wType).m_type;
    if (column.m_nSize > 0) return type;
    return type == adVarWChar ? adLongVarWChar : type == adVarBinary ? adLongVarBinary : type;
}

long ADODB::DefinedSizeOf(const CDbColumn& column) {
    const CDataType& type = ShownAs(column.m_wType);
    if (type.m_nSize > 0) return type.m_nSize;
    if (column.m_nSize > 0) return static_cast<long>(column.m_nSize);
    return type.m_type == adVarWChar ? g_nLongText : g_nLongBytes;
}

DBTYPE ADODB::ColumnTypeOf(DataTypeEnum type) {
    for (const CDataType& known : g_arDataTypes)
        if (known.m_type == type) return known.m_wColumn;
    RaiseAdoError(adErrDataConversion, "Data type " + std::to_string(type) + " is not supported.");
}
