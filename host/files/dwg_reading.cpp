#include "host/files/dwg_reading.h"

#include "host/files/dwg_extended_data.h"
#include "platform/acad/db_stub.h"

void TakeDwgHandle(CDwgReading& reading, std::uint64_t nHandle) {
    while (!reading.m_database.SetHandseed(AcDbHandle(nHandle)))
        nHandle = reading.m_nSpareHandle++;
}

void ReadDwgExtendedData(AcDbObject& object, const CDwgRecord& record, const CDwgReading& reading) {
    const CDwgExtendedContext context{reading.m_text, reading.m_nCodePage, {}, [&](std::uint64_t nHandle) {
                                          const auto* const pLayer = PeekObject<AcDbLayerTableRecord>(
                                              reading.IdOf(HardPointer(nHandle)));
                                          return pLayer ? pLayer->Name() : std::wstring();
                                      }};
    for (const CDwgExtendedData& data : record.m_arExtended) {
        const AcDbObjectId idApp = reading.IdOf(data.m_hApp);
        if (PeekObject<AcDbRegAppTableRecord>(idApp))
            object.PutXData({idApp, UnpackExtendedData(data.m_arBytes, context)});
    }
}
