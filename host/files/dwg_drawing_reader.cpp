#include "host/files/dwg_drawing_reader.h"

#include "host/files/dwg_block_reader.h"
#include "host/files/dwg_error.h"
#include "host/files/dwg_fixed_handles.h"
#include "host/files/dwg_table_reader.h"
#include "host/files/dwg_table_records.h"

#include <algorithm>

namespace {

constexpr std::uint64_t g_nHighestHandle = std::uint64_t{1} << 62; ///< leaves room for objects to come

/// Those of the records of layers, line types and so on; the font of a style is read already.
void ReadTablesExtendedData(const CDwgReading& reading) {
    for (const auto& [nHandle, id] : reading.m_ids) {
        const CDwgRecord& record = reading.m_records.at(nHandle);
        const CDbOpen<AcDbSymbolTableRecord> open(id, AcDb::kForWrite);
        if (open && record.m_nType != g_nDwgStyle) ReadDwgExtendedData(*open.Get(), record, reading);
    }
}

void ReadVariables(const CDwgVariables& vars, const CDwgReading& reading) {
    AcDbDatabase& database = reading.m_database;
    database.setLtscale(vars.m_dLtscale);
    database.setInsbase(vars.m_model.m_ptInsbase);
    database.setClayer(reading.IdOf(vars.m_hClayer));
    database.setTextstyle(reading.IdOf(vars.m_hTextstyle));
    const AcDbObjectId idLinetype = reading.IdOf(vars.m_hCeltype);
    database.setCeltype(vars.m_hCeltype.m_nValue == vars.m_roots.m_hByLayer.m_nValue ? AcDbObjectId::kNull
                                                                                     : idLinetype);
}

/// Above every handle of the file, and not below the one that it gives as such.
std::uint64_t SpareHandle(const CDwgFile& file) {
    const std::uint64_t nHighest = file.m_contents.empty() ? 0 : file.m_contents.rbegin()->first;
    if (nHighest > g_nHighestHandle) throw CDwgError("Object map: a handle is higher than any drawing's.");
    const std::uint64_t nSeed = file.m_variables.m_hHandseed.m_nValue;
    return std::max(nHighest + 1, nSeed > g_nHighestHandle ? 0 : nSeed);
}

} // namespace

std::unique_ptr<AcDbDatabase> DrawingOfDwg(const CDwgFile& file) {
    auto pDatabase = std::make_unique<AcDbDatabase>();
    const std::uint16_t nCodePage = file.m_identity.m_nCodePage;
    const CDwgText text(nCodePage);
    CDwgReading reading{*pDatabase, text, nCodePage, {}, {}, SpareHandle(file)};
    for (const auto& [nHandle, content] : file.m_contents)
        reading.m_records.emplace_hint(reading.m_records.end(), nHandle, ReadDwgRecord(content, nHandle));
    ReadDwgTables(file.m_variables.m_roots, reading);
    ReadTablesExtendedData(reading);
    ReadDwgBlocks(reading);
    ReadVariables(file.m_variables, reading);
    TakeDwgHandle(reading, std::max(reading.m_nSpareHandle, CDwgFixed::s_nFirstFree));
    pDatabase->SetModified(false);
    return pDatabase;
}
