#include "host/files/dwg_drawing_writer.h"

#include "host/files/dwg_block_writer.h"
#include "host/files/dwg_object_writer.h"
#include "host/files/dwg_standard_objects.h"
#include "host/files/dwg_table_writer.h"

namespace {

/// The references of a new drawing's header to what every drawing has.
void SetFixedHandles(CDwgVariables& vars) {
    vars.m_hDimstyle = HardPointer(CStandardHandles::s_nDimstyle);
    vars.m_hCmlstyle = HardPointer(CStandardHandles::s_nMlineStyle);
    vars.m_hDimtxsty = HardPointer(CStandardHandles::s_nStandardStyle);
    CDwgRoots& roots = vars.m_roots;
    const std::pair<CDwgHandle*, std::uint64_t> fixed[] = {
        {&roots.m_hViews, CStandardHandles::s_nViews},
        {&roots.m_hUcss, CStandardHandles::s_nUcss},
        {&roots.m_hViewports, CStandardHandles::s_nViewports},
        {&roots.m_hDimstyles, CStandardHandles::s_nDimstyles},
        {&roots.m_hViewportEntities, CStandardHandles::s_nViewportEntities},
        {&roots.m_hGroups, CStandardHandles::s_nGroups},
        {&roots.m_hMlineStyles, CStandardHandles::s_nMlineStyles},
        {&roots.m_hLayouts, CStandardHandles::s_nLayouts},
        {&roots.m_hPlotSettings, CStandardHandles::s_nPlotSettings},
        {&roots.m_hPlotStyles, CStandardHandles::s_nPlotStyles}};
    for (const auto& [pHandle, nHandle] : fixed)
        pHandle->m_nValue = nHandle;
}

/// What the drawing itself has of the header.
void TakeVariables(CDwgVariables& vars, const AcDbDatabase& database, const CDwgHandleMap& handles) {
    const auto handleOf = [&handles](AcDbObjectId idTable, const ACHAR* name) {
        return handles.Of(RecordNamed(idTable, name));
    };
    CDwgRoots& roots = vars.m_roots;
    const AcDbObjectId idLinetypes = database.linetypeTableId();
    const std::pair<CDwgHandle*, std::uint64_t> own[] = {
        {&roots.m_hBlocks, handles.Of(database.blockTableId())},
        {&roots.m_hLayers, handles.Of(database.layerTableId())},
        {&roots.m_hStyles, handles.Of(database.textStyleTableId())},
        {&roots.m_hLinetypes, handles.Of(idLinetypes)},
        {&roots.m_hApps, handles.Of(database.regAppTableId())},
        {&roots.m_hNamedObjects, handles.Of(database.namedObjectsDictionaryId())},
        {&roots.m_hPaperSpace, handleOf(database.blockTableId(), ACDB_PAPER_SPACE)},
        {&roots.m_hModelSpace, handles.Of(database.ModelSpaceId())},
        {&roots.m_hByLayer, handleOf(idLinetypes, L"ByLayer")},
        {&roots.m_hByBlock, handleOf(idLinetypes, L"ByBlock")},
        {&roots.m_hContinuous, handleOf(idLinetypes, L"Continuous")},
        {&vars.m_hClayer, handles.Of(database.clayer())},
        {&vars.m_hTextstyle, handles.Of(database.textstyle())}};
    for (const auto& [pHandle, nHandle] : own)
        pHandle->m_nValue = nHandle;
    const std::uint64_t nLinetype = handles.Of(database.celtype());
    vars.m_hCeltype.m_nValue = nLinetype ? nLinetype : roots.m_hByLayer.m_nValue;
    vars.m_dLtscale = database.ltscale();
    vars.m_model.m_ptInsbase = database.insbase();
    vars.m_hHandseed.m_nValue = handles.Seed();
}

/// All of a new drawing's file that is not in the drawing.
CDwgFile NewFile(std::vector<CDwgRecord>& records) {
    CDwgFile file;
    file.m_arClasses = DwgStandardClasses();
    SetFixedHandles(file.m_variables);
    records = DwgStandardObjects();
    return file;
}

} // namespace

CDwgFile DwgFileOf(const AcDbDatabase& database) {
    std::vector<CDwgRecord> records;
    const CDwgOrigin* const pOrigin = DwgOriginOf(database);
    CDwgFile file = pOrigin ? pOrigin->m_file : NewFile(records);
    const std::uint16_t nCodePage = file.m_identity.m_nCodePage;
    const CDrawingText text(CodePageOfDwg(nCodePage));
    const CCustomPictures pictures(database, text);
    CDwgHandleMap handles(database);
    const CDwgWriting writing{database, pOrigin, text, nCodePage, handles, file.m_arClasses, &pictures};
    WriteDwgTables(writing, records);
    WriteDwgBlocks(writing, records);
    WriteDwgObjects(writing, records);
    for (const CDwgRecord& record : records)
        file.m_contents.emplace(record.m_nHandle, WriteDwgRecord(record));
    TakeVariables(file.m_variables, database, handles);
    return file;
}
