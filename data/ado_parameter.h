#pragma once

#include <cstdint>

#include "data/ado_object.h"
#include "platform/ado/adodb_command.h"

/// A value for one `?` of a command. Results are 1, or 0 with the error kept.
class CADOParameter final : public CADOObject {
public:
    /// nSize is kept for the caller; values of any size are taken.
    explicit CADOParameter(ADODB::DataTypeEnum nType, int nSize = 0,
                           ADODB::ParameterDirectionEnum nDirection = ADODB::adParamInput,
                           const CString& strName = "");

    const CString& GetName() const { return m_strName; }
    int GetType() const { return m_nType; }
    const ADODB::ParameterPtr& GetParameter() const { return m_pParameter; }

    int SetInt(int nValue);
    int SetLong(std::int32_t nValue);
    int SetDouble(double dValue);
    int SetText(const CString& strValue);
    /// Days since 1899-12-30.
    int SetDate(double dDays);

    // The value that was set, as ado_value.h tells; 0 or an empty text before.
    int GetInt(int* pnValue);
    int GetLong(std::int32_t* pnValue);
    int GetDouble(double* pdValue);
    int GetText(CString* pText);
    /// 0 for a value that is no date.
    int GetDate(double* pdDays);

private:
    int PutValue(const CVariant& value);

    ADODB::ParameterPtr m_pParameter;
    CString m_strName;
    int m_nType;
};
