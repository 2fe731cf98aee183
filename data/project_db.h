#pragma once

#include "data/ado_recordset.h"
#include "data/project_context.h"

/// One free query on one suite database. It is a short-lived local: its end closes the connections of all
/// free queries, so two of them are used one after the other, never nested. Results are 1 or 0; nothing is
/// told to the user.
class CProjectDb {
public:
    explicit CProjectDb(SuiteDb db);
    CProjectDb(const CProjectDb&) = delete;
    CProjectDb& operator=(const CProjectDb&) = delete;
    ~CProjectDb();

    /// Runs a statement, with bFixNull its empty texts made NULL. 1 only when it gives rows; the first is
    /// current then.
    int Open(const CString& strStatement, int bFixNull = 0);
    /// A column of the current row as a text; reals shortly, as "1.5" for 1.50 and "2" for 2.00. 1 with an
    /// empty text for NULL. 0 for values without a text and for columns that are not there.
    int ReadField(const CString& strColumn, CString* pText);
    /// 1 only for a value that is not NULL.
    int ReadInt(const CString& strColumn, int* pnValue);
    int ReadDouble(const CString& strColumn, double* pdValue);
    int IsEof();
    int MoveNext();
    void Close();

    /// For the text of an error.
    const CADORecordset& GetRecordset() const { return m_recordset; }

private:
    int m_bOpened = 0;
    CADORecordset m_recordset;
};
