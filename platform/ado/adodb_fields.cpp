#include "platform/ado/adodb_fields.h"

#include <algorithm>
#include <utility>

#include "platform/ado/com_error.h"
#include "platform/ado/data_type.h"
#include "platform/ado/variant_value.h"
#include "platform/windows/code_page.h"

using namespace ADODB;

namespace {

/// The size of a text or bytes, in characters or bytes.
std::size_t Length(const CVariant& value) {
    return value.Type() == VT_BSTR ? value.Text().size() : value.Bytes().size();
}

CVariant Piece(const CVariant& value, std::size_t nFrom, std::size_t nLength) {
    if (value.Type() == VT_BSTR) return CVariant(value.Text().substr(nFrom, nLength));
    const std::vector<unsigned char>& arBytes = value.Bytes();
    const auto begin = arBytes.begin() + static_cast<std::ptrdiff_t>(nFrom);
    return CVariant(std::vector<unsigned char>(begin, begin + static_cast<std::ptrdiff_t>(nLength)));
}

CVariant Joined(const CVariant& value, const CVariant& piece) {
    if (value.Type() == VT_BSTR) return CVariant(value.Text() + VariantText(piece));
    std::vector<unsigned char> arBytes = value.Bytes();
    arBytes.insert(arBytes.end(), piece.Bytes().begin(), piece.Bytes().end());
    return CVariant(std::move(arBytes));
}

wchar_t Lower(wchar_t character) {
    return character >= L'A' && character <= L'Z' ? character + (L'a' - L'A') : character;
}

} // namespace

Field::Field(CFieldSource* pSource, CChunkProgress* pProgress, CDbColumn column, std::size_t nColumn)
    : m_pSource(pSource)
    , m_pProgress(pProgress)
    , m_column(std::move(column))
    , m_strName(WideFromGbk(m_column.m_strName))
    , m_nColumn(nColumn) {}

DataTypeEnum Field::GetType() const {
    return DataTypeOf(m_column);
}

long Field::GetDefinedSize() const {
    return DefinedSizeOf(m_column);
}

long Field::GetActualSize() {
    const CVariant value = m_pSource->FieldValue(m_nColumn);
    if (value.Type() == VT_EMPTY || value.IsNull()) return 0;
    const bool bText = value.Type() == VT_BSTR;
    if (bText || value.Type() == VT_BYTES) return static_cast<long>(Length(value) * (bText ? 2 : 1));
    return DefinedSizeOf(m_column);
}

CVariant Field::GetValue() {
    *m_pProgress = {};
    return m_pSource->FieldValue(m_nColumn);
}

void Field::PutValue(const CVariant& value) {
    *m_pProgress = {};
    m_pSource->PutFieldValue(m_nColumn, value);
}

CVariant Field::GetChunk(long nLength) {
    if (nLength < 0) RaiseAdoError(adErrInvalidArgument);
    const CVariant value = m_pSource->FieldValue(m_nColumn);
    if (value.Type() == VT_EMPTY || value.IsNull()) return CVariant::Null();
    if (value.Type() != VT_BSTR && value.Type() != VT_BYTES) RaiseAdoError(adErrIllegalOperation);
    if (m_pProgress->m_nReading != m_nColumn) *m_pProgress = {m_nColumn, 0, std::nullopt};
    const std::size_t nFrom = std::min(m_pProgress->m_nRead, Length(value));
    const std::size_t nTaken = std::min(static_cast<std::size_t>(nLength), Length(value) - nFrom);
    if (nTaken == 0 && nLength > 0) return CVariant::Null();
    m_pProgress->m_nRead = nFrom + nTaken;
    return Piece(value, nFrom, nTaken);
}

void Field::AppendChunk(const CVariant& piece) {
    const bool bTextColumn = m_column.m_wType == DBTYPE_BSTR;
    const bool bBytesColumn = m_column.m_wType == DBTYPE_BYTES;
    const bool bFits = piece.Type() == VT_BYTES ? !bTextColumn : piece.Type() == VT_BSTR && !bBytesColumn;
    if (!bTextColumn && !bBytesColumn && m_column.m_wType != DBTYPE_EMPTY)
        RaiseAdoError(adErrIllegalOperation);
    if (!bFits) RaiseAdoError(adErrInvalidArgument);
    if (m_pProgress->m_nAppending != m_nColumn) {
        m_pSource->PutFieldValue(m_nColumn, piece);
        *m_pProgress = {std::nullopt, 0, m_nColumn};
        return;
    }
    m_pSource->PutFieldValue(m_nColumn, Joined(m_pSource->FieldValue(m_nColumn), piece));
}

Field& Fields::GetItem(const std::wstring& strName) {
    for (Field& field : m_arFields)
        if (std::ranges::equal(field.GetName(), strName, {}, Lower, Lower)) return field;
    RaiseAdoError(adErrItemNotFound, "There is no field \"" + GbkFromWide(strName) + "\".");
}

Field& Fields::GetItem(long nIndex) {
    if (nIndex < 0 || nIndex >= GetCount())
        RaiseAdoError(adErrItemNotFound, "There is no field number " + std::to_string(nIndex) + ".");
    return m_arFields[static_cast<std::size_t>(nIndex)];
}

void Fields::Reset(CFieldSource* pSource, const std::vector<CDbColumn>& arColumns) {
    m_arFields.clear();
    m_progress = {};
    for (std::size_t i = 0; i < arColumns.size(); ++i)
        m_arFields.emplace_back(pSource, &m_progress, arColumns[i], i);
}
