#pragma once

#include <cstdint>
#include <vector>

#include "data/ado_command.h"
#include "data/ado_database.h"
#include "data/ado_field.h"
#include "platform/ado/adodb_recordset.h"

/// What a statement given to a recordset is.
enum RecordsetOption {
    RecordsetOption_Unknown = 0, ///< to be found out
    RecordsetOption_Query = 1,
    RecordsetOption_Table = 2, ///< any text that gives rows which are to be written, too
    RecordsetOption_StoredProc = 3,
};

/// Whether a row is being edited.
enum EditStatus { EditStatus_None = 0, EditStatus_New = 1, EditStatus_Edit = 2 };

/// The rows of a statement, one of them current. Results are 1, or 0 with the error kept, where nothing else
/// is said; what is handed out is left as it was on failure.
class CADORecordset final : public CADOObject {
public:
    CADORecordset()
        : CADOObject("CADORecordset") {}
    /// On the database's connection.
    explicit CADORecordset(const CADODatabase& database);
    ~CADORecordset() { Close(); }

    /// Opens the rows of a statement, after closing those it had. An empty statement means the last one. A
    /// statement that gives no rows runs, and leaves the recordset closed.
    int Open(const CString& strStatement = "", int nOption = RecordsetOption_Unknown);
    /// On this connection, unless one was attached before.
    int Open(const CADODatabase& database, const CString& strStatement,
             int nOption = RecordsetOption_Unknown);
    /// Takes the rows that a command gives: they run forward only and cannot be written.
    int Execute(const CADOCommand& command);
    /// 1 when it has rows, and a connection is attached.
    int IsOpen() const;
    /// An edit that was not stored is dropped. 1 also for a closed recordset.
    int Close();

    /// 1 also where there are no rows to tell, so that a walk ends.
    int IsEof();
    int IsBof();
    /// A move from a row that is being edited stores it first.
    int MoveFirst();
    int MoveNext();
    int MovePrevious();
    int MoveLast();
    /// The number of rows, found by walking them where only that tells it; the first is current then.
    /// 0 on failure.
    int GetRecordCount();

    /// 1 only when the value is NULL.
    int IsFieldNull(const CADOField& field);
    /// 1 when the value is NULL, or none was given yet in a new row.
    int IsFieldEmpty(const CADOField& field);
    // For NULL the readers give 0 or an empty text with result 1; IsFieldNull tells. See also ado_value.h.
    int GetFieldValue(const CADOField& field, CVariant* pValue);
    int GetFieldDouble(const CADOField& field, double* pdValue);
    int GetFieldFloat(const CADOField& field, float* pfValue);
    int GetFieldInt(const CADOField& field, int* pnValue);
    int GetFieldUInt(const CADOField& field, UINT* puValue);
    /// Not 0 is true.
    int GetFieldBool(const CADOField& field, int* pbValue);
    /// Dates have no text, whatever their format: an empty text, and 0.
    int GetFieldText(const CADOField& field, CString* pText, const CString& strDateFormat = "");
    /// All bytes of a value; none for NULL. Texts are refused.
    int GetChunk(const CADOField& field, std::vector<unsigned char>* pBytes);
    /// As text: the current row and those after it, nRows at most (-1: all), their values parted by a text
    /// and each row ended by one; and moves behind them.
    int GetRowText(CString* pText, int nRows = 1, const CString& strColumnEnd = "\t",
                   const CString& strRowEnd = "\r", const CString& strNull = "");

    /// Makes a new row current.
    int AddNew();
    /// Announces that the current row is going to be written.
    int Edit();
    /// Stores what was written. After a failure the edit goes on.
    int Update();
    int CancelUpdate();
    /// Deletes the current row, which stays current, without values, until a move.
    int Delete();
    int GetEditStatus() const { return m_nEditStatus; }

    // Writers of the current or new row; Update stores.
    int SetFieldText(const CADOField& field, const CString& strValue);
    int SetFieldInt(const CADOField& field, int nValue);
    int SetFieldLong(const CADOField& field, std::int32_t nValue);
    int SetFieldDouble(const CADOField& field, double dValue);
    int SetFieldBool(const CADOField& field, int bValue);
    /// Days since 1899-12-30.
    int SetFieldDate(const CADOField& field, double dDays);
    int SetFieldNull(const CADOField& field);
    /// Adds bytes to the value; the first piece since the row became current replaces it.
    int AppendChunk(const CADOField& field, const std::vector<unsigned char>& arBytes);

    /// Goes to the next row that meets a condition on one column, the current row among them: 1; 0 and behind
    /// the last (backward: before the first) when there is none.
    int Find(const CString& strFind, int nSearchDirection = ADODB::adSearchForward);
    /// The same from the first row on.
    int FindFirst(const CString& strFind);
    /// The row after the one found last, by the same condition in the same direction.
    int FindNext();
    /// Shows the rows that meet the criteria only; all with an empty text.
    int SetFilter(const CString& strFilter);
    /// Sorts by columns, "QYBH ASC, SD DESC"; an empty text restores the statement's order.
    int SetSort(const CString& strSort);
    /// Keeps the place of the current row, to which SetBookmark goes back.
    int GetBookmark();
    int SetBookmark();

    /// Makes *pClone a recordset of the same rows, with a current row of its own.
    int Clone(CADORecordset* pClone);
    /// Writes the rows to a file that is not there yet.
    int SaveAsXml(const CString& strPath);
    /// Opens the rows of such a file; they change in memory only.
    int OpenXml(const CString& strPath);

    /// The last statement.
    const CString& GetQuery() const { return m_strQuery; }

private:
    CString ErrorPrefix() const override { return "Query = " + m_strQuery + "\n"; }

    void OpenQuery(int nOption);
    void OpenProcedure();
    /// Leaves the row: moves, and opening.
    template <class Move>
    int Leave(const Move& move) {
        if (!Attempt(move)) return 0;
        m_nEditStatus = EditStatus_None;
        return 1;
    }
    int PutFieldValue(const CADOField& field, const CVariant& value);
    int FindFrom(long nSkip, const CVariant& start);

    ADODB::RecordsetPtr m_pRecordset = std::make_shared<ADODB::Recordset>();
    ADODB::CommandPtr m_pCommand = std::make_shared<ADODB::Command>();
    ADODB::ConnectionPtr m_pConnection;
    int m_nSearchDirection = ADODB::adSearchForward;
    CString m_strFind;
    CVariant m_bookmark;
    CVariant m_findPosition;
    int m_nEditStatus = EditStatus_None;
    CString m_strQuery;
};
