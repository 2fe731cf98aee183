#pragma once
// Tables of a drawing file and their records, but for blocks; and how each is filed. Texts are in the
// drawing's code page.

#include "host/files/dwg_common.h"
#include "host/files/dwg_dimension_fields.h"
#include "host/files/dwg_variables.h"

// The fixed type codes of tables and records.
inline constexpr std::uint16_t g_nDwgBlockControl = 0x30, g_nDwgLayerControl = 0x32, g_nDwgLayer = 0x33,
                               g_nDwgStyleControl = 0x34, g_nDwgStyle = 0x35, g_nDwgLinetypeControl = 0x38,
                               g_nDwgLinetype = 0x39, g_nDwgViewControl = 0x3C, g_nDwgUcsControl = 0x3E,
                               g_nDwgViewportControl = 0x40, g_nDwgViewport = 0x41, g_nDwgAppControl = 0x42,
                               g_nDwgApp = 0x43, g_nDwgDimstyleControl = 0x44, g_nDwgDimstyle = 0x45,
                               g_nDwgViewportEntityControl = 0x46;

/// A table: its records, and for blocks and line types the two that every drawing has.
struct CDwgControl : CDwgObjectCommon {
    std::vector<CDwgHandle> m_arRecords; ///< null ones stand for records that are gone
    std::vector<CDwgHandle> m_arFixed;   ///< model and paper space; ByBlock and ByLayer
};

template <class Io, class Control>
void FileControl(Io& io, Control& control, std::uint16_t nType) {
    std::uint32_t nRecords = static_cast<std::uint32_t>(control.m_arRecords.size());
    FileObjectCommon(io, control);
    io.BL(nRecords);
    std::uint8_t nMore = 0; // handles behind the dimension styles, of no use here
    if (nType == g_nDwgDimstyleControl) io.RC(nMore);
    io.Handles(control.m_arRecords, nRecords);
    if (nType == g_nDwgBlockControl || nType == g_nDwgLinetypeControl) io.Handles(control.m_arFixed, 2);
}

/// What the records of all tables begin with.
struct CDwgTableRecord : CDwgObjectCommon {
    std::string m_strName;
    bool m_bReferenced = true;
    std::uint16_t m_nXref = 0; ///< one more than its index; 0 for none
    bool m_bFromXref = false;
    CDwgHandle m_hXref = HardPointer(0);
};

template <class Io, class Record>
void FileTableRecord(Io& io, Record& record) {
    FileObjectCommon(io, record);
    io.T(record.m_strName);
    io.B(record.m_bReferenced);
    io.BS(record.m_nXref);
    io.B(record.m_bFromXref);
    io.Handle(record.m_hXref);
}

struct CDwgLayerRecord : CDwgTableRecord {
    static constexpr std::uint16_t s_nFrozen = 1, s_nOff = 2, s_nLocked = 8;
    std::uint16_t m_nFlags = 0x3F0; ///< on, plotted, of the default line weight
    std::uint16_t m_nColor = 7;
    CDwgHandle m_hPlotStyle = HardPointer(0), m_hLinetype = HardPointer(0);
};

template <class Io, class Layer>
void FileLayer(Io& io, Layer& layer) {
    FileTableRecord(io, layer);
    io.BS(layer.m_nFlags);
    io.CMC(layer.m_nColor);
    io.Handle(layer.m_hPlotStyle);
    io.Handle(layer.m_hLinetype);
}

struct CDwgStyleRecord : CDwgTableRecord {
    bool m_bVertical = false;
    bool m_bShapes = false; ///< it stands for a file of shapes, and has no name
    double m_dHeight = 0.0, m_dWidthFactor = 1.0, m_dOblique = 0.0;
    std::uint8_t m_nGeneration = 0;
    double m_dLastHeight = 2.5;
    std::string m_strFont, m_strBigFont;
};

template <class Io, class Style>
void FileStyle(Io& io, Style& style) {
    FileTableRecord(io, style);
    io.B(style.m_bVertical);
    io.B(style.m_bShapes);
    io.BD(style.m_dHeight);
    io.BD(style.m_dWidthFactor);
    io.BD(style.m_dOblique);
    io.RC(style.m_nGeneration);
    io.BD(style.m_dLastHeight);
    io.T(style.m_strFont);
    io.T(style.m_strBigFont);
}

/// A dash, gap or dot of a line type, which may carry a shape or a text.
struct CDwgDash {
    double m_dLength = 0.0;
    std::uint16_t m_nShape = 0; ///< the shape's number, or where in the text area the text begins
    double m_dX = 0.0, m_dY = 0.0, m_dScale = 1.0, m_dRotation = 0.0;
    std::uint16_t m_nFlags = 0; ///< 1 absolute rotation, 2 text, 4 shape
};

struct CDwgLinetypeRecord : CDwgTableRecord {
    static constexpr std::size_t s_nTextArea = 256;
    std::string m_strDescription;
    double m_dLength = 0.0;
    std::uint8_t m_nAlignment = 'A';
    std::vector<CDwgDash> m_arDashes; ///< 255 at most
    CBytes m_arTexts = CBytes(s_nTextArea);
    std::vector<CDwgHandle> m_arStyles; ///< of each dash; null for a plain one
};

template <class Io, class Linetype>
void FileLinetype(Io& io, Linetype& linetype) {
    FileTableRecord(io, linetype);
    std::uint8_t nDashes = static_cast<std::uint8_t>(linetype.m_arDashes.size());
    io.T(linetype.m_strDescription);
    io.BD(linetype.m_dLength);
    io.RC(linetype.m_nAlignment);
    io.RC(nDashes);
    io.List(linetype.m_arDashes, nDashes, [&io](auto& dash) {
        io.BD(dash.m_dLength);
        io.BS(dash.m_nShape);
        io.RD(dash.m_dX);
        io.RD(dash.m_dY);
        io.BD(dash.m_dScale);
        io.BD(dash.m_dRotation);
        io.BS(dash.m_nFlags);
    });
    io.Raw(linetype.m_arTexts, CDwgLinetypeRecord::s_nTextArea);
    io.Handles(linetype.m_arStyles, nDashes);
}

struct CDwgAppRecord : CDwgTableRecord {};

template <class Io, class App>
void FileApp(Io& io, App& app) {
    FileTableRecord(io, app);
    std::uint8_t nUnknown = 0;
    io.RC(nUnknown);
}

struct CDwgDimstyleRecord : CDwgTableRecord {
    CDwgDimensionVariables m_dimension;
    std::vector<CDwgHandle> m_arParts = std::vector(5, HardPointer(0)); ///< text style and four arrow blocks
};

template <class Io, class Dimstyle>
void FileDimstyle(Io& io, Dimstyle& dimstyle) {
    FileTableRecord(io, dimstyle);
    FileDimensionVariables(io, dimstyle.m_dimension);
    io.BS(dimstyle.m_dimension.m_nDimlwd);
    io.BS(dimstyle.m_dimension.m_nDimlwe);
    bool bUnknown = false;
    io.B(bUnknown);
    io.Handles(dimstyle.m_arParts, 5);
}
