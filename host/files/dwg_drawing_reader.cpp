#include "host/files/dwg_drawing_reader.h"

#include "host/files/block_check.h"
#include "host/files/dwg_block_reader.h"
#include "host/files/dwg_common.h"
#include "host/files/dwg_error.h"
#include "host/files/dwg_handle_map.h"
#include "host/files/dwg_object_reader.h"
#include "host/files/dwg_proxies.h"
#include "host/files/dwg_table_reader.h"
#include "host/files/typeface.h"
#include "platform/acad/standard_handles.h"

#include <algorithm>

namespace {

constexpr std::uint64_t g_nHighestHandle = std::uint64_t{1} << 62; ///< leaves room for objects to come

/// Takes the font away that stands among a style's extended data, since the style itself has it by now.
void DropTypeface(AcDbTextStyleTableRecord& style, const AcDbDatabase& database) {
    if (!TypefaceItems(style).empty())
        style.PutXData({RecordNamed(database.regAppTableId(), g_szTypefaceApp), {}});
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

/// What other objects of the file may be referred to for.
void ReadRelations(const CDwgReading& reading) {
    for (const auto& [nHandle, id] : reading.m_ids) {
        const CDbOpen<AcDbObject> open(id, AcDb::kForWrite);
        const CDwgRecord& record = *reading.m_pOrigin->Find(nHandle);
        ReadReactors(*open.Get(), record, reading);
        ReadDwgExtendedData(*open.Get(), record, reading);
        if (auto* const pStyle = AcDbTextStyleTableRecord::cast(open.Get()))
            DropTypeface(*pStyle, reading.m_database);
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

/// Lets what a new drawing has make way for what the file has.
void MoveAside(AcDbDatabase& database, std::uint64_t nSpare) {
    database.SetHandseed(AcDbHandle(nSpare));
    for (const AcDbObjectId& id : database.ObjectIds())
        database.SetHandle(id, database.handseed());
}

/// Lets the handles to come follow those in use, and not be below the one that the file gives as the next.
void EndHandles(AcDbDatabase& database, std::uint64_t nSpare) {
    const std::uint64_t nHighest = database.ObjectIds().back().handle().Value();
    database.SetHandseed(AcDbHandle(std::max({nSpare, nHighest + 1, CStandardHandles::s_nFirstFree})));
}

/// Above every handle of the file, and not below the one that it gives as such.
std::uint64_t SpareHandle(const CDwgFile& file) {
    const std::uint64_t nHighest = file.m_contents.empty() ? 0 : file.m_contents.rbegin()->first;
    if (nHighest > g_nHighestHandle) throw CDwgError("Object map: a handle is higher than any drawing's.");
    const std::uint64_t nSeed = file.m_variables.m_hHandseed.m_nValue;
    return std::max(nHighest + 1, nSeed > g_nHighestHandle ? 0 : nSeed);
}

} // namespace

std::unique_ptr<AcDbDatabase> DrawingOfDwg(const CDwgFile& file, const CReadGoesOn& fnGoesOn) {
    const std::uint64_t nSpare = SpareHandle(file);
    auto pDatabase = std::make_unique<AcDbDatabase>();
    CDwgReading reading{*pDatabase, std::make_shared<const CDwgOrigin>(file), {}, fnGoesOn};
    MoveAside(*pDatabase, nSpare);
    ReadDwgTables(file.m_variables.m_roots, reading);
    ReadDwgBlocks(reading);
    if (const std::optional<CBlockFault> fault = FindBlockFault(*pDatabase))
        throw CDwgError("Block " + fault->m_strBlock + ": " + fault->m_strWhat + ".");
    ReadDwgObjects(reading);
    ReadDwgOwnParts(reading);
    ReadRelations(reading);
    ReadVariables(file.m_variables, reading);
    EndHandles(*pDatabase, nSpare);
    pDatabase->SetOrigin(reading.m_pOrigin);
    ReviveProxies(*pDatabase);
    ShowDwgProxies(reading);
    pDatabase->SetModified(false);
    return pDatabase;
}
