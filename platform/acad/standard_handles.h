#pragma once

#include <cstdint>

/// The handles of what every new drawing has, the same in all of them. Some programs find these objects by
/// their handles alone.
struct CStandardHandles {
    static constexpr std::uint64_t s_nBlocks = 0x1, s_nLayers = 0x2, s_nStyles = 0x3, s_nLinetypes = 0x5,
                                   s_nViews = 0x6, s_nUcss = 0x7, s_nViewports = 0x8, s_nApps = 0x9,
                                   s_nDimstyles = 0xA, s_nViewportEntities = 0xB;
    static constexpr std::uint64_t s_nNamedObjects = 0xC, s_nGroups = 0xD, s_nPlotStyles = 0xE,
                                   s_nPlotStyle = 0xF, s_nMlineStyles = 0x17, s_nPlotSettings = 0x19,
                                   s_nLayouts = 0x1A;
    static constexpr std::uint64_t s_nLayer0 = 0x10, s_nStandardStyle = 0x11, s_nAcadApp = 0x12,
                                   s_nByBlock = 0x14, s_nByLayer = 0x15, s_nContinuous = 0x16,
                                   s_nMlineStyle = 0x18, s_nDimstyle = 0x27, s_nViewport = 0x52;
    // A space's block header is followed by its first and its last entity and its layout.
    static constexpr std::uint64_t s_nPaperSpace = 0x1B, s_nModelSpace = 0x1F;
    static constexpr std::uint64_t s_nFirstFree = 0x60; ///< of all other objects
};
