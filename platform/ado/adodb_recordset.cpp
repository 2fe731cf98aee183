#include "platform/ado/adodb_recordset.h"

#include <utility>

#include "platform/ado/connection_text.h"
#include "platform/ado/text.h"
#include "platform/ado/variant_value.h"
#include "platform/windows/code_page.h"

using namespace ADODB;

void Recordset::RequireClosed() const {
    if (IsOpen()) RaiseAdoError(adErrObjectOpen);
}

void Recordset::RequireNoEdit() const {
    if (m_edit.m_mode != adEditNone) RaiseAdoError(adErrIllegalOperation, "A row is being edited.");
}

void Recordset::PutCursorType(CursorTypeEnum type) {
    RequireClosed();
    m_cursorType = type;
}

void Recordset::PutCursorLocation(CursorLocationEnum location) {
    RequireClosed();
    m_cursorLocation = location;
}

void Recordset::PutLockType(LockTypeEnum type) {
    RequireClosed();
    m_lockType = type;
}

void Recordset::PutSource(const std::wstring& strSource) {
    RequireClosed();
    m_strSource = strSource;
}

void Recordset::PutActiveConnection(const ConnectionPtr& pConnection) {
    RequireClosed();
    m_pConnection = pConnection;
}

HRESULT Recordset::Open(const std::wstring& strSource, const ConnectionPtr& pConnection,
                        CursorTypeEnum cursorType, LockTypeEnum lockType, long nOptions) {
    RequireClosed();
    if (!strSource.empty()) m_strSource = strSource;
    if (pConnection) m_pConnection = pConnection;
    if (!m_pConnection || m_pConnection->GetState() == adStateClosed) RaiseAdoError(adErrInvalidConnection);
    TakeTypes(cursorType, lockType);
    const CStatement statement =
        Raising([&] { return MakeStatement(m_pConnection->Database(), m_strSource, nOptions, {}); });
    if (statement.m_bGivesRows)
        OpenStatement(m_pConnection, statement);
    else
        m_pConnection->Run(statement, nullptr, adExecuteNoRecords);
    return S_OK;
}

HRESULT Recordset::Open(const std::wstring& strSource, const std::wstring& strConnection,
                        CursorTypeEnum cursorType, LockTypeEnum lockType, long nOptions) {
    RequireClosed();
    const CConnectionText text(GbkOrRaise(strConnection));
    if (EqualNoCase(text.Value("Provider"), "MSPersist")) {
        if (!strSource.empty()) m_strSource = strSource;
        TakeTypes(cursorType, lockType);
        m_cursorLocation = adUseClient;
        m_pConnection.reset();
        OpenFile(m_strSource);
        return S_OK;
    }
    const ConnectionPtr pConnection = Connection::CreateInstance();
    pConnection->Open(strConnection);
    return Open(strSource, pConnection, cursorType, lockType, nOptions);
}

HRESULT Recordset::Open(const CommandPtr& pCommand, CursorTypeEnum cursorType, LockTypeEnum lockType) {
    RequireClosed();
    if (!pCommand) RaiseAdoError(adErrInvalidArgument);
    const CStatement statement = pCommand->Statement();
    TakeTypes(cursorType, lockType);
    m_strSource = pCommand->GetCommandText();
    m_pConnection = pCommand->GetActiveConnection();
    if (statement.m_bGivesRows)
        OpenStatement(m_pConnection, statement);
    else
        m_pConnection->Run(statement, nullptr, adExecuteNoRecords);
    return S_OK;
}

void Recordset::TakeTypes(CursorTypeEnum cursorType, LockTypeEnum lockType) {
    if (cursorType != adOpenUnspecified) m_cursorType = cursorType;
    if (lockType != adLockUnspecified) m_lockType = lockType;
}

void Recordset::OpenStatement(const ConnectionPtr& pConnection, const CStatement& statement) {
    m_pConnection = pConnection;
    m_strSource = m_strSource.empty() ? WideFromGbk(statement.m_strSql) : m_strSource;
    m_strFile.clear();
    OpenRows([pConnection, statement] {
        CDbConnection& database = pConnection->Database();
        return Raising([&] { return database.Query(statement.m_strSql, statement.m_arParameters); });
    });
}

void Recordset::OpenRows(CReader reader) {
    auto pRows = std::make_shared<CRecordsetRows>(reader());
    if (pRows->Cursor().Columns().empty()) return;
    m_reader = std::move(reader);
    m_pRows = std::move(pRows);
    if (m_pConnection) m_pConnection->Attach(m_pRows);
    m_fields.Reset(this, m_pRows->Cursor().Columns());
    m_edit = {};
    m_strFilter.clear();
    m_strSort.clear();
    m_view = CRecordsetView(m_pRows);
    if (m_lockType != adLockReadOnly) m_lockType = adLockOptimistic;
    if (m_cursorType == adOpenDynamic) m_cursorType = adOpenKeyset;
    if (m_cursorLocation == adUseClient || (m_cursorType == adOpenKeyset && !CanReadAnew()))
        m_cursorType = adOpenStatic;
}

bool Recordset::CanReadAnew() {
    if (m_view.Count() == 0) return true;
    try {
        m_pRows->Refresh(0);
        return true;
    } catch (const CDbError& error) {
        if (error.Failure() != DbFailure::Locked) return false;
        m_pRows.reset();
        RaiseDbError(error);
    }
}

void Recordset::Close() {
    (void)Rows();
    RequireNoEdit();
    m_pRows.reset();
    m_reader = nullptr;
    m_view = {};
}

void Recordset::Requery() {
    (void)Rows();
    RequireNoEdit();
    auto pRows = std::make_shared<CRecordsetRows>(m_reader());
    m_pRows = std::move(pRows);
    if (m_pConnection) m_pConnection->Attach(m_pRows);
    m_fields.Reset(this, m_pRows->Cursor().Columns());
    m_view = CRecordsetView(m_pRows);
    SelectRows(m_strFilter, m_strSort);
}

void Recordset::Resync(AffectEnum affect) {
    const std::size_t nRows = Rows().RowCount();
    CancelUpdate();
    std::vector<std::size_t> arRows;
    if (affect == adAffectCurrent) {
        const std::optional<std::size_t> nRow = m_view.Row();
        if (!nRow) RaiseAdoError(adErrNoCurrentRecord);
        arRows = {*nRow};
    } else if (affect == adAffectGroup) {
        for (long i = 0; i < m_view.Count(); ++i)
            arRows.push_back(m_view.RowAt(i));
    } else {
        for (std::size_t i = 0; i < nRows; ++i)
            if (m_pRows->State(i) != RowState::Deleted) arRows.push_back(i);
    }
    bool bAllThere = true;
    for (const std::size_t nRow : arRows)
        bAllThere = Raising([&] { return m_pRows->Refresh(nRow); }) && bAllThere;
    if (!bAllThere) throw CComError(DB_E_DELETEDROW, L"ADODB", L"A row was deleted by another program.");
}

Fields& Recordset::GetFields() {
    (void)Rows();
    return m_fields;
}

CDbCursor& Recordset::Rows() {
    if (!IsOpen()) {
        m_edit = {}; // what was being edited went with the connection
        RaiseAdoError(adErrObjectClosed);
    }
    m_view.Sync();
    return m_pRows->Cursor();
}

RecordsetPtr Recordset::Clone() {
    (void)Rows();
    auto pClone = std::make_shared<Recordset>();
    pClone->m_cursorType = m_cursorType;
    pClone->m_cursorLocation = m_cursorLocation;
    pClone->m_lockType = m_lockType;
    pClone->m_strSource = m_strSource;
    pClone->m_pConnection = m_pConnection;
    pClone->m_strFile = m_strFile;
    pClone->m_reader = m_reader;
    pClone->m_pRows = m_pRows;
    pClone->m_fields.Reset(pClone.get(), m_pRows->Cursor().Columns());
    pClone->m_view = CRecordsetView(m_pRows);
    return pClone;
}
