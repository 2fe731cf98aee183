#include "host/files/dwg_standard_objects.h"

#include "host/files/dwg_dictionaries.h"
#include "host/files/dwg_viewport.h"
#include "platform/acad/standard_handles.h"

namespace {

CDwgRecord Control(std::uint16_t nType, std::uint64_t nHandle, std::vector<CDwgHandle> records) {
    CDwgControl control;
    control.m_arRecords = std::move(records);
    return DwgRecordOf(nType, nHandle, control,
                       [nType](auto& io, auto& value) { FileControl(io, value, nType); });
}

/// A dictionary in the one of named objects.
template <class Dictionary>
Dictionary NamedDictionary(const std::vector<std::string>& names, const std::vector<CDwgHandle>& items) {
    Dictionary dictionary;
    dictionary.m_hOwner = SoftPointer(CStandardHandles::s_nNamedObjects);
    dictionary.m_arReactors = {dictionary.m_hOwner};
    dictionary.m_arNames = names;
    dictionary.m_arItems = items;
    return dictionary;
}

CDwgRecord DictionaryOf(std::uint64_t nHandle, const std::vector<std::string>& names = {},
                        const std::vector<CDwgHandle>& items = {}) {
    const auto dictionary = NamedDictionary<CDwgDictionary>(names, items);
    return DwgRecordOf(g_nDwgDictionary, nHandle, dictionary, DWG_FILED(FileDictionary));
}

CDwgRecord PlotStyles() {
    auto dictionary =
        NamedDictionary<CDwgDefaultDictionary>({"Normal"}, {SoftOwner(CStandardHandles::s_nPlotStyle)});
    dictionary.m_hDefault = HardPointer(CStandardHandles::s_nPlotStyle);
    return DwgRecordOf(g_nDwgDefaultDictionaryClass, CStandardHandles::s_nPlotStyles, dictionary,
                       DWG_FILED(FileDefaultDictionary));
}

CDwgRecord PlotStyle() {
    const CDwgHandle hOwner = SoftPointer(CStandardHandles::s_nPlotStyles);
    const CDwgObjectCommon placeholder{hOwner, {hOwner}};
    return DwgRecordOf(g_nDwgPlaceholderClass, CStandardHandles::s_nPlotStyle, placeholder,
                       DWG_FILED(FileObjectCommon));
}

CDwgRecord MlineStyle() {
    CDwgMlineStyle style;
    style.m_hOwner = SoftPointer(CStandardHandles::s_nMlineStyles);
    style.m_arReactors = {style.m_hOwner};
    style.m_strName = "STANDARD";
    style.m_arElements = {{0.5}, {-0.5}};
    return DwgRecordOf(g_nDwgMlineStyle, CStandardHandles::s_nMlineStyle, style, DWG_FILED(FileMlineStyle));
}

CDwgRecord LayoutOf(std::uint64_t nSpace, const char* pName) {
    const bool bModel = nSpace == CStandardHandles::s_nModelSpace;
    CDwgLayout layout;
    layout.m_hOwner = SoftPointer(CStandardHandles::s_nLayouts);
    layout.m_arReactors = {layout.m_hOwner};
    layout.m_strName = pName;
    layout.m_nTab = bModel ? 0 : 1;
    layout.m_nPlotFlags = bModel ? CDwgLayout::s_nModel : CDwgLayout::s_nPaper;
    layout.m_nPlotType = bModel ? 0 : 5;
    layout.m_hBlock = SoftPointer(nSpace);
    return DwgRecordOf(g_nDwgLayoutClass, nSpace + 3, layout, DWG_FILED(FileLayout));
}

CDwgRecord Dimstyle() {
    CDwgDimstyleRecord style;
    style.m_hOwner = SoftPointer(CStandardHandles::s_nDimstyles);
    style.m_strName = "Standard";
    style.m_arParts[0] = HardPointer(CStandardHandles::s_nStandardStyle);
    return DwgRecordOf(g_nDwgDimstyle, CStandardHandles::s_nDimstyle, style, DWG_FILED(FileDimstyle));
}

} // namespace

std::vector<CDwgClass> DwgStandardClasses() {
    const std::string strApp = "Drawing Objects";
    return {{g_nDwgDefaultDictionaryClass, 0, strApp, "AcDbDictionaryWithDefault", "ACDBDICTIONARYWDFLT"},
            {g_nDwgPlaceholderClass, 0, strApp, "AcDbPlaceHolder", "ACDBPLACEHOLDER"},
            {g_nDwgLayoutClass, 0, strApp, "AcDbLayout", "LAYOUT"}};
}

std::vector<CDwgRecord> DwgStandardObjects() {
    return {Control(g_nDwgViewControl, CStandardHandles::s_nViews, {}),
            Control(g_nDwgUcsControl, CStandardHandles::s_nUcss, {}),
            Control(g_nDwgViewportControl, CStandardHandles::s_nViewports,
                    {SoftOwner(CStandardHandles::s_nViewport)}),
            Control(g_nDwgDimstyleControl, CStandardHandles::s_nDimstyles,
                    {SoftOwner(CStandardHandles::s_nDimstyle)}),
            Control(g_nDwgViewportEntityControl, CStandardHandles::s_nViewportEntities, {}),
            DictionaryOf(CStandardHandles::s_nGroups),
            PlotStyles(),
            PlotStyle(),
            DictionaryOf(CStandardHandles::s_nMlineStyles, {"Standard"},
                         {SoftOwner(CStandardHandles::s_nMlineStyle)}),
            MlineStyle(),
            DictionaryOf(CStandardHandles::s_nPlotSettings),
            DictionaryOf(CStandardHandles::s_nLayouts, {"Layout1", "Model"},
                         {SoftOwner(CStandardHandles::s_nPaperSpace + 3),
                          SoftOwner(CStandardHandles::s_nModelSpace + 3)}),
            LayoutOf(CStandardHandles::s_nPaperSpace, "Layout1"),
            LayoutOf(CStandardHandles::s_nModelSpace, "Model"),
            Dimstyle()};
}
