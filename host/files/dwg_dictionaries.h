#pragma once
// Dictionaries of a drawing file and the other objects that every drawing has; and how each is filed. Texts
// are in the drawing's code page.

#include "host/files/dwg_common.h"
#include "platform/acad/geometry.h"

#include <numbers>
#include <string>

inline constexpr std::uint16_t g_nDwgDictionary = 0x2A, g_nDwgMlineStyle = 0x49;

struct CDwgDictionary : CDwgObjectCommon {
    std::uint16_t m_nCloning = 1;
    std::uint8_t m_nHard = 0; ///< 1: its objects are kept for its sake alone
    std::vector<std::string> m_arNames;
    std::vector<CDwgHandle> m_arItems; ///< one for each name
};

template <class Io, class Dictionary>
void FileDictionary(Io& io, Dictionary& dictionary) {
    std::uint32_t nItems = static_cast<std::uint32_t>(dictionary.m_arNames.size());
    FileObjectCommon(io, dictionary);
    io.BL(nItems);
    io.BS(dictionary.m_nCloning);
    io.RC(dictionary.m_nHard);
    io.List(dictionary.m_arNames, nItems, [&io](auto& strName) { io.T(strName); });
    io.Handles(dictionary.m_arItems, nItems);
}

/// A dictionary that has an object for names that it does not hold.
struct CDwgDefaultDictionary : CDwgDictionary {
    CDwgHandle m_hDefault = HardPointer(0);
};

template <class Io, class Dictionary>
void FileDefaultDictionary(Io& io, Dictionary& dictionary) {
    FileDictionary(io, dictionary);
    io.Handle(dictionary.m_hDefault);
}

/// One of the lines that a multiple line is drawn as.
struct CDwgMlineElement {
    double m_dOffset = 0.5;
    std::uint16_t m_nColor = 256;
    std::uint16_t m_nLinetype = 32767; ///< an index in the table; this one: by layer
};

struct CDwgMlineStyle : CDwgObjectCommon {
    std::string m_strName, m_strDescription;
    std::uint16_t m_nFlags = 0, m_nFillColor = 256;
    double m_dStartAngle = std::numbers::pi / 2, m_dEndAngle = std::numbers::pi / 2;
    std::vector<CDwgMlineElement> m_arElements; ///< 255 at most
};

template <class Io, class Style>
void FileMlineStyle(Io& io, Style& style) {
    std::uint8_t nElements = static_cast<std::uint8_t>(style.m_arElements.size());
    FileObjectCommon(io, style);
    io.T(style.m_strName);
    io.T(style.m_strDescription);
    io.BS(style.m_nFlags);
    io.CMC(style.m_nFillColor);
    io.BD(style.m_dStartAngle);
    io.BD(style.m_dEndAngle);
    io.RC(nElements);
    io.List(style.m_arElements, nElements, [&io](auto& element) {
        io.BD(element.m_dOffset);
        io.CMC(element.m_nColor);
        io.BS(element.m_nLinetype);
    });
}

/// A sheet of paper, or model space, with how it is plotted.
struct CDwgLayout : CDwgObjectCommon {
    static constexpr std::uint16_t s_nPaper = 688, s_nModel = 1712;
    std::string m_strPageSetup, m_strPrinter = "none_device";
    std::uint16_t m_nPlotFlags = s_nPaper;
    double m_dLeft = 0.0, m_dBottom = 0.0, m_dRight = 0.0, m_dTop = 0.0; ///< margins
    double m_dPaperWidth = 420.0, m_dPaperHeight = 297.0;
    std::string m_strPaperSize;
    AcGePoint2d m_ptPlotOrigin;
    std::uint16_t m_nPaperUnits = 1, m_nPlotRotation = 0, m_nPlotType = 5; ///< millimetres; the layout
    AcGePoint2d m_ptWindowMin, m_ptWindowMax;
    std::string m_strPlotView;
    double m_dRealUnits = 1.0, m_dDrawingUnits = 1.0;
    std::string m_strStyleSheet;
    std::uint16_t m_nScaleType = 16;
    double m_dScale = 1.0;
    AcGePoint2d m_ptPaperImage;
    std::string m_strName;
    std::uint32_t m_nTab = 0;
    std::uint16_t m_nFlag = 1;
    AcGePoint3d m_ptUcsOrigin;
    AcGePoint2d m_ptLimmin, m_ptLimmax{420.0, 297.0};
    AcGePoint3d m_ptInsbase;
    AcGeVector3d m_vecUcsX{1.0, 0.0, 0.0}, m_vecUcsY{0.0, 1.0, 0.0};
    double m_dElevation = 0.0;
    std::uint16_t m_nUcsOrtho = 0;
    AcGePoint3d m_ptExtmin{1e20, 1e20, 1e20}, m_ptExtmax{-1e20, -1e20, -1e20};
    CDwgHandle m_hBlock = SoftPointer(0), m_hViewport = SoftPointer(0), m_hBaseUcs = HardPointer(0),
               m_hNamedUcs = HardPointer(0);
};

template <class Io, class Layout>
void FilePlotSettings(Io& io, Layout& layout) {
    io.T(layout.m_strPageSetup);
    io.T(layout.m_strPrinter);
    io.BS(layout.m_nPlotFlags);
    const auto doubles = [&io](auto&... values) { (io.BD(values), ...); };
    doubles(layout.m_dLeft, layout.m_dBottom, layout.m_dRight, layout.m_dTop, layout.m_dPaperWidth,
            layout.m_dPaperHeight);
    io.T(layout.m_strPaperSize);
    io.BD2(layout.m_ptPlotOrigin);
    io.BS(layout.m_nPaperUnits);
    io.BS(layout.m_nPlotRotation);
    io.BS(layout.m_nPlotType);
    io.BD2(layout.m_ptWindowMin);
    io.BD2(layout.m_ptWindowMax);
    io.T(layout.m_strPlotView);
    doubles(layout.m_dRealUnits, layout.m_dDrawingUnits);
    io.T(layout.m_strStyleSheet);
    io.BS(layout.m_nScaleType);
    io.BD(layout.m_dScale);
    io.BD2(layout.m_ptPaperImage);
}

template <class Io, class Layout>
void FileLayout(Io& io, Layout& layout) {
    FileObjectCommon(io, layout);
    FilePlotSettings(io, layout);
    io.T(layout.m_strName);
    io.BL(layout.m_nTab);
    io.BS(layout.m_nFlag);
    io.BD3(layout.m_ptUcsOrigin);
    io.RD2(layout.m_ptLimmin);
    io.RD2(layout.m_ptLimmax);
    io.BD3(layout.m_ptInsbase);
    io.BD3(layout.m_vecUcsX);
    io.BD3(layout.m_vecUcsY);
    io.BD(layout.m_dElevation);
    io.BS(layout.m_nUcsOrtho);
    io.BD3(layout.m_ptExtmin);
    io.BD3(layout.m_ptExtmax);
    const auto handles = [&io](auto&... values) { (io.Handle(values), ...); };
    handles(layout.m_hBlock, layout.m_hViewport, layout.m_hBaseUcs, layout.m_hNamedUcs);
}
