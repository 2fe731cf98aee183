#pragma once

#include <cstdint>

#include "data/ado_database.h"
#include "data/ado_parameter.h"
#include "platform/ado/adodb_command.h"

/// A statement with a `?` for each parameter, or a procedure's name. Results are 1, or 0 with the error kept.
class CADOCommand final : public CADOObject {
public:
    explicit CADOCommand(const CADODatabase& database, const CString& strText = "",
                         ADODB::CommandTypeEnum nType = ADODB::adCmdText);

    int SetText(const CString& strText);
    int SetType(ADODB::CommandTypeEnum nType);
    /// Seconds.
    int SetTimeout(int nSeconds);
    const CString& GetText() const { return m_strCommandText; }
    int GetType() const { return m_nCommandType; }
    const ADODB::CommandPtr& GetCommand() const { return m_pCommand; }

    // Parameters are bound in the order in which they were added.
    int AddParameter(const CADOParameter& parameter);
    int AddShort(const CString& strName, std::int16_t nValue);
    int AddLong(const CString& strName, std::int32_t nValue);
    int AddDouble(const CString& strName, double dValue);
    int AddText(const CString& strName, const CString& strValue);
    /// Days since 1899-12-30.
    int AddDate(const CString& strName, double dDays);

    /// Runs it without keeping rows; CADORecordset::Execute keeps them.
    int Execute();
    /// Rows that the last run inserted, changed or deleted.
    int GetRecordsAffected() const { return m_nRecordsAffected; }

private:
    int AddValue(const CString& strName, ADODB::DataTypeEnum nType, const CVariant& value);

    ADODB::CommandPtr m_pCommand = std::make_shared<ADODB::Command>();
    int m_nCommandType;
    int m_nRecordsAffected = 0;
    CString m_strCommandText;
};
