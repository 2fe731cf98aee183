#include "data/ado_recordset.h"

#include "platform/windows/code_page.h"

CADORecordset::CADORecordset(const CADODatabase& database)
    : CADORecordset() {
    m_pConnection = database.GetConnection();
}

int CADORecordset::Open(const CADODatabase& database, const CString& strStatement, int nOption) {
    if (!m_pConnection) m_pConnection = database.GetConnection();
    return Open(strStatement, nOption);
}

int CADORecordset::Open(const CString& strStatement, int nOption) {
    if (!Close()) return 0;
    if (!strStatement.IsEmpty()) m_strQuery = strStatement;
    m_strQuery.TrimLeft();
    return Attempt([&] {
        m_pRecordset = std::make_shared<ADODB::Recordset>();
        if (nOption == RecordsetOption_StoredProc)
            OpenProcedure();
        else
            OpenQuery(nOption);
    });
}

void CADORecordset::OpenQuery(int nOption) {
    const bool bTable = nOption == RecordsetOption_Table;
    m_pRecordset->PutCursorType(ADODB::adOpenStatic);
    m_pRecordset->PutCursorLocation(ADODB::adUseClient);
    m_pRecordset->Open(WideFromGbk(m_strQuery.View()), m_pConnection,
                       bTable ? ADODB::adOpenKeyset : ADODB::adOpenStatic, ADODB::adLockOptimistic,
                       bTable ? ADODB::adCmdText : ADODB::adCmdUnknown);
}

void CADORecordset::OpenProcedure() {
    m_pCommand->PutActiveConnection(m_pConnection);
    m_pCommand->PutCommandText(WideFromGbk(m_strQuery.View()));
    m_pCommand->PutCommandType(ADODB::adCmdStoredProc);
    if (m_pConnection) m_pConnection->PutCursorLocation(ADODB::adUseClient);
    m_pRecordset = m_pCommand->Execute();
}

int CADORecordset::Execute(const CADOCommand& command) {
    if (!Close()) return 0;
    if (!m_pConnection) m_pConnection = command.GetCommand()->GetActiveConnection();
    m_strQuery = command.GetText();
    return Attempt([&] { m_pRecordset = command.GetCommand()->Execute(); });
}

int CADORecordset::IsOpen() const {
    return m_pConnection && m_pRecordset->GetState() != ADODB::adStateClosed;
}

int CADORecordset::Close() {
    const bool bRows = m_pRecordset->GetState() != ADODB::adStateClosed;
    if (bRows && !Attempt([&] {
            m_pRecordset->CancelUpdate();
            m_pRecordset->PutFilter(ADODB::adFilterNone);
            m_pRecordset->Close();
        }))
        return 0;
    m_nEditStatus = EditStatus_None;
    m_bookmark = m_findPosition = CVariant(); // they are places among rows that are gone
    return 1;
}

int CADORecordset::IsEof() {
    bool bEof = true;
    Attempt([&] { bEof = m_pRecordset->IsEOF(); });
    return bEof;
}

int CADORecordset::IsBof() {
    bool bBof = true;
    Attempt([&] { bBof = m_pRecordset->IsBOF(); });
    return bBof;
}

int CADORecordset::MoveFirst() {
    return Leave([&] { m_pRecordset->MoveFirst(); });
}

int CADORecordset::MoveNext() {
    return Leave([&] { m_pRecordset->MoveNext(); });
}

int CADORecordset::MovePrevious() {
    return Leave([&] { m_pRecordset->MovePrevious(); });
}

int CADORecordset::MoveLast() {
    return Leave([&] { m_pRecordset->MoveLast(); });
}

int CADORecordset::GetRecordCount() {
    long nCount = 0;
    const int bCounted = Attempt([&] {
        nCount = m_pRecordset->GetRecordCount();
        if (nCount >= 0) return;
        nCount = 0;
        if (m_pRecordset->IsBOF() && m_pRecordset->IsEOF()) return;
        for (m_pRecordset->MoveFirst(); !m_pRecordset->IsEOF(); m_pRecordset->MoveNext())
            ++nCount;
        m_pRecordset->MoveFirst();
    });
    return bCounted ? static_cast<int>(nCount) : 0;
}
