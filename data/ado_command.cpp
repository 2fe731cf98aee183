#include "data/ado_command.h"

#include "platform/windows/code_page.h"

CADOCommand::CADOCommand(const CADODatabase& database, const CString& strText, ADODB::CommandTypeEnum nType)
    : CADOObject("CADOCommand")
    , m_nCommandType(nType) {
    m_pCommand->PutActiveConnection(database.GetConnection());
    SetText(strText);
    SetType(nType);
}

int CADOCommand::SetText(const CString& strText) {
    m_strCommandText = strText;
    return Attempt([&] { m_pCommand->PutCommandText(WideFromGbk(strText.View())); });
}

int CADOCommand::SetType(ADODB::CommandTypeEnum nType) {
    m_nCommandType = nType;
    return Attempt([&] { m_pCommand->PutCommandType(nType); });
}

int CADOCommand::SetTimeout(int nSeconds) {
    return Attempt([&] { m_pCommand->PutCommandTimeout(nSeconds); });
}

int CADOCommand::AddParameter(const CADOParameter& parameter) {
    return Attempt([&] { m_pCommand->GetParameters().Append(parameter.GetParameter()); });
}

int CADOCommand::AddValue(const CString& strName, ADODB::DataTypeEnum nType, const CVariant& value) {
    return Attempt([&] {
        m_pCommand->GetParameters().Append(ADODB::Command::CreateParameter(WideFromGbk(strName.View()), nType,
                                                                           ADODB::adParamInput, 0, value));
    });
}

int CADOCommand::AddShort(const CString& strName, std::int16_t nValue) {
    return AddValue(strName, ADODB::adSmallInt, CVariant(nValue));
}

int CADOCommand::AddLong(const CString& strName, std::int32_t nValue) {
    return AddValue(strName, ADODB::adInteger, CVariant(nValue));
}

int CADOCommand::AddDouble(const CString& strName, double dValue) {
    return AddValue(strName, ADODB::adDouble, CVariant(dValue));
}

int CADOCommand::AddText(const CString& strName, const CString& strValue) {
    return AddValue(strName, ADODB::adVarChar, CVariant(WideFromGbk(strValue.View())));
}

int CADOCommand::AddDate(const CString& strName, double dDays) {
    return AddValue(strName, ADODB::adDate, CVariant::Date(dDays));
}

int CADOCommand::Execute() {
    long nAffected = 0;
    const int bDone = Attempt([&] { m_pCommand->Execute(&nAffected, ADODB::adExecuteNoRecords); });
    m_nRecordsAffected = static_cast<int>(nAffected);
    return bDone;
}
