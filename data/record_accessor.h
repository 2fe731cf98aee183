#pragma once

#include <cstddef>
#include <type_traits>
#include <vector>

#include "platform/ado/rowset.h"
#include "platform/mfc/string.h"

/// Bytes of a text column without its ending zero.
inline constexpr std::size_t g_nRecordTextLength = 255;
using CRecordText = char[g_nRecordTextLength + 1];

/// The type code under which a member of a row is bound.
template <class Member>
constexpr DBTYPE RecordType() {
    if constexpr (std::is_same_v<Member, CRecordText>) return DBTYPE_STR;
    if constexpr (std::is_same_v<Member, std::int32_t>) return DBTYPE_I4;
    if constexpr (std::is_same_v<Member, std::int16_t>) return DBTYPE_I2;
    if constexpr (std::is_same_v<Member, std::int8_t>) return DBTYPE_I1;
    if constexpr (std::is_same_v<Member, std::uint8_t>) return DBTYPE_UI1;
    if constexpr (std::is_same_v<Member, float>) return DBTYPE_R4;
    return DBTYPE_EMPTY;
}

/// One line of a record's table of columns: the position in the result from 1, the member that takes the
/// value, and the member that takes its status where the column has one. The type follows from the member.
template <class Row, class Member>
CColumnBinding RecordColumn(int nOrdinal, Member Row::*pMember, DBSTATUS Row::*pStatus = nullptr) {
    static_assert(RecordType<Member>() != DBTYPE_EMPTY, "a member of this type cannot be bound");
    static const Row s_row{};
    const auto offset = [](const void* pPlace) {
        return static_cast<std::size_t>(static_cast<const char*>(pPlace) -
                                        reinterpret_cast<const char*>(&s_row));
    };
    const std::size_t nLength = RecordType<Member>() == DBTYPE_STR ? g_nRecordTextLength : sizeof(Member);
    return {nOrdinal, RecordType<Member>(), nLength, offset(&(s_row.*pMember)),
            pStatus ? offset(&(s_row.*pStatus)) : g_nNoStatus};
}

/// One rowset over one fixed SELECT, whose columns bind by position: a table whose columns stand in another
/// order is read wrongly, and nothing notices. A record object is a short-lived local of the function that
/// uses it. It is closed or open; the destructor closes. Nothing here throws.
class CRecordAccessor {
public:
    CRecordAccessor(const CRecordAccessor&) = delete;
    CRecordAccessor& operator=(const CRecordAccessor&) = delete;

    /// The table's query with the criterion put in. Values in the criterion went through SqlText.
    CString QueryFor(const CString& strCriterion) const;
    /// Opens the rows of a statement, in the project's database or, with a flag that is not 0, in the common
    /// one. Not 0 on success. No message is given: the caller reports.
    int OpenRows(const CString& strStatement, int nUseCommonDb, int nUpdatable);
    /// Puts a row into the members: 0 when it is there, other when there is none or it could not be read.
    int MoveFirstRow();
    int MoveNextRow();
    /// Writes the members that changed since the row was read, with their status words, to that very row.
    /// Negative on failure; a write given up because of another program's lock names the row in the text
    /// window.
    int StoreRow();
    /// May be called on a closed object.
    void CloseRows();

protected:
    /// pRow is the row's members, nBytes of them; arColumns counts its places from there.
    CRecordAccessor(const char* pszQuery, std::vector<CColumnBinding> arColumns, void* pRow,
                    std::size_t nBytes);
    ~CRecordAccessor() = default;

private:
    const char* m_pszQuery;
    std::vector<CColumnBinding> m_arColumns;
    void* m_pRow;
    std::size_t m_nRowBytes;
    CDbRowset m_rows;
};
