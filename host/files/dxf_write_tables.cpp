#include "host/files/dxf_write_tables.h"

#include "host/files/dxf_angles.h"
#include "host/files/dxf_style_font.h"
#include "host/files/dxf_xdata.h"

#include <cmath>

namespace {

void BeginTable(CDxfOutput& out, std::string_view name, AcDbHandle handle, std::size_t nRecords) {
    out.Word(0, "TABLE");
    out.Word(2, name);
    out.Handle(5, handle);
    out.Handle(330, AcDbHandle());
    out.Subclass("AcDbSymbolTable");
    out.Whole(70, static_cast<std::int64_t>(nRecords));
}

void EndTable(CDxfOutput& out) {
    out.Word(0, "ENDTAB");
}

/// What a record of every table begins with; no external file is behind it.
void BeginRecord(CDxfOutput& out, std::string_view type, std::string_view subclass, AcDbHandle handle,
                 AcDbHandle table, const std::wstring& strName) {
    out.Record(type, handle, table);
    out.Subclass("AcDbSymbolTableRecord");
    out.Subclass(subclass);
    out.Text(2, strName);
}

/// Writes a table of the drawing, its records by a function of their own.
template <class Record, class Write>
void WriteTable(CDxfOutput& out, AcDbObjectId idTable, std::string_view name, std::string_view subclass,
                Write write) {
    const std::vector<AcDbObjectId> ids = LivingRecords(idTable);
    BeginTable(out, name, idTable.handle(), ids.size());
    for (const AcDbObjectId& id : ids) {
        const CDbOpen<Record> record(id);
        if (!record) continue;
        BeginRecord(out, name, subclass, id.handle(), idTable.handle(), record->Name());
        write(*record.Get());
        const std::size_t nBefore = out.Bytes().size();
        WriteDxfXData(out, *record.Get());
        if (!out.KeepIf(true, nBefore)) out.Lose("extended data");
    }
    EndTable(out);
}

void WriteViewports(CDxfOutput& out) {
    constexpr double dUsualAspect = 1.5;
    const CDbView& view = out.Database().View();
    const AcDbHandle table = out.NewHandle();
    BeginTable(out, "VPORT", table, 1);
    BeginRecord(out, "VPORT", "AcDbViewportTableRecord", out.NewHandle(), table, L"*Active");
    out.Whole(70, 0);
    out.Point(10, AcGePoint2d(0.0, 0.0)); // of the window, which it fills
    out.Point(11, AcGePoint2d(1.0, 1.0));
    out.Point(12, view.m_ptCenter);
    out.Point(13, AcGePoint2d(0.0, 0.0)); // snap, then grid
    out.Point(14, AcGePoint2d(10.0, 10.0));
    out.Point(15, AcGePoint2d(10.0, 10.0));
    out.Point(16, AcGePoint3d(0.0, 0.0, 1.0)); // from above
    out.Point(17, AcGePoint3d::kOrigin);
    out.Real(40, view.m_dHeight);
    out.Real(41, dUsualAspect);
    EndTable(out);
}

void WriteLinetypes(CDxfOutput& out) {
    WriteTable<AcDbLinetypeTableRecord>(
        out, out.Database().linetypeTableId(), "LTYPE", "AcDbLinetypeTableRecord",
        [&out](const AcDbLinetypeTableRecord& linetype) {
            double dLength = 0.0;
            for (const double dDash : linetype.Dashes())
                dLength += std::fabs(dDash);
            out.Whole(70, 0);
            out.Text(3, linetype.Comments());
            out.Whole(72, 'A');
            out.Whole(73, static_cast<std::int64_t>(linetype.Dashes().size()));
            out.Real(40, dLength);
            for (const double dDash : linetype.Dashes()) {
                out.Real(49, dDash);
                out.Whole(74, 0);
            }
        });
}

void WriteLayers(CDxfOutput& out, AcDbHandle plotStyle) {
    constexpr int nUsualLineWeight = -3;
    WriteTable<AcDbLayerTableRecord>(out, out.Database().layerTableId(), "LAYER", "AcDbLayerTableRecord",
                                     [&](const AcDbLayerTableRecord& layer) {
                                         const std::wstring strLinetype = DxfName(layer.linetypeObjectId());
                                         out.Whole(70, 0);
                                         out.Whole(62, layer.ColorIndex());
                                         out.Text(6, strLinetype.empty() ? L"Continuous" : strLinetype);
                                         out.Whole(370, nUsualLineWeight);
                                         out.Handle(390, plotStyle);
                                     });
}

void WriteTextStyles(CDxfOutput& out) {
    constexpr double dUsualHeight = 2.5;
    WriteTable<AcDbTextStyleTableRecord>(
        out, out.Database().textStyleTableId(), "STYLE", "AcDbTextStyleTableRecord",
        [&out](const AcDbTextStyleTableRecord& style) {
            out.Whole(70, 0);
            out.Real(40, style.textSize());
            out.Real(41, style.xScale());
            out.Real(50, DxfDegrees(style.obliquingAngle()));
            out.Whole(71, 0);
            out.Real(42, style.textSize() > 0.0 ? style.textSize() : dUsualHeight);
            out.Text(3, style.FileName());
            out.Text(4, style.BigFontFileName());
            WriteDxfStyleFont(out, style);
        });
}

void WriteEmptyTable(CDxfOutput& out, std::string_view name) {
    BeginTable(out, name, out.NewHandle(), 0);
    EndTable(out);
}

void WriteApps(CDxfOutput& out) {
    WriteTable<AcDbRegAppTableRecord>(out, out.Database().regAppTableId(), "APPID", "AcDbRegAppTableRecord",
                                      [&out](const AcDbRegAppTableRecord&) { out.Whole(70, 0); });
}

void WriteDimensionStyles(CDxfOutput& out) {
    const AcDbHandle table = out.NewHandle();
    BeginTable(out, "DIMSTYLE", table, 1);
    out.Subclass("AcDbDimStyleTable");
    BeginRecord(out, "DIMSTYLE", "AcDbDimStyleTableRecord", out.NewHandle(), table, L"Standard");
    out.Whole(70, 0);
    EndTable(out);
}

void WriteBlockRecords(CDxfOutput& out, const CDxfStructure& structure) {
    WriteTable<AcDbBlockTableRecord>(
        out, out.Database().blockTableId(), "BLOCK_RECORD", "AcDbBlockTableRecord",
        [&](const AcDbBlockTableRecord& block) { out.Handle(340, structure.LayoutOf(block.objectId())); });
}

} // namespace

void WriteDxfTables(CDxfOutput& out, const CDxfStructure& structure) {
    out.BeginSection("TABLES");
    WriteViewports(out);
    WriteLinetypes(out);
    WriteLayers(out, structure.m_plotStyle);
    WriteTextStyles(out);
    WriteEmptyTable(out, "VIEW");
    WriteEmptyTable(out, "UCS");
    WriteApps(out);
    WriteDimensionStyles(out);
    WriteBlockRecords(out, structure);
    out.EndSection();
}
