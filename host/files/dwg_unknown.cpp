#include "host/files/dwg_unknown.h"

#include "host/files/dwg_own_part.h"
#include "platform/acad/db_proxy.h"
#include "platform/acad/db_stub.h"

std::vector<CDwgUnknown> UnknownInDwg(const AcDbDatabase& database) {
    std::map<std::uint16_t, CDwgUnknown> kinds;
    for (const AcDbObjectId& id : database.ObjectIds()) {
        const auto* const pProxy = dynamic_cast<const CProxy*>(PeekObject<AcDbObject>(id));
        const auto* const pPart =
            pProxy ? dynamic_cast<const CDwgOwnPart*>(pProxy->ClassPart().m_pForeign.get()) : nullptr;
        if (!pPart) continue;
        CDwgUnknown& kind = kinds[pPart->m_nType];
        kind.m_strName = pProxy->originalDxfName();
        kind.m_nType = pPart->m_nType;
        kind.m_bEntities = PeekObject<AcDbEntity>(id) != nullptr;
        ++kind.m_nCount;
    }
    std::vector<CDwgUnknown> unknown;
    unknown.reserve(kinds.size());
    for (auto& [nType, kind] : kinds)
        unknown.push_back(std::move(kind));
    return unknown;
}
