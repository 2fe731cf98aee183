#include "platform/ado/adodb_command.h"

using namespace ADODB;

void Command::PutCommandTimeout(long nSeconds) {
    if (nSeconds < 0) RaiseAdoError(adErrInvalidArgument);
    m_nTimeout = nSeconds;
}

ParameterPtr Command::CreateParameter(const std::wstring& strName, DataTypeEnum type,
                                      ParameterDirectionEnum direction, long nSize, const CVariant& value) {
    auto pParameter = std::make_shared<Parameter>();
    pParameter->PutName(strName);
    pParameter->PutType(type);
    pParameter->PutDirection(direction);
    pParameter->PutSize(nSize);
    pParameter->PutValue(value);
    return pParameter;
}

CStatement Command::Statement() const {
    if (!m_pConnection || m_pConnection->GetState() == adStateClosed) RaiseAdoError(adErrInvalidConnection);
    return Raising([&] {
        return MakeStatement(m_pConnection->Database(), m_strText, m_type, m_parameters.BoundValues());
    });
}

RecordsetPtr Command::Execute(long* pRecordsAffected, long nOptions) {
    const CStatement statement = Statement();
    return m_pConnection->Run(statement, pRecordsAffected, nOptions);
}
