#include "host/files/dwg_reading.h"

#include "host/files/dwg_extended_data.h"
#include "platform/acad/db_stub.h"

void IdentifyDwg(CDwgReading& reading, AcDbObjectId id, std::uint64_t nHandle) {
    const bool bOwn = reading.m_pOrigin->Find(id.handle().Value()) != nullptr;
    if (!bOwn) reading.m_database.SetHandle(id, AcDbHandle(nHandle));
    reading.m_ids[nHandle] = id;
}

void ReadDwgExtendedData(AcDbObject& object, const CDwgRecord& record, const CDwgReading& reading) {
    const CDwgExtendedContext context{reading.m_pOrigin->m_text,
                                      reading.m_pOrigin->m_file.m_identity.m_nCodePage,
                                      {},
                                      [&](std::uint64_t nHandle) {
                                          const auto* const pLayer =
                                              PeekObject<AcDbLayerTableRecord>(reading.IdOf(nHandle));
                                          return pLayer ? pLayer->Name() : std::wstring();
                                      }};
    for (const CDwgExtendedData& data : record.m_arExtended) {
        const AcDbObjectId idApp = reading.IdOf(data.m_hApp);
        if (PeekObject<AcDbRegAppTableRecord>(idApp))
            object.PutXData({idApp, UnpackExtendedData(data.m_arBytes, context)});
    }
}
