#include "host/files/dwg_drawing_reader.h"

#include "host/files/dwg_block_reader.h"
#include "host/files/dwg_common.h"
#include "host/files/dwg_error.h"
#include "host/files/dwg_fixed_handles.h"
#include "host/files/dwg_handle_map.h"
#include "host/files/dwg_table_reader.h"

#include <algorithm>

namespace {

constexpr std::uint64_t g_nHighestHandle = std::uint64_t{1} << 62; ///< leaves room for objects to come

/// Takes the font away that stands among a style's extended data, since the style itself has it by now.
void DropTypeface(AcDbTextStyleTableRecord& style, const AcDbDatabase& database) {
    std::wstring strTypeface;
    Adesk::Boolean bBold = 0, bItalic = 0;
    int nCharset = 0, nPitchAndFamily = 0;
    style.font(strTypeface, bBold, bItalic, nCharset, nPitchAndFamily);
    if (!strTypeface.empty()) style.PutXData({RecordNamed(database.regAppTableId(), L"ACAD"), {}});
}

/// Those of the records of layers, line types and so on.
void ReadTablesExtendedData(const CDwgReading& reading) {
    for (const auto& [nHandle, id] : reading.m_ids) {
        const CDbOpen<AcDbSymbolTableRecord> open(id, AcDb::kForWrite);
        ReadDwgExtendedData(*open.Get(), reading.m_records.at(nHandle), reading);
        if (auto* const pStyle = AcDbTextStyleTableRecord::cast(open.Get()))
            DropTypeface(*pStyle, reading.m_database);
    }
}

/// The objects that an object tells of changes, all of which must have been read.
void ReadReactors(AcDbObject& object, const CDwgRecord& record, const CDwgReading& reading) {
    CDwgRecordReader io(record);
    CDwgEntityCommon entity;
    CDwgObjectCommon other;
    const bool bEntity = object.isKindOf(AcDbEntity::desc());
    if (bEntity) {
        FileEntityCommon(io, entity);
    } else {
        FileObjectCommon(io, other);
    }
    for (const CDwgHandle& handle : bEntity ? entity.m_arReactors : other.m_arReactors)
        object.addPersistentReactor(reading.IdOf(handle)); // which refuses none
}

void ReadAllReactors(const CDwgReading& reading) {
    for (const auto& [nHandle, id] : reading.m_ids) {
        const CDbOpen<AcDbObject> open(id, AcDb::kForWrite);
        if (open) ReadReactors(*open.Get(), reading.m_records.at(nHandle), reading);
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
    const CDrawingText text(CodePageOfDwg(nCodePage));
    CDwgReading reading{*pDatabase, text, nCodePage, {}, {}, file.m_arClasses, SpareHandle(file)};
    for (const auto& [nHandle, content] : file.m_contents)
        reading.m_records.emplace_hint(reading.m_records.end(), nHandle, ReadDwgRecord(content, nHandle));
    ReadDwgTables(file.m_variables.m_roots, reading);
    ReadTablesExtendedData(reading);
    ReadDwgBlocks(reading);
    ReadAllReactors(reading);
    ReadVariables(file.m_variables, reading);
    TakeDwgHandle(reading, std::max(reading.m_nSpareHandle, CDwgFixed::s_nFirstFree));
    pDatabase->SetModified(false);
    return pDatabase;
}
