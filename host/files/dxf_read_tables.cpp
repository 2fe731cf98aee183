#include "host/files/dxf_read_tables.h"

#include "host/files/dxf_angles.h"
#include "host/files/dxf_style_font.h"
#include "platform/acad/wide_names.h"

#include <algorithm>
#include <array>
#include <cstdlib>

namespace {

constexpr int g_nHighestColor = 255;

/// Gives a record of a table its values and its handle. One without a name is lost.
template <class Record, class Fill>
void Define(AcDbObjectId id, const CDxfRecord& record, CDxfDrawing& drawing, Fill fill) {
    if (id.isNull()) return drawing.Lose(record);
    {
        const CDbOpen<Record> opened(id, AcDb::kForWrite);
        fill(*opened.Get());
    }
    drawing.Identify(id, record);
}

void ReadLayer(const CDxfRecord& record, CDxfDrawing& drawing) {
    constexpr int nFrozen = 1, nLocked = 4;
    const std::int64_t nColor = record.Whole(62, g_nWhite);
    if (nColor < 0 || record.HasFlag(70, nFrozen | nLocked)) drawing.Lose("LAYER off, frozen or locked");
    Define<AcDbLayerTableRecord>(
        drawing.Layer(record.Text(2)), record, drawing, [&](AcDbLayerTableRecord& layer) {
            const std::int64_t nIndex =
                std::abs(std::clamp<std::int64_t>(nColor, -g_nHighestColor, g_nHighestColor));
            layer.SetColorIndex(static_cast<Adesk::UInt16>(nIndex));
            layer.setLinetypeObjectId(drawing.Linetype(record.Text(6)));
        });
}

void ReadLinetype(const CDxfRecord& record, CDxfDrawing& drawing) {
    const std::wstring strName = record.Text(2);
    if (record.Whole(74) != 0) drawing.Lose("LTYPE with shapes");
    Define<AcDbLinetypeTableRecord>(drawing.LinetypeRecord(strName), record, drawing,
                                    [&](AcDbLinetypeTableRecord& linetype) {
                                        linetype.SetPattern(record.Text(3).c_str(), record.Reals(49));
                                    });
}

void ReadTextStyle(const CDxfRecord& record, CDxfDrawing& drawing) {
    constexpr int nShapes = 1, nVertical = 4;
    if (record.HasFlag(70, nShapes)) return drawing.Lose("STYLE of shapes");
    if (record.HasFlag(70, nVertical) || record.Whole(71) != 0)
        drawing.Lose("STYLE upright, backward or upside down");
    const AcDbObjectId id = drawing.TextStyle(record.Text(2));
    Define<AcDbTextStyleTableRecord>(id, record, drawing, [&](AcDbTextStyleTableRecord& style) {
        style.setFileName(record.Text(3).c_str());
        style.setBigFontFileName(record.Text(4).c_str());
        style.setTextSize(record.Real(40));
        style.setXScale(record.Real(41, 1.0));
        style.setObliquingAngle(DxfRadians(record.Real(50)));
    });
    TakeDxfStyleFont(id);
}

void ReadApp(const CDxfRecord& record, CDxfDrawing& drawing) {
    Define<AcDbRegAppTableRecord>(drawing.App(record.Text(2)), record, drawing,
                                  [](AcDbRegAppTableRecord&) {});
}

void ReadBlockRecord(const CDxfRecord& record, CDxfDrawing& drawing) {
    Define<AcDbBlockTableRecord>(drawing.Block(record.Text(2)), record, drawing,
                                 [](AcDbBlockTableRecord&) {});
}

void ReadViewport(const CDxfRecord& record, CDxfDrawing& drawing) {
    if (!SameName(record.Text(2), L"*Active")) return drawing.Lose(record);
    const AcGePoint3d center = record.Point(12);
    if (record.Real(40) > 0.0) drawing.Database().SetView({{center.x, center.y}, record.Real(40)});
}

/// A dimension style serves no entity here; the one that every drawing has is written anew.
void ReadDimensionStyle(const CDxfRecord& record, CDxfDrawing& drawing) {
    if (!SameName(record.Text(2), L"Standard")) drawing.Lose(record);
}

void ReadTable(const CDxfRecord& record, CDxfDrawing& drawing) {
    const AcDbDatabase& database = drawing.Database();
    const std::array<std::pair<std::wstring_view, AcDbObjectId>, 5> arTables = {{
        {L"BLOCK_RECORD", database.blockTableId()},
        {L"LAYER", database.layerTableId()},
        {L"LTYPE", database.linetypeTableId()},
        {L"STYLE", database.textStyleTableId()},
        {L"APPID", database.regAppTableId()},
    }};
    const std::wstring strName = record.Text(2);
    for (const auto& [name, id] : arTables)
        if (name == strName) drawing.Identify(id, record);
}

struct CRecordType {
    std::string_view m_name;
    void (*m_pRead)(const CDxfRecord&, CDxfDrawing&);
};

constexpr std::array g_arTypes = {
    CRecordType{"TABLE", ReadTable},
    CRecordType{"LAYER", ReadLayer},
    CRecordType{"LTYPE", ReadLinetype},
    CRecordType{"STYLE", ReadTextStyle},
    CRecordType{"APPID", ReadApp},
    CRecordType{"BLOCK_RECORD", ReadBlockRecord},
    CRecordType{"VPORT", ReadViewport},
    CRecordType{"DIMSTYLE", ReadDimensionStyle},
    CRecordType{"ENDTAB", [](const CDxfRecord&, CDxfDrawing&) {}},
};

} // namespace

void ReadDxfTableRecord(const CDxfRecord& record, CDxfDrawing& drawing) {
    const auto* const pType = std::find_if(g_arTypes.begin(), g_arTypes.end(), [&](const CRecordType& type) {
        return type.m_name == record.m_type;
    });
    if (pType == g_arTypes.end()) return drawing.Lose(record);
    pType->m_pRead(record, drawing);
}
