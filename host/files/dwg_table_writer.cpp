#include "host/files/dwg_table_writer.h"

#include "host/files/dwg_dictionaries.h"
#include "host/files/dwg_error.h"
#include "host/files/dwg_viewport.h"

#include <algorithm>
#include <cmath>
#include <numeric>

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
        WriteViewport(database.View());
        WriteNamedObjects();
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
        CDwgControl control;
        for (const AcDbObjectId& id : table->RecordIds()) {
            const std::uint64_t nHandle = m_writing.m_handles.Of(id);
            if (!nHandle) continue;
            const bool bFixed = nHandle == CDwgFixed::s_nByBlock || nHandle == CDwgFixed::s_nByLayer;
            if (!bFixed) control.m_arRecords.push_back(SoftOwner(nHandle));
            const CDbOpen<Record> record(id);
            WriteRecord(*record.Get(), nHandle, m_writing.m_handles.Of(idTable));
            auto extended = DwgExtendedDataOf(*record.Get(), m_writing);
            std::ranges::move(extended, std::back_inserter(m_records.back().m_arExtended));
        }
        if (nType == g_nDwgLinetypeControl)
            control.m_arFixed = {HardOwner(CDwgFixed::s_nByBlock), HardOwner(CDwgFixed::s_nByLayer)};
        Append(nType, m_writing.m_handles.Of(idTable), control,
               [nType](auto& io, auto& value) { FileControl(io, value, nType); });
    }

    /// What all records have.
    template <class Filed>
    Filed Begin(const AcDbSymbolTableRecord& record, std::uint64_t nTable) const {
        Filed filed;
        filed.m_hOwner = SoftPointer(nTable);
        filed.m_arReactors = DwgReactorsOf(record, m_writing);
        filed.m_strName = Text(record.Name());
        return filed;
    }

    void WriteRecord(const AcDbLayerTableRecord& record, std::uint64_t nHandle, std::uint64_t nTable) {
        auto layer = Begin<CDwgLayerRecord>(record, nTable);
        layer.m_nColor = record.ColorIndex();
        layer.m_hPlotStyle = HardPointer(CDwgFixed::s_nPlotStyle);
        const std::uint64_t nLinetype = m_writing.m_handles.Of(record.linetypeObjectId());
        layer.m_hLinetype = HardPointer(nLinetype ? nLinetype : CDwgFixed::s_nContinuous);
        Append(g_nDwgLayer, nHandle, layer, DWG_FILED(FileLayer));
    }

    void WriteRecord(const AcDbTextStyleTableRecord& record, std::uint64_t nHandle, std::uint64_t nTable) {
        auto style = Begin<CDwgStyleRecord>(record, nTable);
        style.m_dHeight = record.textSize();
        style.m_dWidthFactor = record.xScale();
        style.m_dOblique = record.obliquingAngle();
        style.m_strFont = Text(record.FileName());
        style.m_strBigFont = Text(record.BigFontFileName());
        Append(g_nDwgStyle, nHandle, style, DWG_FILED(FileStyle)).m_arExtended = TypefaceOf(record);
    }

    /// A font by its name, which has no place in a style's record.
    std::vector<CDwgExtendedData> TypefaceOf(const AcDbTextStyleTableRecord& record) const {
        std::wstring strTypeface;
        Adesk::Boolean bBold = 0, bItalic = 0;
        int nCharset = 0, nPitchAndFamily = 0;
        record.font(strTypeface, bBold, bItalic, nCharset, nPitchAndFamily);
        if (strTypeface.empty()) return {};
        const Adesk::Int32 nFlags = (bBold ? 1 << 25 : 0) | (bItalic ? 1 << 24 : 0) | (nCharset & 0xFF) << 8 |
                                    (nPitchAndFamily & 0xFF);
        const CDwgExtendedContext context{m_writing.m_text, m_writing.m_nCodePage, {}, {}};
        return {{HardPointer(CDwgFixed::s_nAcadApp),
                 PackExtendedData({{1000, strTypeface}, {1071, nFlags}}, context)}};
    }

    void WriteRecord(const AcDbLinetypeTableRecord& record, std::uint64_t nHandle, std::uint64_t nTable) {
        auto linetype = Begin<CDwgLinetypeRecord>(record, nTable);
        if (record.Dashes().size() > g_nMostDashes)
            RefuseDwgObject(nHandle, "it has too many dashes for a file.");
        linetype.m_strDescription = Text(record.Comments());
        for (const double dDash : record.Dashes()) {
            linetype.m_arDashes.push_back({dDash});
            linetype.m_arStyles.push_back(HardPointer(0));
            linetype.m_dLength += std::abs(dDash);
        }
        Append(g_nDwgLinetype, nHandle, linetype, DWG_FILED(FileLinetype));
    }

    void WriteRecord(const AcDbRegAppTableRecord& record, std::uint64_t nHandle, std::uint64_t nTable) {
        const auto app = Begin<CDwgAppRecord>(record, nTable);
        Append(g_nDwgApp, nHandle, app, DWG_FILED(FileApp));
    }

    void WriteViewport(const CDbView& view) {
        CDwgViewportRecord viewport;
        viewport.m_hOwner = SoftPointer(CDwgFixed::s_nViewports);
        viewport.m_strName = "*Active";
        viewport.m_ptCenter = view.m_ptCenter;
        viewport.m_dHeight = view.m_dHeight;
        viewport.m_dWidth = view.m_dHeight * g_dViewRatio;
        Append(g_nDwgViewport, CDwgFixed::s_nViewport, viewport, DWG_FILED(FileViewport));
    }

    /// The dictionaries that every file has, among those of the drawing.
    void WriteNamedObjects() {
        const CDbOpen<AcDbDictionary> named(m_writing.m_database.namedObjectsDictionaryId());
        CDwgDictionary dictionary;
        dictionary.m_hOwner = SoftPointer(0);
        const std::pair<const char*, std::uint64_t> standard[] = {
            {"ACAD_GROUP", CDwgFixed::s_nGroups},
            {"ACAD_LAYOUT", CDwgFixed::s_nLayouts},
            {"ACAD_MLINESTYLE", CDwgFixed::s_nMlineStyles},
            {"ACAD_PLOTSETTINGS", CDwgFixed::s_nPlotSettings},
            {"ACAD_PLOTSTYLENAME", CDwgFixed::s_nPlotStyles}};
        for (const auto& [pName, nHandle] : standard) {
            dictionary.m_arNames.emplace_back(pName);
            dictionary.m_arItems.push_back(SoftOwner(nHandle));
        }
        if (named->numEntries() != 0)
            RefuseDwgObject(CDwgFixed::s_nNamedObjects, "objects in dictionaries have no place in a file.");
        Append(g_nDwgDictionary, CDwgFixed::s_nNamedObjects, dictionary, DWG_FILED(FileDictionary));
    }

    const CDwgWriting& m_writing;
    std::vector<CDwgRecord>& m_records;
};

} // namespace

void WriteDwgTables(const CDwgWriting& writing, std::vector<CDwgRecord>& records) {
    CTableWriter(writing, records).Write();
}
