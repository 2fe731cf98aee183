#include "host/files/dwg_table_writer.h"

#include "host/files/dwg_control_writer.h"
#include "host/files/dwg_error.h"
#include "host/files/dwg_table_records.h"
#include "host/files/dwg_viewport.h"
#include "host/files/typeface.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr double g_dViewRatio = 420.0 / 297.0; ///< of a window's width to its height, which no drawing knows
constexpr std::size_t g_nMostDashes = 255;

class CTableWriter {
public:
    CTableWriter(const CDwgWriting& writing, std::vector<CDwgRecord>& records)
        : m_writing(writing)
        , m_records(records) {}

    void Write() {
        const AcDbDatabase& database = m_writing.m_database;
        WriteTable<AcDbLayerTableRecord>(database.layerTableId(), g_nDwgLayerControl);
        WriteTable<AcDbTextStyleTableRecord>(database.textStyleTableId(), g_nDwgStyleControl);
        WriteTable<AcDbLinetypeTableRecord>(database.linetypeTableId(), g_nDwgLinetypeControl);
        WriteTable<AcDbRegAppTableRecord>(database.regAppTableId(), g_nDwgAppControl);
        if (!m_writing.m_pOrigin) WriteViewport(database.View());
    }

private:
    std::string Text(const std::wstring& strText) const { return m_writing.m_text.Encode(strText); }

    template <class Value, class File>
    CDwgRecord& Append(std::uint16_t nType, std::uint64_t nHandle, const Value& value, File file) {
        return m_records.emplace_back(DwgRecordOf(nType, nHandle, value, file));
    }

    /// The table, and its records by the function of their class.
    template <class Record>
    void WriteTable(AcDbObjectId idTable, std::uint16_t nType) {
        const CDbOpen<AcDbSymbolTable> table(idTable);
        std::vector<AcDbObjectId> fixed;
        if (nType == g_nDwgLinetypeControl)
            fixed = {RecordNamed(idTable, L"ByBlock"), RecordNamed(idTable, L"ByLayer")};
        WriteDwgControl(m_writing, m_records, *table.Get(), nType, fixed);
        for (const AcDbObjectId& id : table->RecordIds()) {
            const std::uint64_t nHandle = m_writing.m_handles.Of(id);
            if (!nHandle) continue;
            const CDbOpen<Record> record(id);
            WriteRecord(*record.Get(), nHandle);
            auto extended = DwgExtendedDataOf(*record.Get(), m_writing);
            std::ranges::move(extended, std::back_inserter(m_records.back().m_arExtended));
        }
    }

    /// A record as it was, with what all records have.
    template <class Filed, class File>
    Filed Begin(const AcDbSymbolTableRecord& record, std::uint64_t nHandle, std::uint16_t nType,
                File file) const {
        auto filed = FormerDwgValue<Filed>(m_writing, nHandle, nType, file);
        RelateDwgObject(filed, record, m_writing);
        filed.m_strName = Text(record.Name());
        return filed;
    }

    void WriteRecord(const AcDbLayerTableRecord& record, std::uint64_t nHandle) {
        auto layer = Begin<CDwgLayerRecord>(record, nHandle, g_nDwgLayer, DWG_FILED(FileLayer));
        layer.m_nColor = record.ColorIndex();
        if (!m_writing.m_pOrigin) layer.m_hPlotStyle = HardPointer(CStandardHandles::s_nPlotStyle);
        const std::uint64_t nLinetype = m_writing.m_handles.Of(record.linetypeObjectId());
        layer.m_hLinetype = HardPointer(nLinetype ? nLinetype : Continuous());
        Append(g_nDwgLayer, nHandle, layer, DWG_FILED(FileLayer));
    }

    std::uint64_t Continuous() const {
        return m_writing.m_handles.Of(RecordNamed(m_writing.m_database.linetypeTableId(), L"Continuous"));
    }

    void WriteRecord(const AcDbTextStyleTableRecord& record, std::uint64_t nHandle) {
        auto style = Begin<CDwgStyleRecord>(record, nHandle, g_nDwgStyle, DWG_FILED(FileStyle));
        style.m_dHeight = record.textSize();
        style.m_dWidthFactor = record.xScale();
        style.m_dOblique = record.obliquingAngle();
        style.m_strFont = Text(record.FileName());
        style.m_strBigFont = Text(record.BigFontFileName());
        Append(g_nDwgStyle, nHandle, style, DWG_FILED(FileStyle)).m_arExtended = TypefaceOf(record);
    }

    std::vector<CDwgExtendedData> TypefaceOf(const AcDbTextStyleTableRecord& record) const {
        const std::vector<CXDataItem> items = TypefaceItems(record);
        if (items.empty()) return {};
        const CDwgExtendedContext context{m_writing.m_text, m_writing.m_nCodePage, {}, {}};
        const AcDbObjectId idAcad = RecordNamed(m_writing.m_database.regAppTableId(), g_szTypefaceApp);
        return {{HardPointer(m_writing.m_handles.Of(idAcad)), PackExtendedData(items, context)}};
    }

    void WriteRecord(const AcDbLinetypeTableRecord& record, std::uint64_t nHandle) {
        auto linetype = Begin<CDwgLinetypeRecord>(record, nHandle, g_nDwgLinetype, DWG_FILED(FileLinetype));
        if (record.Dashes().size() > g_nMostDashes)
            RefuseDwgObject(nHandle, "it has too many dashes for a file.");
        linetype.m_strDescription = Text(record.Comments());
        TakeDashes(linetype, record.Dashes());
        Append(g_nDwgLinetype, nHandle, linetype, DWG_FILED(FileLinetype));
    }

    /// Dashes that are as they were keep the shapes and texts that they carry.
    static void TakeDashes(CDwgLinetypeRecord& linetype, const std::vector<double>& dashes) {
        if (std::ranges::equal(linetype.m_arDashes, dashes, {}, &CDwgDash::m_dLength)) return;
        linetype.m_dLength = 0.0;
        linetype.m_arDashes.clear();
        linetype.m_arStyles.assign(dashes.size(), HardPointer(0));
        for (const double dDash : dashes) {
            linetype.m_arDashes.push_back({dDash});
            linetype.m_dLength += std::abs(dDash);
        }
    }

    void WriteRecord(const AcDbRegAppTableRecord& record, std::uint64_t nHandle) {
        const auto app = Begin<CDwgAppRecord>(record, nHandle, g_nDwgApp, DWG_FILED(FileApp));
        Append(g_nDwgApp, nHandle, app, DWG_FILED(FileApp));
    }

    void WriteViewport(const CDbView& view) {
        CDwgViewportRecord viewport;
        viewport.m_hOwner = SoftPointer(CStandardHandles::s_nViewports);
        viewport.m_strName = "*Active";
        viewport.m_ptCenter = view.m_ptCenter;
        viewport.m_dHeight = view.m_dHeight;
        viewport.m_dWidth = view.m_dHeight * g_dViewRatio;
        Append(g_nDwgViewport, CStandardHandles::s_nViewport, viewport, DWG_FILED(FileViewport));
    }

    const CDwgWriting& m_writing;
    std::vector<CDwgRecord>& m_records;
};

} // namespace

void WriteDwgTables(const CDwgWriting& writing, std::vector<CDwgRecord>& records) {
    CTableWriter(writing, records).Write();
}
