#include "tests/support/foreign/renumbering.h"

#include "host/files/dwg_record.h"

namespace {

void Move(CDwgHandle& handle, const CNewHandle& newHandle) {
    if (handle.m_nValue) handle.m_nValue = newHandle(handle.m_nValue);
}

void MoveRoots(CDwgVariables& vars, const CNewHandle& newHandle) {
    CDwgRoots& roots = vars.m_roots;
    for (CDwgHandle* pHandle : {&roots.m_hBlocks,       &roots.m_hLayers,
                                &roots.m_hStyles,       &roots.m_hLinetypes,
                                &roots.m_hViews,        &roots.m_hUcss,
                                &roots.m_hViewports,    &roots.m_hApps,
                                &roots.m_hDimstyles,    &roots.m_hViewportEntities,
                                &roots.m_hGroups,       &roots.m_hMlineStyles,
                                &roots.m_hNamedObjects, &roots.m_hLayouts,
                                &roots.m_hPlotSettings, &roots.m_hPlotStyles,
                                &roots.m_hPaperSpace,   &roots.m_hModelSpace,
                                &roots.m_hByLayer,      &roots.m_hByBlock,
                                &roots.m_hContinuous,   &vars.m_hClayer,
                                &vars.m_hTextstyle,     &vars.m_hCeltype,
                                &vars.m_hDimstyle,      &vars.m_hCmlstyle,
                                &vars.m_hDimtxsty})
        Move(*pHandle, newHandle);
}

} // namespace

CDwgFile Renumbered(const CDwgFile& file, const CNewHandle& newHandle) {
    CDwgFile moved = file;
    moved.m_contents.clear();
    for (const auto& [nHandle, content] : file.m_contents) {
        CDwgRecord record = ReadDwgRecord(content, nHandle);
        record.m_nHandle = newHandle(nHandle);
        for (CDwgHandle& handle : record.m_arHandles)
            Move(handle, newHandle);
        for (CDwgExtendedData& data : record.m_arExtended)
            Move(data.m_hApp, newHandle);
        moved.m_contents[record.m_nHandle] = WriteDwgRecord(record);
    }
    MoveRoots(moved.m_variables, newHandle);
    return moved;
}
