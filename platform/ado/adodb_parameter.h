#pragma once

#include <memory>
#include <string>
#include <vector>

#include "platform/ado/adodb_enums.h"
#include "platform/ado/value.h"
#include "platform/ado/variant.h"

namespace ADODB {

/// A value for one `?` of a command. Failures raise CComError.
class Parameter {
public:
    [[nodiscard]] const std::wstring& GetName() const { return m_strName; }
    void PutName(const std::wstring& strName) { m_strName = strName; }
    [[nodiscard]] DataTypeEnum GetType() const { return m_type; }
    /// adEmpty, the first type, cannot be bound.
    void PutType(DataTypeEnum type) { m_type = type; }
    [[nodiscard]] ParameterDirectionEnum GetDirection() const { return m_direction; }
    void PutDirection(ParameterDirectionEnum direction) { m_direction = direction; }
    /// Size, precision and scale are kept for the caller; engines take values of any size.
    [[nodiscard]] long GetSize() const { return m_nSize; }
    void PutSize(long nSize) { m_nSize = nSize; }
    [[nodiscard]] int GetPrecision() const { return m_nPrecision; }
    void PutPrecision(int nPrecision) { m_nPrecision = nPrecision; }
    [[nodiscard]] int GetNumericScale() const { return m_nNumericScale; }
    void PutNumericScale(int nScale) { m_nNumericScale = nScale; }

    /// VT_EMPTY until it is set.
    [[nodiscard]] const CVariant& GetValue() const { return m_value; }
    void PutValue(const CVariant& value) { m_value = value; }

    /// The value in the parameter's type. Raises DB_E_PARAMNOTOPTIONAL where none was set, and
    /// adErrDataConversion where it does not suit the type.
    [[nodiscard]] CDbValue BoundValue() const;

private:
    std::wstring m_strName;
    DataTypeEnum m_type = adEmpty;
    ParameterDirectionEnum m_direction = adParamInput;
    long m_nSize = 0;
    int m_nPrecision = 0;
    int m_nNumericScale = 0;
    CVariant m_value;
};
using ParameterPtr = std::shared_ptr<Parameter>;

/// The parameters of a command, in the order in which its text has their places.
class Parameters {
public:
    [[nodiscard]] long GetCount() const { return static_cast<long>(m_arParameters.size()); }
    /// Raises adErrObjectInCollection for one that is in it already.
    void Append(const ParameterPtr& pParameter);
    /// An item that is not there raises adErrItemNotFound. Names compare without case.
    [[nodiscard]] ParameterPtr GetItem(const std::wstring& strName) const;
    [[nodiscard]] ParameterPtr GetItem(long nIndex) const;
    void Delete(long nIndex);

    /// The values of all of them. Raises adErrFeatureNotAvailable for a parameter that is not for input, as
    /// no engine here gives values back.
    [[nodiscard]] std::vector<CDbValue> BoundValues() const;

private:
    std::vector<ParameterPtr> m_arParameters;
};

} // namespace ADODB
