#pragma once
// What the objects of a drawing file have in common, whatever their class.

#include "host/files/dwg_record_io.h"

/// The common part of an object that is no entity.
struct CDwgObjectCommon {
    CDwgHandle m_hOwner = SoftPointer(0);
    std::vector<CDwgHandle> m_arReactors;
    CDwgHandle m_hExtensions = HardOwner(0); ///< the dictionary of extensions
};

/// How a property of an entity is given that may be taken from elsewhere.
enum : std::uint8_t { g_nDwgByLayer = 0, g_nDwgByBlock = 1, g_nDwgContinuous = 2, g_nDwgByHandle = 3 };

/// Where an entity's owner is said.
enum : std::uint8_t { g_nDwgOwnerGiven = 0, g_nDwgInPaperSpace = 1, g_nDwgInModelSpace = 2 };

inline constexpr std::uint8_t g_nDwgLineweightByLayer = 29;

/// The common part of an entity.
struct CDwgEntityCommon {
    bool m_bGraphics = false;
    CBytes m_arGraphics; ///< a picture for programs that don't know the class
    std::uint8_t m_nPlace = g_nDwgOwnerGiven;
    bool m_bNeighbours = false; ///< the entities before and behind it are those with the next handles
    std::uint16_t m_nColor = 256;
    double m_dLinetypeScale = 1.0;
    std::uint8_t m_nLinetype = g_nDwgByLayer, m_nPlotStyle = g_nDwgByLayer;
    std::uint16_t m_nInvisible = 0;
    std::uint8_t m_nLineweight = g_nDwgLineweightByLayer;
    CDwgHandle m_hOwner = SoftPointer(0);
    std::vector<CDwgHandle> m_arReactors;
    CDwgHandle m_hExtensions = HardOwner(0);
    CDwgHandle m_hPrevious = SoftPointer(0), m_hNext = SoftPointer(0); ///< null at the ends of the block
    CDwgHandle m_hLayer = HardPointer(0), m_hLinetype = HardPointer(0), m_hPlotStyle = HardPointer(0);
};

template <class Io, class Common>
void FileObjectCommon(Io& io, Common& common) {
    std::uint32_t nReactors = static_cast<std::uint32_t>(common.m_arReactors.size());
    io.BL(nReactors);
    io.Handle(common.m_hOwner);
    io.Handles(common.m_arReactors, nReactors);
    io.Handle(common.m_hExtensions);
}

template <class Io, class Common>
void FileEntityCommon(Io& io, Common& common) {
    std::uint32_t nGraphics = static_cast<std::uint32_t>(common.m_arGraphics.size());
    std::uint32_t nReactors = static_cast<std::uint32_t>(common.m_arReactors.size());
    io.B(common.m_bGraphics);
    if (common.m_bGraphics) {
        io.RL(nGraphics);
        io.Raw(common.m_arGraphics, nGraphics);
    }
    io.BB(common.m_nPlace);
    io.BL(nReactors);
    io.B(common.m_bNeighbours);
    io.CMC(common.m_nColor);
    io.BD(common.m_dLinetypeScale);
    io.BB(common.m_nLinetype);
    io.BB(common.m_nPlotStyle);
    io.BS(common.m_nInvisible);
    io.RC(common.m_nLineweight);
    if (common.m_nPlace == g_nDwgOwnerGiven) io.Handle(common.m_hOwner);
    io.Handles(common.m_arReactors, nReactors);
    io.Handle(common.m_hExtensions);
    if (!common.m_bNeighbours) {
        io.Handle(common.m_hPrevious);
        io.Handle(common.m_hNext);
    }
    io.Handle(common.m_hLayer);
    if (common.m_nLinetype == g_nDwgByHandle) io.Handle(common.m_hLinetype);
    if (common.m_nPlotStyle == g_nDwgByHandle) io.Handle(common.m_hPlotStyle);
}
