#include "host/files/dxf_write_objects.h"

#include "platform/acad/rx_class.h"
#include "platform/windows/code_page.h"

#include <array>
#include <utility>

namespace {

const std::array<CDxfClass, g_nDxfUsualClasses> g_arUsualClasses = {{
    {L"ACDBDICTIONARYWDFLT", L"AcDbDictionaryWithDefault", L"ObjectDBX Classes"},
    {L"ACDBPLACEHOLDER", L"AcDbPlaceHolder", L"ObjectDBX Classes"},
    {L"LAYOUT", L"AcDbLayout", L"ObjectDBX Classes"},
}};

using CEntries = std::vector<std::pair<std::wstring, AcDbHandle>>;

void WriteClass(CDxfOutput& out, const CDxfClass& entry, bool bEntities) {
    out.Word(0, "CLASS");
    out.Text(1, entry.m_strDxfName);
    out.Text(2, entry.m_strClassName);
    out.Text(3, entry.m_strAppName);
    out.Whole(90, entry.m_nProxyFlags);
    out.Whole(280, entry.m_bWasProxy ? 1 : 0);
    out.Whole(281, bEntities ? 1 : 0);
}

void WriteDictionary(CDxfOutput& out, std::string_view type, AcDbHandle handle, AcDbHandle owner,
                     const CEntries& arEntries) {
    out.Record(type, handle, owner);
    out.Subclass("AcDbDictionary");
    out.Whole(281, 1); // of two that come together the one that is there is kept
    for (const auto& [strName, entry] : arEntries) {
        out.Text(3, strName);
        out.Handle(350, entry);
    }
}

void WritePlotSettings(CDxfOutput& out, bool bModel) {
    constexpr int nModelFlags = 1024 + 512 + 128 + 32; // with plot styles and line weights
    constexpr int nSheetFlags = 512 + 128 + 32;
    out.Subclass("AcDbPlotSettings");
    out.Word(1, "");
    out.Word(2, "");
    out.Word(4, "");
    out.Word(6, "");
    for (const int nMarginOrSize : {40, 41, 42, 43, 44, 45, 46, 47, 48, 49, 140, 141})
        out.Real(nMarginOrSize, 0.0);
    out.Real(142, 1.0); // one drawing unit is one of paper
    out.Real(143, 1.0);
    out.Whole(70, bModel ? nModelFlags : nSheetFlags);
    out.Whole(72, 1); // millimetres
    out.Whole(73, 0);
    out.Whole(74, 5); // what the layout shows
    out.Word(7, "");
    out.Whole(75, 16); // 1:1
    out.Real(147, 1.0);
    out.Real(148, 0.0); // origin of the image on paper
    out.Real(149, 0.0);
}

void WriteLayout(CDxfOutput& out, const CDxfLayout& layout, AcDbHandle dictionary) {
    constexpr double dWide = 420.0, dHigh = 297.0; // A3
    out.Record("LAYOUT", layout.m_handle, dictionary);
    WritePlotSettings(out, layout.m_nTab == 0);
    out.Subclass("AcDbLayout");
    out.Text(1, layout.m_strName);
    out.Whole(70, 1);
    out.Whole(71, layout.m_nTab);
    out.Point(10, AcGePoint2d(0.0, 0.0)); // limits
    out.Point(11, AcGePoint2d(dWide, dHigh));
    out.Point(12, AcGePoint3d::kOrigin); // base point, then extents
    out.Point(14, AcGePoint3d::kOrigin);
    out.Point(15, AcGePoint3d(dWide, dHigh, 0.0));
    out.Real(146, 0.0); // elevation, then the coordinate system
    out.Point(13, AcGePoint3d::kOrigin);
    out.Point(16, AcGePoint3d(1.0, 0.0, 0.0));
    out.Point(17, AcGePoint3d(0.0, 1.0, 0.0));
    out.Whole(76, 0);
    out.Handle(330, layout.m_idBlock.handle());
}

void WriteMultilineStyle(CDxfOutput& out, AcDbHandle handle, AcDbHandle owner) {
    constexpr double dRight = 90.0;
    out.Record("MLINESTYLE", handle, owner);
    out.Subclass("AcDbMlineStyle");
    out.Word(2, "Standard");
    out.Whole(70, 0);
    out.Word(3, "");
    out.Whole(62, g_nColorByLayer);
    out.Real(51, dRight);
    out.Real(52, dRight);
    out.Whole(71, 2);
    for (const double dOffset : {0.5, -0.5}) {
        out.Real(49, dOffset);
        out.Whole(62, g_nColorByLayer);
        out.Word(6, "ByLayer");
    }
}

void WriteLayouts(CDxfOutput& out, const CDxfStructure& structure, AcDbHandle dictionary, AcDbHandle owner) {
    CEntries arEntries;
    for (const CDxfLayout& layout : structure.m_arLayouts)
        arEntries.emplace_back(layout.m_strName, layout.m_handle);
    WriteDictionary(out, "DICTIONARY", dictionary, owner, arEntries);
    for (const CDxfLayout& layout : structure.m_arLayouts)
        WriteLayout(out, layout, dictionary);
}

void WritePlotStyles(CDxfOutput& out, AcDbHandle plotStyle, AcDbHandle dictionary, AcDbHandle owner) {
    WriteDictionary(out, "ACDBDICTIONARYWDFLT", dictionary, owner, {{L"Normal", plotStyle}});
    out.Subclass("AcDbDictionaryWithDefault");
    out.Handle(340, plotStyle);
    out.Record("ACDBPLACEHOLDER", plotStyle, dictionary);
}

void LoseNamedObjects(CDxfOutput& out) {
    const CDbOpen<AcDbDictionary> named(out.Database().namedObjectsDictionaryId());
    for (const auto& [strName, id] : named->Entries())
        if (const CDbOpen<AcDbObject> object(id); object && !IsUsualDxfEntry(GbkFromWide(strName)))
            out.Lose(GbkFromWide(object->isA()->dxfName()));
}

} // namespace

void WriteDxfClasses(CDxfOutput& out) {
    out.BeginSection("CLASSES");
    for (const CDxfClass& entry : g_arUsualClasses)
        WriteClass(out, entry, false);
    for (const CDxfClass& entry : out.Classes())
        WriteClass(out, entry, true);
    out.EndSection();
}

void WriteDxfObjects(CDxfOutput& out, const CDxfStructure& structure) {
    const AcDbHandle root = out.Database().namedObjectsDictionaryId().handle();
    const AcDbHandle groups = out.NewHandle(), layouts = out.NewHandle(), multilines = out.NewHandle(),
                     plotSettings = out.NewHandle(), plotStyles = out.NewHandle(),
                     multiline = out.NewHandle();
    LoseNamedObjects(out);
    out.BeginSection("OBJECTS");
    WriteDictionary(out, "DICTIONARY", root, AcDbHandle(),
                    {{L"ACAD_GROUP", groups},
                     {L"ACAD_LAYOUT", layouts},
                     {L"ACAD_MLINESTYLE", multilines},
                     {L"ACAD_PLOTSETTINGS", plotSettings},
                     {L"ACAD_PLOTSTYLENAME", plotStyles}});
    WriteDictionary(out, "DICTIONARY", groups, root, {});
    WriteLayouts(out, structure, layouts, root);
    WriteDictionary(out, "DICTIONARY", multilines, root, {{L"Standard", multiline}});
    WriteMultilineStyle(out, multiline, multilines);
    WriteDictionary(out, "DICTIONARY", plotSettings, root, {});
    WritePlotStyles(out, structure.m_plotStyle, plotStyles, root);
    out.EndSection();
}
