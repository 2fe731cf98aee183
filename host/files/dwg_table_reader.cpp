#include "host/files/dwg_table_reader.h"

#include "host/files/dwg_extended_data.h"
#include "host/files/dwg_handle_map.h"
#include "host/files/dwg_table_records.h"
#include "host/files/typeface.h"

namespace {

class CTableReader {
public:
    explicit CTableReader(CDwgReading& reading)
        : m_reading(reading) {}

    void Read(const CDwgRoots& roots) {
        const AcDbDatabase& database = m_reading.m_database;
        ReadTable<AcDbRegAppTableRecord, CDwgAppRecord>(database.regAppTableId(), roots.m_hApps,
                                                        g_nDwgAppControl, g_nDwgApp, DWG_FILED(FileApp));
        ReadTable<AcDbLinetypeTableRecord, CDwgLinetypeRecord>(database.linetypeTableId(), roots.m_hLinetypes,
                                                               g_nDwgLinetypeControl, g_nDwgLinetype,
                                                               DWG_FILED(FileLinetype));
        ReadTable<AcDbTextStyleTableRecord, CDwgStyleRecord>(database.textStyleTableId(), roots.m_hStyles,
                                                             g_nDwgStyleControl, g_nDwgStyle,
                                                             DWG_FILED(FileStyle));
        ReadTable<AcDbLayerTableRecord, CDwgLayerRecord>(
            database.layerTableId(), roots.m_hLayers, g_nDwgLayerControl, g_nDwgLayer, DWG_FILED(FileLayer));
    }

private:
    template <class Record, class Filed, class File>
    void ReadTable(AcDbObjectId idTable, const CDwgHandle& hControl, std::uint16_t nControl,
                   std::uint16_t nType, File file) {
        const auto control =
            ReadDwgValue<CDwgControl>(RecordOfType(hControl, nControl), [nControl](auto& io, auto& value) {
                FileControl(io, value, nControl);
            });
        IdentifyDwg(m_reading, idTable, hControl.m_nValue);
        for (const auto* pHandles : {&control.m_arFixed, &control.m_arRecords}) {
            for (const CDwgHandle& handle : *pHandles) {
                if (handle.m_nValue == 0) continue;
                const CDwgRecord& record = RecordOfType(handle, nType);
                ReadRecord<Record>(idTable, record, ReadDwgValue<Filed>(record, file));
            }
        }
    }

    const CDwgRecord& RecordOfType(const CDwgHandle& handle, std::uint16_t nType) const {
        const CDwgRecord* const pRecord = m_reading.m_pOrigin->Find(handle.m_nValue);
        if (!pRecord || pRecord->m_nType != nType)
            RefuseDwgObject(handle.m_nValue, "a table refers to it, but it is none of that table's.");
        return *pRecord;
    }

    template <class Record, class Filed>
    void ReadRecord(AcDbObjectId idTable, const CDwgRecord& record, const Filed& filed) {
        const std::wstring strName = m_reading.Text(filed.m_strName);
        if (strName.empty()) return;
        AcDbObjectId id = RecordNamed(idTable, strName.c_str());
        if (id.isNull()) id = AddRecord<Record>(idTable, strName, record.m_nHandle);
        IdentifyDwg(m_reading, id, record.m_nHandle);
        const CDbOpen<Record> open(id, AcDb::kForWrite);
        Give(*open.Get(), filed, record);
    }

    template <class Record>
    AcDbObjectId AddRecord(AcDbObjectId idTable, const std::wstring& strName, std::uint64_t nHandle) {
        const CDbOpen<AcDbSymbolTable> table(idTable, AcDb::kForWrite);
        auto pRecord = std::make_unique<Record>();
        pRecord->setName(strName.c_str());
        AcDbObjectId id;
        if (table->add(id, pRecord.get()) != Acad::eOk)
            RefuseDwgObject(nHandle, "it cannot stand in its table.");
        pRecord.release()->close();
        return id;
    }

    void Give(AcDbRegAppTableRecord&, const CDwgAppRecord&, const CDwgRecord&) {}

    void Give(AcDbLinetypeTableRecord& linetype, const CDwgLinetypeRecord& filed, const CDwgRecord&) {
        std::vector<double> dashes;
        for (const CDwgDash& dash : filed.m_arDashes)
            dashes.push_back(dash.m_dLength);
        linetype.SetPattern(m_reading.Text(filed.m_strDescription).c_str(), std::move(dashes));
    }

    void Give(AcDbLayerTableRecord& layer, const CDwgLayerRecord& filed, const CDwgRecord&) {
        layer.SetColorIndex(filed.m_nColor);
        const AcDbObjectId idLinetype = m_reading.IdOf(filed.m_hLinetype);
        const AcDbObjectId idContinuous = RecordNamed(m_reading.m_database.linetypeTableId(), L"Continuous");
        layer.setLinetypeObjectId(idLinetype == idContinuous ? AcDbObjectId::kNull : idLinetype);
    }

    void Give(AcDbTextStyleTableRecord& style, const CDwgStyleRecord& filed, const CDwgRecord& record) {
        style.setFileName(m_reading.Text(filed.m_strFont).c_str());
        style.setBigFontFileName(m_reading.Text(filed.m_strBigFont).c_str());
        style.setTextSize(filed.m_dHeight);
        style.setXScale(filed.m_dWidthFactor);
        style.setObliquingAngle(filed.m_dOblique);
        TakeTypeface(style, record);
    }

    void TakeTypeface(AcDbTextStyleTableRecord& style, const CDwgRecord& record) const {
        const AcDbObjectId idAcad = RecordNamed(m_reading.m_database.regAppTableId(), g_szTypefaceApp);
        const CDwgExtendedContext context{m_reading.m_pOrigin->m_text,
                                          m_reading.m_pOrigin->m_file.m_identity.m_nCodePage,
                                          {},
                                          [](std::uint64_t) { return std::wstring(); }};
        for (const CDwgExtendedData& data : record.m_arExtended)
            if (m_reading.IdOf(data.m_hApp) == idAcad)
                GiveTypeface(style, UnpackExtendedData(data.m_arBytes, context));
    }

    CDwgReading& m_reading;
};

} // namespace

void ReadDwgTables(const CDwgRoots& roots, CDwgReading& reading) {
    CTableReader(reading).Read(roots);
}
