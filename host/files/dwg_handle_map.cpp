#include "host/files/dwg_handle_map.h"

#include "host/files/dwg_origin.h"
#include "platform/acad/db_stub.h"

#include <algorithm>

AcDbObjectId RecordNamed(AcDbObjectId idTable, const ACHAR* name) {
    const auto* const pTable = PeekObject<AcDbSymbolTable>(idTable);
    return pTable ? pTable->Find(name) : AcDbObjectId::kNull;
}

CDwgHandleMap::CDwgHandleMap(const AcDbDatabase& database)
    : m_nNext(std::max(database.handseed().Value(), CStandardHandles::s_nFirstFree)) {
    FindGone(database);
    if (!DwgOriginOf(database)) FixHandles(database);
}

void CDwgHandleMap::FindGone(const AcDbDatabase& database) {
    std::map<AcDbHandle, bool> seen; // whether each is gone
    for (const AcDbObjectId& id : database.ObjectIds()) {
        std::vector<AcDbHandle> path;
        AcDbObjectId idAt = id;
        while (!idAt.isNull() && !idAt.isErased() && seen.try_emplace(idAt.handle(), false).second) {
            path.push_back(idAt.handle());
            idAt = PeekObject<AcDbObject>(idAt)->ownerId();
        }
        if (idAt.isNull() || (!idAt.isErased() && !seen[idAt.handle()])) continue;
        for (const AcDbHandle& handle : path)
            seen[handle] = m_gone.insert(handle).second;
    }
}

void CDwgHandleMap::FixHandles(const AcDbDatabase& database) {
    const std::pair<AcDbObjectId, std::uint64_t> fixed[] = {
        {database.blockTableId(), CStandardHandles::s_nBlocks},
        {database.layerTableId(), CStandardHandles::s_nLayers},
        {database.textStyleTableId(), CStandardHandles::s_nStyles},
        {database.linetypeTableId(), CStandardHandles::s_nLinetypes},
        {database.regAppTableId(), CStandardHandles::s_nApps},
        {database.namedObjectsDictionaryId(), CStandardHandles::s_nNamedObjects},
        {database.ModelSpaceId(), CStandardHandles::s_nModelSpace},
        {RecordNamed(database.blockTableId(), ACDB_PAPER_SPACE), CStandardHandles::s_nPaperSpace},
        {RecordNamed(database.layerTableId(), L"0"), CStandardHandles::s_nLayer0},
        {RecordNamed(database.textStyleTableId(), L"Standard"), CStandardHandles::s_nStandardStyle},
        {RecordNamed(database.regAppTableId(), L"ACAD"), CStandardHandles::s_nAcadApp},
        {RecordNamed(database.linetypeTableId(), L"ByBlock"), CStandardHandles::s_nByBlock},
        {RecordNamed(database.linetypeTableId(), L"ByLayer"), CStandardHandles::s_nByLayer},
        {RecordNamed(database.linetypeTableId(), L"Continuous"), CStandardHandles::s_nContinuous}};
    for (const auto& [id, nHandle] : fixed)
        if (!id.isNull()) m_mapHandles[id.handle()] = nHandle;
    for (const AcDbObjectId& id : database.ObjectIds()) {
        if (id.handle().Value() >= CStandardHandles::s_nFirstFree) break; // they come in order
        if (m_mapHandles.try_emplace(id.handle(), m_nNext).second) ++m_nNext;
    }
}

std::uint64_t CDwgHandleMap::Of(AcDbObjectId id) const {
    if (id.isNull() || id.isErased() || m_gone.contains(id.handle())) return 0;
    const auto found = m_mapHandles.find(id.handle());
    return found == m_mapHandles.end() ? id.handle().Value() : found->second;
}
