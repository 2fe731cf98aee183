#include "data/ado_database.h"

#include "platform/windows/code_page.h"

int CADODatabase::Open(const CString& strConnection, const CString& strUser, const CString& strPassword) {
    if (!Close()) return 0;
    if (!strConnection.IsEmpty()) m_strConnection = strConnection;
    HRESULT hResult = E_FAIL;
    return Attempt([&] {
               if (m_nConnectionTimeout) m_pConnection->PutConnectionTimeout(m_nConnectionTimeout);
               hResult = m_pConnection->Open(WideFromGbk(m_strConnection.View()), WideFromGbk(strUser.View()),
                                             WideFromGbk(strPassword.View()), 0);
           }) &&
           hResult == S_OK;
}

int CADODatabase::IsOpen() const {
    return m_pConnection->GetState() != ADODB::adStateClosed;
}

int CADODatabase::Close() {
    return !IsOpen() || Attempt([&] { m_pConnection->Close(); });
}

int CADODatabase::Execute(const CString& strStatement, long nOptions) {
    long nAffected = 0;
    const int bDone =
        Attempt([&] { m_pConnection->Execute(WideFromGbk(strStatement.View()), &nAffected, nOptions); });
    m_nRecordsAffected = static_cast<int>(nAffected);
    return bDone;
}
