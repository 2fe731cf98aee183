#include "host/files/dwg_drawing_writer.h"

#include "host/files/dwg_block_writer.h"
#include "host/files/dwg_blocks.h"
#include "host/files/dwg_standard_objects.h"
#include "host/files/dwg_table_writer.h"

namespace {

CDwgVariables VariablesOf(const AcDbDatabase& database, const CDwgHandleMap& handles) {
    CDwgVariables vars;
    vars.m_dLtscale = database.ltscale();
    vars.m_model.m_ptInsbase = database.insbase();
    vars.m_hClayer = HardPointer(handles.Of(database.clayer()));
    vars.m_hTextstyle = HardPointer(handles.Of(database.textstyle()));
    const std::uint64_t nLinetype = handles.Of(database.celtype());
    vars.m_hCeltype = HardPointer(nLinetype ? nLinetype : CDwgFixed::s_nByLayer);
    vars.m_hDimstyle = HardPointer(CDwgFixed::s_nDimstyle);
    vars.m_hCmlstyle = HardPointer(CDwgFixed::s_nMlineStyle);
    vars.m_hDimtxsty = HardPointer(CDwgFixed::s_nStandardStyle);
    vars.m_hHandseed.m_nValue = handles.Seed();
    CDwgRoots& roots = vars.m_roots;
    const std::pair<CDwgHandle*, std::uint64_t> fixed[] = {
        {&roots.m_hBlocks, CDwgFixed::s_nBlocks},
        {&roots.m_hLayers, CDwgFixed::s_nLayers},
        {&roots.m_hStyles, CDwgFixed::s_nStyles},
        {&roots.m_hLinetypes, CDwgFixed::s_nLinetypes},
        {&roots.m_hViews, CDwgFixed::s_nViews},
        {&roots.m_hUcss, CDwgFixed::s_nUcss},
        {&roots.m_hViewports, CDwgFixed::s_nViewports},
        {&roots.m_hApps, CDwgFixed::s_nApps},
        {&roots.m_hDimstyles, CDwgFixed::s_nDimstyles},
        {&roots.m_hViewportEntities, CDwgFixed::s_nViewportEntities},
        {&roots.m_hGroups, CDwgFixed::s_nGroups},
        {&roots.m_hMlineStyles, CDwgFixed::s_nMlineStyles},
        {&roots.m_hNamedObjects, CDwgFixed::s_nNamedObjects},
        {&roots.m_hLayouts, CDwgFixed::s_nLayouts},
        {&roots.m_hPlotSettings, CDwgFixed::s_nPlotSettings},
        {&roots.m_hPlotStyles, CDwgFixed::s_nPlotStyles},
        {&roots.m_hPaperSpace, CDwgFixed::s_nPaperSpace},
        {&roots.m_hModelSpace, CDwgFixed::s_nModelSpace},
        {&roots.m_hByLayer, CDwgFixed::s_nByLayer},
        {&roots.m_hByBlock, CDwgFixed::s_nByBlock},
        {&roots.m_hContinuous, CDwgFixed::s_nContinuous}};
    for (const auto& [pHandle, nHandle] : fixed)
        pHandle->m_nValue = nHandle;
    return vars;
}

} // namespace

CDwgFile DwgFileOf(const AcDbDatabase& database) {
    CDwgFile file;
    const CDrawingText text(CodePageOfDwg(file.m_identity.m_nCodePage));
    const CCustomPictures pictures(database, text);
    CDwgHandleMap handles(database);
    file.m_arClasses = DwgStandardClasses();
    const CDwgWriting writing{database,         text,     file.m_identity.m_nCodePage, handles,
                              file.m_arClasses, &pictures};
    std::vector<CDwgRecord> records = DwgStandardObjects();
    WriteDwgTables(writing, records);
    WriteDwgBlocks(writing, records);
    for (const CDwgRecord& record : records)
        file.m_contents.emplace(record.m_nHandle, WriteDwgRecord(record));
    file.m_variables = VariablesOf(database, handles);
    return file;
}
