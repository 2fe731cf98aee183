#include "host/files/dwg_standard_objects.h"

#include "host/files/dwg_dictionaries.h"
#include "host/files/dwg_fixed_handles.h"
#include "host/files/dwg_viewport.h"

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
    dictionary.m_hOwner = SoftPointer(CDwgFixed::s_nNamedObjects);
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
        NamedDictionary<CDwgDefaultDictionary>({"Normal"}, {SoftOwner(CDwgFixed::s_nPlotStyle)});
    dictionary.m_hDefault = HardPointer(CDwgFixed::s_nPlotStyle);
    return DwgRecordOf(g_nDwgDefaultDictionaryClass, CDwgFixed::s_nPlotStyles, dictionary,
                       DWG_FILED(FileDefaultDictionary));
}

CDwgRecord PlotStyle() {
    const CDwgHandle hOwner = SoftPointer(CDwgFixed::s_nPlotStyles);
    const CDwgObjectCommon placeholder{hOwner, {hOwner}};
    return DwgRecordOf(g_nDwgPlaceholderClass, CDwgFixed::s_nPlotStyle, placeholder,
                       DWG_FILED(FileObjectCommon));
}

CDwgRecord MlineStyle() {
    CDwgMlineStyle style;
    style.m_hOwner = SoftPointer(CDwgFixed::s_nMlineStyles);
    style.m_arReactors = {style.m_hOwner};
    style.m_strName = "STANDARD";
    style.m_arElements = {{0.5}, {-0.5}};
    return DwgRecordOf(g_nDwgMlineStyle, CDwgFixed::s_nMlineStyle, style, DWG_FILED(FileMlineStyle));
}

CDwgRecord LayoutOf(std::uint64_t nSpace, const char* pName) {
    const bool bModel = nSpace == CDwgFixed::s_nModelSpace;
    CDwgLayout layout;
    layout.m_hOwner = SoftPointer(CDwgFixed::s_nLayouts);
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
    style.m_hOwner = SoftPointer(CDwgFixed::s_nDimstyles);
    style.m_strName = "Standard";
    style.m_arParts[0] = HardPointer(CDwgFixed::s_nStandardStyle);
    return DwgRecordOf(g_nDwgDimstyle, CDwgFixed::s_nDimstyle, style, DWG_FILED(FileDimstyle));
}

} // namespace

std::vector<CDwgClass> DwgStandardClasses() {
    const std::string strApp = "Drawing Objects";
    return {{g_nDwgDefaultDictionaryClass, 0, strApp, "AcDbDictionaryWithDefault", "ACDBDICTIONARYWDFLT"},
            {g_nDwgPlaceholderClass, 0, strApp, "AcDbPlaceHolder", "ACDBPLACEHOLDER"},
            {g_nDwgLayoutClass, 0, strApp, "AcDbLayout", "LAYOUT"}};
}

std::vector<CDwgRecord> DwgStandardObjects() {
    return {Control(g_nDwgViewControl, CDwgFixed::s_nViews, {}),
            Control(g_nDwgUcsControl, CDwgFixed::s_nUcss, {}),
            Control(g_nDwgViewportControl, CDwgFixed::s_nViewports, {SoftOwner(CDwgFixed::s_nViewport)}),
            Control(g_nDwgDimstyleControl, CDwgFixed::s_nDimstyles, {SoftOwner(CDwgFixed::s_nDimstyle)}),
            Control(g_nDwgViewportEntityControl, CDwgFixed::s_nViewportEntities, {}),
            DictionaryOf(CDwgFixed::s_nGroups),
            PlotStyles(),
            PlotStyle(),
            DictionaryOf(CDwgFixed::s_nMlineStyles, {"Standard"}, {SoftOwner(CDwgFixed::s_nMlineStyle)}),
            MlineStyle(),
            DictionaryOf(CDwgFixed::s_nPlotSettings),
            DictionaryOf(CDwgFixed::s_nLayouts, {"Layout1", "Model"},
                         {SoftOwner(CDwgFixed::s_nPaperSpace + 3), SoftOwner(CDwgFixed::s_nModelSpace + 3)}),
            LayoutOf(CDwgFixed::s_nPaperSpace, "Layout1"),
            LayoutOf(CDwgFixed::s_nModelSpace, "Model"),
            Dimstyle()};
}
