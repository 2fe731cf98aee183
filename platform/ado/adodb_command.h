#pragma once

#include <memory>
#include <string>

#include "platform/ado/adodb_connection.h"
#include "platform/ado/adodb_parameter.h"

namespace ADODB {

/// A statement with parameters. Failures raise CComError.
class Command {
public:
    [[nodiscard]] const ConnectionPtr& GetActiveConnection() const { return m_pConnection; }
    void PutActiveConnection(const ConnectionPtr& pConnection) { m_pConnection = pConnection; }
    [[nodiscard]] const std::wstring& GetCommandText() const { return m_strText; }
    void PutCommandText(const std::wstring& strText) { m_strText = strText; }
    [[nodiscard]] CommandTypeEnum GetCommandType() const { return m_type; }
    void PutCommandType(CommandTypeEnum type) { m_type = type; }
    /// Seconds, 30 unless set. It is kept for the caller: how long a statement waits for a lock the
    /// connection text says. Raises adErrInvalidArgument for a negative number.
    [[nodiscard]] long GetCommandTimeout() const { return m_nTimeout; }
    void PutCommandTimeout(long nSeconds);
    [[nodiscard]] Parameters& GetParameters() { return m_parameters; }

    /// A parameter that is not yet among the command's.
    [[nodiscard]] static ParameterPtr CreateParameter(const std::wstring& strName, DataTypeEnum type,
                                                      ParameterDirectionEnum direction = adParamInput,
                                                      long nSize = 0, const CVariant& value = CVariant());

    /// Runs it, its parameters bound in order. Result and *pRecordsAffected are those of
    /// Connection::Execute. Raises adErrInvalidConnection without an open connection.
    RecordsetPtr Execute(long* pRecordsAffected = nullptr, long nOptions = adOptionUnspecified);

private:
    friend class Recordset;
    /// The same condition.
    [[nodiscard]] CStatement Statement() const;

    ConnectionPtr m_pConnection;
    std::wstring m_strText;
    CommandTypeEnum m_type = adCmdUnknown;
    long m_nTimeout = 30;
    Parameters m_parameters;
};
using CommandPtr = std::shared_ptr<Command>;

} // namespace ADODB
