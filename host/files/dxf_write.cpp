#include "host/files/dxf_write.h"

#include "host/files/dxf_write_entities.h"
#include "host/files/dxf_write_objects.h"
#include "host/files/dxf_write_tables.h"

namespace {

/// The box of what model space shows.
AcDbExtents ExtentsOf(const AcDbDatabase& database) {
    AcDbExtents extents;
    const CDbOpen<AcDbBlockTableRecord> space(database.ModelSpaceId());
    for (const AcDbObjectId& id : space->EntityIds()) {
        const CDbOpen<AcDbEntity> entity(id);
        AcDbExtents box;
        if (entity && entity->getGeomExtents(box) == Acad::eOk) extents.addExt(box);
    }
    return extents;
}

void WriteExtents(CDxfOutput& out) {
    constexpr double dNone = 1e20; // the corners cross when there is nothing
    const AcDbExtents extents = ExtentsOf(out.Database());
    out.Word(9, "$EXTMIN");
    out.Point(10, extents.isEmpty() ? AcGePoint3d(dNone, dNone, dNone) : extents.minPoint());
    out.Word(9, "$EXTMAX");
    out.Point(10, extents.isEmpty() ? AcGePoint3d(-dNone, -dNone, -dNone) : extents.maxPoint());
}

void WriteInsbase(CDxfOutput& out) {
    const std::size_t nBefore = out.Bytes().size();
    out.Word(9, "$INSBASE");
    out.Point(10, out.Database().insbase());
    out.KeepIf(true, nBefore);
}

/// The section of the header; what comes after it has got all its handles.
void WriteHeader(CDxfOutput& out) {
    constexpr int nMillimetres = 4;
    const AcDbDatabase& database = out.Database();
    const std::wstring strLinetype = DxfName(database.celtype());
    out.BeginSection("HEADER");
    out.Word(9, "$ACADVER");
    out.Word(1, "AC1015");
    out.Word(9, "$DWGCODEPAGE");
    out.Word(3, g_szDxfCodePage);
    WriteInsbase(out);
    WriteExtents(out);
    out.Word(9, "$LTSCALE");
    out.Real(40, database.ltscale());
    out.Word(9, "$TEXTSTYLE");
    out.Text(7, DxfName(database.textstyle()));
    out.Word(9, "$CLAYER");
    out.Text(8, DxfName(database.clayer()));
    out.Word(9, "$CELTYPE");
    out.Text(6, strLinetype.empty() ? L"ByLayer" : strLinetype);
    out.Word(9, "$CECOLOR");
    out.Whole(62, g_nColorByLayer);
    out.Word(9, "$MEASUREMENT");
    out.Whole(70, 1);
    out.Word(9, "$INSUNITS");
    out.Whole(70, nMillimetres);
    out.Word(9, "$HANDSEED");
    out.Handle(5, out.NewHandle());
    out.EndSection();
}

CDxfCustomEntities CustomEntities(const AcDbDatabase& database, CDxfCustom custom) {
    if (custom == CDxfCustom::Exploded)
        return CDxfCustomEntities(std::in_place_type<CDxfExplosions>, database);
    return CDxfCustomEntities(std::in_place_type<CCustomPictures>, database, CDrawingText(g_nChinesePage));
}

} // namespace

CDxfFile WriteDxf(const AcDbDatabase& database, CDxfCustom custom) {
    const CDxfCustomEntities customs = CustomEntities(database, custom);
    CDxfOutput out(database);
    const CDxfStructure structure(out);
    WriteDxfTables(out, structure);
    WriteDxfBlocks(out, customs);
    WriteDxfEntities(out, customs);
    WriteDxfObjects(out, structure);
    out.Word(0, "EOF");
    const std::string strBehindHeader = out.TakeBytes();
    WriteHeader(out);
    WriteDxfClasses(out); // which are all known by now
    return {out.TakeBytes() + strBehindHeader, out.Losses()};
}
