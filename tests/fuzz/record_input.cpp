#include "tests/fuzz/record_input.h"

#include "platform/acad/db_line.h"

#include <algorithm>
#include <array>
#include <cstring>

namespace {

constexpr std::array<AcDb::FilerType, 3> g_types = {AcDb::kFileFiler, AcDb::kCopyFiler, AcDb::kUndoFiler};
constexpr unsigned g_nKinds = 4; // of references; a byte is a place in the list of ids times this and a kind

AcDbObjectId AppendLine(AcDbDatabase& database) {
    const CDbOpen<AcDbBlockTableRecord> space(database.ModelSpaceId(), AcDb::kForWrite);
    AcDbObjectId id;
    auto* const pLine = new AcDbLine;
    space->appendAcDbEntity(id, pLine);
    pLine->close();
    return id;
}

template <class Table>
AcDbObjectId RecordNamed(AcDbObjectId idTable, const ACHAR* name) {
    AcDbObjectId id;
    CDbOpen<Table>(idTable)->getAt(name, id);
    return id;
}

} // namespace

CRecordInputs::CRecordInputs()
    : m_arIds{AcDbObjectId::kNull,
              m_database.clayer(),
              m_database.textstyle(),
              RecordNamed<AcDbLinetypeTable>(m_database.linetypeTableId(), L"Continuous"),
              RecordNamed<AcDbRegAppTable>(m_database.regAppTableId(), L"ACAD"),
              AppendLine(m_database)} {}

CRecordInput CRecordInputs::Decode(std::span<const std::uint8_t> bytes) const {
    CRecordInput input;
    const auto take = [&bytes] {
        const unsigned nByte = bytes.empty() ? 0U : bytes.front();
        bytes = bytes.subspan(bytes.empty() ? 0 : 1);
        return nByte;
    };
    input.m_type = g_types[take() % g_types.size()];
    for (unsigned nLeft = take(); nLeft > 0; --nLeft) {
        const unsigned nReference = take();
        input.m_record.m_arIds.push_back({static_cast<CFiledId::CKind>(nReference % g_nKinds),
                                          m_arIds[nReference / g_nKinds % m_arIds.size()]});
    }
    input.m_record.m_arBytes.resize(bytes.size());
    std::transform(bytes.begin(), bytes.end(), input.m_record.m_arBytes.begin(),
                   [](std::uint8_t nByte) { return std::byte{nByte}; });
    return input;
}

CInput CRecordInputs::Encode(const CRecordInput& input) const {
    const auto place = [](const auto& list, const auto& value) {
        return static_cast<std::size_t>(std::find(list.begin(), list.end(), value) - list.begin());
    };
    CInput bytes = {static_cast<std::uint8_t>(place(g_types, input.m_type)),
                    static_cast<std::uint8_t>(input.m_record.m_arIds.size())};
    for (const CFiledId& reference : input.m_record.m_arIds)
        bytes.push_back(static_cast<std::uint8_t>(place(m_arIds, reference.m_id) * g_nKinds +
                                                  static_cast<unsigned>(reference.m_kind)));
    for (const std::byte nByte : input.m_record.m_arBytes)
        bytes.push_back(std::to_integer<std::uint8_t>(nByte));
    return bytes;
}
