#pragma once

#include <cstddef>
#include <limits>
#include <memory>
#include <string>
#include <vector>

#include "platform/ado/types.h"

class CDbConnection;
class CDbCursor;

/// A rowset call did what it says: 0.
inline constexpr int g_nRowsetOk = 0;
/// There is no row there: a positive status.
inline constexpr int g_nRowsetEnd = 0x00040EC6;
/// The call failed: a negative status. The reason is kept as the object's LastError.
inline constexpr int g_nRowsetFailed = std::numeric_limits<int>::min() + 0x4005;

inline constexpr std::size_t g_nNoStatus = static_cast<std::size_t>(-1);

/// Where one column of a row lies in the caller's buffer.
struct CColumnBinding {
    int m_nOrdinal;        ///< position of the column in the result, from 1
    DBTYPE m_wType;        ///< DBTYPE_I4, _I2, _I1, _UI1, _R4, _R8 or _STR
    std::size_t m_nLength; ///< bytes of the value; of a text without its ending zero
    std::size_t m_nValueOffset;
    std::size_t m_nStatusOffset; ///< of a DBSTATUS; g_nNoStatus where the column has none
};

/// What an opened rowset must be able to do.
struct CRowsetProperties {
    bool m_bCanHoldRows = false;
    bool m_bCanFetchBackwards = false;
    bool m_bScroll = false;
    bool m_bChange = false;
    int m_nUpdatability = 0; ///< 1 change, 2 delete, 4 insert
};

/// A data source known by its connection text. Nothing here throws: results are 1 and 0.
class CDbDataSource {
public:
    /// Opens the database that the connection text, wide, names.
    int Initialize(const wchar_t* pszConnection);
    void Release();
    /// Why Initialize failed, GBK.
    [[nodiscard]] const std::string& LastError() const { return m_strLastError; }

private:
    friend class CDbSession;
    std::shared_ptr<CDbConnection> m_pConnection;
    std::string m_strLastError;
};

/// A session on a data source; it keeps the database open by itself.
class CDbSession {
public:
    /// 0 when the source is not initialised.
    int Open(const CDbDataSource& source);
    void Release();

private:
    friend class CDbRowset;
    std::shared_ptr<CDbConnection> m_pConnection;
};

/// The rows of one statement, read into and stored from a buffer of the caller's, one row at a time. An open
/// rowset keeps the database open also when its session is released. Nothing here throws.
class CDbRowset {
public:
    CDbRowset();
    CDbRowset(const CDbRowset&) = delete;
    CDbRowset& operator=(const CDbRowset&) = delete;
    ~CDbRowset();

    /// Runs the statement, GBK. The buffer of nBytes stays the caller's and must outlive the open rowset. 0
    /// on failure, also when the result has fewer columns than are bound. A text that the code page lacks
    /// fails the opening and is named in the text window.
    int Open(const CDbSession& session, const char* pszSql, const CRowsetProperties& properties,
             std::vector<CColumnBinding> arBindings, void* pBuffer, std::size_t nBytes);
    [[nodiscard]] int IsOpen() const { return m_pCursor ? 1 : 0; }

    /// Fetches a row into the buffer: g_nRowsetOk, g_nRowsetEnd where there is none, g_nRowsetFailed when
    /// closed. NULL leaves zeros (no text) and status 3. A value of another kind than the buffer's is taken
    /// as far as it goes, since columns bind by position alone: a text as the number it begins with, a number
    /// out of range as the nearest end of it.
    int MoveFirst();
    int MoveNext();

    /// Writes what differs in the buffer, values and status words, since the row was fetched; nothing else of
    /// the row is touched and no other row. g_nRowsetOk also when nothing differs; g_nRowsetFailed without a
    /// current row, in a rowset not opened for change, and when the write is given up (which the text window
    /// tells).
    int Store();
    void Close();
    [[nodiscard]] const std::string& LastError() const { return m_strLastError; }

private:
    int Fetch(std::size_t nRow);

    std::unique_ptr<CDbCursor> m_pCursor;
    std::vector<CColumnBinding> m_arBindings;
    unsigned char* m_pBuffer = nullptr;
    std::vector<unsigned char> m_arFetched; ///< the buffer as the row was fetched into it
    std::size_t m_nRow = 0;
    bool m_bOnRow = false;
    bool m_bChange = false;
    std::string m_strLastError;
};
