#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "platform/ado/adodb_enums.h"
#include "platform/ado/cursor.h"
#include "platform/ado/variant.h"

namespace ADODB {

/// What fields need of the recordset whose current row they show. Failures raise CComError.
class CFieldSource {
public:
    virtual ~CFieldSource() = default;
    [[nodiscard]] virtual CVariant FieldValue(std::size_t nColumn) = 0;
    virtual void PutFieldValue(std::size_t nColumn, const CVariant& value) = 0;
};

/// Which field is being read or written piece by piece. Using another field, or leaving the row, ends that.
struct CChunkProgress {
    std::optional<std::size_t> m_nReading;
    std::size_t m_nRead = 0; ///< bytes, or characters of a text
    std::optional<std::size_t> m_nAppending;
};

/// A column's value in the current row of a recordset. Failures raise CComError.
class Field {
public:
    Field(CFieldSource* pSource, CChunkProgress* pProgress, CDbColumn column, std::size_t nColumn);

    [[nodiscard]] const std::wstring& GetName() const { return m_strName; }
    [[nodiscard]] DataTypeEnum GetType() const;
    /// Bytes of a number, characters of a text.
    [[nodiscard]] long GetDefinedSize() const;
    /// Bytes of the value, of a text two for each character; 0 for NULL.
    [[nodiscard]] long GetActualSize();

    /// VT_EMPTY for a field of a new row that has not been given a value.
    [[nodiscard]] CVariant GetValue();
    /// Takes effect in the table with the recordset's Update.
    void PutValue(const CVariant& value);

    /// The next nLength bytes of bytes, or characters of a text; NULL when all have been read.
    [[nodiscard]] CVariant GetChunk(long nLength);
    /// Adds bytes or text to the value; the first piece replaces the value that was there. Fields of other
    /// types refuse it.
    void AppendChunk(const CVariant& piece);

private:
    CFieldSource* m_pSource;
    CChunkProgress* m_pProgress;
    CDbColumn m_column;
    std::wstring m_strName;
    std::size_t m_nColumn;
};

/// The fields of a recordset, by name, without regard to case, or by position from 0. Its items last until
/// the recordset is opened or queried anew.
class Fields {
public:
    [[nodiscard]] long GetCount() const { return static_cast<long>(m_arFields.size()); }
    /// An item that is not there raises adErrItemNotFound.
    [[nodiscard]] Field& GetItem(const std::wstring& strName);
    [[nodiscard]] Field& GetItem(long nIndex);

private:
    friend class Recordset;
    void Reset(CFieldSource* pSource, const std::vector<CDbColumn>& arColumns);
    /// The current row was left.
    void EndChunks() { m_progress = {}; }

    std::vector<Field> m_arFields;
    CChunkProgress m_progress;
};

} // namespace ADODB
