#include "host/files/dwg_proxies.h"

#include "host/files/dwg_common.h"
#include "host/files/dwg_own_part.h"
#include "host/files/dwg_types.h"
#include "host/files/proxy_graphics.h"
#include "platform/acad/db_stub.h"
#include "platform/acad/db_tables.h"

namespace {

using CIdKind = CFiledId::CKind;

CIdKind KindOf(std::uint8_t nCode) {
    switch (nCode) {
    case CDwgHandle::s_nSoftOwner:
        return CIdKind::SoftOwnership;
    case CDwgHandle::s_nHardOwner:
        return CIdKind::HardOwnership;
    case CDwgHandle::s_nHardPointer:
        return CIdKind::HardPointer;
    default:
        return CIdKind::SoftPointer;
    }
}

bool StandsInBlock(const AcDbObject& entity) {
    return PeekObject<AcDbBlockTableRecord>(entity.ownerId()) != nullptr;
}

/// Makes the class's part of a proxy's record.
class COwnPartReader {
public:
    COwnPartReader(const CDwgRecord& record, const CDwgReading& reading)
        : m_io(record)
        , m_record(record)
        , m_reading(reading)
        , m_pPart(std::make_shared<CDwgOwnPart>()) {
        m_pPart->m_pOrigin = reading.m_pOrigin;
        m_pPart->m_nType = record.m_nType;
    }

    CDbRecord Read(const AcDbObject& object, const std::vector<AcDbObjectId>& owned) {
        if (object.isKindOf(AcDbEntity::desc())) {
            ReadEntityCommon(!StandsInBlock(object));
        } else {
            ReadDwgCommon<CDwgObjectCommon>(m_io, m_record.m_nHandle, DWG_FILED(FileObjectCommon));
        }
        m_pPart->m_data.m_nCount = m_io.Left();
        m_io.RawBits(m_pPart->m_data.m_arBytes, m_io.Left());
        while (m_io.HandlesLeft()) {
            CDwgHandle handle;
            m_io.Handle(handle);
            Take(handle);
        }
        for (const AcDbObjectId& id : owned)
            m_part.m_arIds.push_back({CIdKind::HardOwnership, id});
        m_part.m_pForeign = std::move(m_pPart);
        return std::move(m_part);
    }

private:
    void ReadEntityCommon(bool bNeighbours) {
        const auto common =
            ReadDwgCommon<CDwgEntityCommon>(m_io, m_record.m_nHandle, DWG_FILED(FileEntityCommon));
        m_pPart->m_bNeighbours = bNeighbours;
        if (!bNeighbours) return;
        Take(common.m_bNeighbours ? SoftPointer(m_record.m_nHandle - 1) : common.m_hPrevious);
        Take(common.m_bNeighbours ? SoftPointer(m_record.m_nHandle + 1) : common.m_hNext);
    }

    /// A reference to what is no object of the drawing stays as it is.
    void Take(CDwgHandle handle) {
        const AcDbObjectId id = m_reading.IdOf(handle);
        m_part.m_arIds.push_back({KindOf(handle.m_nCode), id});
        if (!id.isNull()) handle.m_nValue = 0;
        m_pPart->m_arHandles.push_back(handle);
    }

    CDwgRecordReader m_io;
    const CDwgRecord& m_record;
    const CDwgReading& m_reading;
    std::shared_ptr<CDwgOwnPart> m_pPart;
    CDbRecord m_part;
};

} // namespace

CProxyOrigin DwgProxyOrigin(const CDwgRecord& record, const CDwgReading& reading) {
    if (const CDwgType* const pType = FindDwgType(record.m_nType))
        return {pType->m_pClassName, pType->m_pDxfName, L"", 0};
    const CDwgClass* const pClass = reading.m_pOrigin->FindClass(record.m_nType);
    if (!pClass) return {};
    return {reading.Text(pClass->m_strClassName), reading.Text(pClass->m_strDxfName),
            reading.Text(pClass->m_strAppName), pClass->m_nProxyFlags};
}

void ReadDwgOwnParts(const CDwgReading& reading) {
    std::map<AcDbHandle, std::vector<AcDbObjectId>> owned; // entities that stand in no block, by owner
    for (const auto& [nHandle, id] : reading.m_ids) {
        const auto* const pEntity = PeekObject<AcDbProxyEntity>(id);
        if (pEntity && !StandsInBlock(*pEntity)) owned[pEntity->ownerId().handle()].push_back(id);
    }
    for (const auto& [nHandle, id] : reading.m_ids) {
        auto* const pProxy = dynamic_cast<CProxy*>(PeekObject<AcDbObject>(id));
        if (!pProxy) continue;
        const CDwgRecord& record = *reading.m_pOrigin->Find(nHandle);
        pProxy->SetClassPart(
            COwnPartReader(record, reading).Read(*PeekObject<AcDbObject>(id), owned[id.handle()]));
    }
}

void ShowDwgProxies(const CDwgReading& reading) {
    const auto decode = [&reading](std::string_view bytes) {
        return reading.m_pOrigin->m_text.Decode(bytes);
    };
    for (const auto& [nHandle, id] : reading.m_ids) {
        if (!PeekObject<AcDbProxyEntity>(id)) continue;
        const CDbOpen<AcDbProxyEntity> proxy(id);
        CDwgRecordReader reader(*reading.m_pOrigin->Find(nHandle));
        const auto common = ReadDwgCommon<CDwgEntityCommon>(reader, nHandle, DWG_FILED(FileEntityCommon));
        if (common.m_bGraphics)
            proxy->SetPicture(std::make_shared<const CDisplayList>(
                ReadProxyGraphics(common.m_arGraphics, *proxy.Get(), decode)));
    }
}
