#include "data/project_db.h"

#include "data/ado_value.h"
#include "data/null_syntax.h"
#include "data/suite_connections.h"

namespace {

CString ShortText(double dValue) {
    CString strText;
    strText.Format("%g", dValue);
    if (strText.Find('.') >= 0) strText.TrimRight('0').TrimRight('.'); // also the zeros of an exponent
    return strText;
}

} // namespace

CProjectDb::CProjectDb(SuiteDb db)
    : m_bOpened(EnsureConnection(db))
    , m_recordset(SuiteConnection(db)) {}

CProjectDb::~CProjectDb() {
    Close();
    CloseSuiteConnections();
}

int CProjectDb::Open(const CString& strStatement, int bFixNull) {
    if (!m_bOpened) return 0;
    CString strFixed = strStatement;
    if (bFixNull) FixNullSyntax(&strFixed);
    return m_recordset.Open(strFixed, RecordsetOption_Table) && !m_recordset.IsEof() &&
           m_recordset.MoveFirst();
}

int CProjectDb::ReadField(const CString& strColumn, CString* pText) {
    CVariant value;
    if (!m_recordset.GetFieldValue(strColumn, &value)) return 0;
    if (!IsRealType(value.Type())) return TextOfValue(value, pText);
    *pText = ShortText(DoubleOfValue(value));
    return 1;
}

int CProjectDb::ReadInt(const CString& strColumn, int* pnValue) {
    return m_recordset.GetFieldInt(strColumn, pnValue) && !m_recordset.IsFieldNull(strColumn);
}

int CProjectDb::ReadDouble(const CString& strColumn, double* pdValue) {
    return m_recordset.GetFieldDouble(strColumn, pdValue) && !m_recordset.IsFieldNull(strColumn);
}

int CProjectDb::IsEof() {
    return m_recordset.IsEof();
}

int CProjectDb::MoveNext() {
    return m_recordset.MoveNext();
}

void CProjectDb::Close() {
    if (m_bOpened) m_recordset.Close();
}
