#pragma once

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "platform/ado/adodb_command.h"
#include "platform/ado/adodb_connection.h"
#include "platform/ado/adodb_fields.h"
#include "platform/ado/recordset_view.h"

namespace ADODB {

/// The rows of a statement, with one of them current. Failures raise CComError: adErrObjectClosed on a closed
/// recordset, adErrNoCurrentRecord where no row is current.
///
/// A recordset whose cursor is the client's, and a static one, is a snapshot of values. A keyset cursor of
/// the server reads a row anew when it comes to stand on it; which rows there are stays as it was, and one
/// that another program deleted raises DB_E_DELETEDROW when its fields are used. A dynamic cursor is a keyset
/// one, and a keyset one over rows that are not those of one table is static. Every lock type but the
/// read-only one is the optimistic one: a row is written by Update, and of it the columns whose values
/// changed.
class Recordset : private CFieldSource {
public:
    Recordset() = default;
    Recordset(const Recordset&) = delete;
    Recordset& operator=(const Recordset&) = delete;
    ~Recordset() override = default;

    // The properties below raise adErrObjectOpen when they are put on an open recordset. What opening makes
    // of them they show afterwards.
    [[nodiscard]] CursorTypeEnum GetCursorType() const { return m_cursorType; }
    void PutCursorType(CursorTypeEnum type);
    [[nodiscard]] CursorLocationEnum GetCursorLocation() const { return m_cursorLocation; }
    void PutCursorLocation(CursorLocationEnum location);
    [[nodiscard]] LockTypeEnum GetLockType() const { return m_lockType; }
    void PutLockType(LockTypeEnum type);
    [[nodiscard]] const std::wstring& GetSource() const { return m_strSource; }
    void PutSource(const std::wstring& strSource);
    [[nodiscard]] const ConnectionPtr& GetActiveConnection() const { return m_pConnection; }
    void PutActiveConnection(const ConnectionPtr& pConnection);

    /// Opens the rows of a statement or table; the CommandTypeEnum in nOptions says which it is. An empty
    /// source and no connection mean those put as properties. A statement that gives no rows runs and leaves
    /// the recordset closed. Raises adErrInvalidConnection without an open connection.
    HRESULT Open(const std::wstring& strSource, const ConnectionPtr& pConnection,
                 CursorTypeEnum cursorType = adOpenUnspecified, LockTypeEnum lockType = adLockUnspecified,
                 long nOptions = adCmdUnspecified);
    /// The same on a connection of its own; or, with "Provider=MSPersist;", the rows of a file that Save
    /// wrote, whose path is the source. Such rows have no table behind them: they change in memory only.
    HRESULT Open(const std::wstring& strSource, const std::wstring& strConnection,
                 CursorTypeEnum cursorType = adOpenUnspecified, LockTypeEnum lockType = adLockUnspecified,
                 long nOptions = adCmdUnspecified);
    /// The rows that a command gives, on the command's connection.
    HRESULT Open(const CommandPtr& pCommand, CursorTypeEnum cursorType = adOpenUnspecified,
                 LockTypeEnum lockType = adLockUnspecified);
    /// Raises adErrIllegalOperation while a row is being edited.
    void Close();
    [[nodiscard]] ObjectStateEnum GetState() const { return IsOpen() ? adStateOpen : adStateClosed; }
    /// Runs the statement again; filter and sort order stay. Raises adErrIllegalOperation as Close does.
    void Requery();
    /// Reads the current row, the rows shown or all rows anew, and drops an edit. Raises DB_E_DELETEDROW when
    /// one of them is gone.
    void Resync(AffectEnum affect = adAffectAll);

    [[nodiscard]] Fields& GetFields();

    // Moves. A move away from a row that is being edited first does Update.
    [[nodiscard]] bool IsBOF();
    [[nodiscard]] bool IsEOF();
    void MoveFirst();
    void MoveLast();
    /// From the last row it leads behind it, where IsEOF holds; from there it raises adErrNoCurrentRecord.
    /// MovePrevious is the same in the other direction.
    void MoveNext();
    void MovePrevious();
    /// Goes nRows on, or back, from the current row, a bookmark, or a BookmarkEnum; to the end at most.
    void Move(long nRows, const CVariant& start = CVariant());
    /// From 1; adPosBOF, adPosEOF, adPosUnknown.
    [[nodiscard]] long GetAbsolutePosition();
    void PutAbsolutePosition(long nPosition);
    /// The rows shown; -1 where the cursor runs forward only.
    [[nodiscard]] long GetRecordCount();
    /// What leads back to the current row, in this recordset and its clones.
    [[nodiscard]] CVariant GetBookmark();
    /// Raises DB_E_BADBOOKMARK for what is no bookmark of a row shown.
    void PutBookmark(const CVariant& bookmark);

    // Edits. Fields are given values; Update stores them.
    /// adEditDelete where the current row has been deleted.
    [[nodiscard]] EditModeEnum GetEditMode();
    /// Makes a new row current, whose fields are empty.
    void AddNew();
    /// Stores the row being edited. A new one becomes the last row shown and stays current. A failure leaves
    /// the edit as it was.
    void Update();
    void CancelUpdate();
    /// Deletes the current row, which stays current, without values, until a move; or all rows shown.
    void Delete(AffectEnum affect = adAffectCurrent);

    /// Goes to the next row, the current or start row among them, that meets one condition (see CCriteria);
    /// nSkip rows are left out first. Where none does it is the end, or in a backward search the beginning.
    void Find(const std::wstring& strCriteria, long nSkip = 0,
              SearchDirectionEnum direction = adSearchForward, const CVariant& start = CVariant());
    [[nodiscard]] const std::wstring& GetFilter() const { return m_strFilter; }
    /// Shows the rows that meet the criteria only, all rows with an empty text or adFilterNone, and goes to
    /// the first. Other groups raise adErrFeatureNotAvailable.
    void PutFilter(const std::wstring& strCriteria);
    void PutFilter(FilterGroupEnum group);
    [[nodiscard]] const std::wstring& GetSort() const { return m_strSort; }
    /// Sorts the rows by columns, "QYBH ASC, SD DESC", and goes to the first; an empty text restores the
    /// order of the statement. A cursor of the server raises adErrFeatureNotAvailable.
    void PutSort(const std::wstring& strSort);

    /// A recordset of the same rows, with a current row, filter and order of its own: it begins with none.
    [[nodiscard]] RecordsetPtr Clone();
    /// The current row and those after it, nRows at most, as text, and moves behind them.
    [[nodiscard]] std::wstring GetString(StringFormatEnum format = adClipString, long nRows = adGetRowsRest,
                                         const std::wstring& strColumnEnd = L"\t",
                                         const std::wstring& strRowEnd = L"\r",
                                         const std::wstring& strNull = L"");
    /// Writes the rows shown to a file, as XML, and goes to the first. A file that is there raises
    /// adErrFileExists, unless it is the one that the recordset was last saved to or opened from; that is
    /// also the one that an empty path means.
    void Save(const std::wstring& strPath = {}, PersistFormatEnum format = adPersistXML);

private:
    friend class Connection;
    using CReader = std::function<std::unique_ptr<CDbCursor>()>;
    /// The values given to the fields of the current or new row.
    struct CEdit {
        EditModeEnum m_mode = adEditNone;
        std::map<std::size_t, CDbValue> m_mapValues;
    };

    void OpenStatement(const ConnectionPtr& pConnection, const CStatement& statement);
    void OpenFile(const std::wstring& strPath);
    void OpenRows(CReader reader);
    void TakeTypes(CursorTypeEnum cursorType, LockTypeEnum lockType);
    [[nodiscard]] bool CanReadAnew();
    void RequireClosed() const;
    void RequireNoEdit() const;

    [[nodiscard]] bool IsOpen() const { return m_pRows && m_pRows->IsOpen(); }
    /// The rows of an open recordset, and the view on them, up to date.
    CDbCursor& Rows();
    std::size_t RequireRow();
    void RequireBackward() const;
    void LeaveRow();
    void ArriveAt(long nPlace);
    long PlaceOfStart(const CVariant& start);
    void SelectRows(const std::wstring& strFilter, const std::wstring& strSort);
    [[nodiscard]] std::vector<CSortKey> SortKeys(const std::wstring& strSort);

    CVariant FieldValue(std::size_t nColumn) override;
    void PutFieldValue(std::size_t nColumn, const CVariant& value) override;
    void RequireUpdatable() const;
    [[nodiscard]] std::vector<CDbChange> Changes(std::optional<std::size_t> nRow);

    CursorTypeEnum m_cursorType = adOpenForwardOnly;
    CursorLocationEnum m_cursorLocation = adUseServer;
    LockTypeEnum m_lockType = adLockReadOnly;
    std::wstring m_strSource;
    ConnectionPtr m_pConnection;
    std::wstring m_strFile; ///< where Save writes unless told
    CReader m_reader;       ///< runs the statement
    std::shared_ptr<CRecordsetRows> m_pRows;
    CRecordsetView m_view;
    Fields m_fields;
    CEdit m_edit;
    std::wstring m_strFilter;
    std::wstring m_strSort;
};

} // namespace ADODB
