#include "host/files/dwg_second_header.h"

#include "host/files/bit_writer.h"
#include "host/files/dwg_crc.h"

namespace {

constexpr std::array<std::uint8_t, 16> g_secondStartMark = {0xD4, 0x7B, 0x21, 0xCE, 0x28, 0x93, 0x9F, 0xBF,
                                                            0x53, 0x24, 0x40, 0x09, 0x12, 0x3C, 0xAA, 0x01};
constexpr std::array<std::uint8_t, 16> g_secondEndMark = {0x2B, 0x84, 0xDE, 0x31, 0xD7, 0x6C, 0x60, 0x40,
                                                          0xAC, 0xDB, 0xBF, 0xF6, 0xED, 0xC3, 0x55, 0xFE};
constexpr std::size_t g_nSecondSizeField = 4, g_nSecondSumField = 2;
constexpr std::size_t g_nFiller = 8; ///< bytes of any value behind the sum

void WriteLocators(CBitWriter& bits, const CDwgLocators& locators) {
    bits.BS(static_cast<std::uint16_t>(locators.size()));
    for (std::size_t i = 0; i < locators.size(); ++i) {
        // The template's place is kept in the file header alone.
        const CDwgLocator locator = i == g_nDwgTemplateSection ? CDwgLocator() : locators[i];
        bits.RC(static_cast<std::uint8_t>(i));
        bits.BL(locator.m_nAddress);
        bits.BL(locator.m_nSize);
    }
}

void WriteHandles(CBitWriter& bits, const CDwgVariables& variables) {
    const CDwgRoots& roots = variables.m_roots;
    const std::array handles = {variables.m_hHandseed,
                                roots.m_hBlocks,
                                roots.m_hLayers,
                                roots.m_hStyles,
                                roots.m_hLinetypes,
                                roots.m_hViews,
                                roots.m_hUcss,
                                roots.m_hViewports,
                                roots.m_hApps,
                                roots.m_hDimstyles,
                                roots.m_hViewportEntities,
                                roots.m_hNamedObjects,
                                roots.m_hMlineStyles,
                                roots.m_hGroups};
    bits.BS(static_cast<std::uint16_t>(handles.size()));
    for (std::size_t i = 0; i < handles.size(); ++i) {
        CBitWriter handle;
        handle.H(handles[i]);
        const CByteView bytes = CByteView(handle.Bytes()).subspan(1); // without kind and count
        bits.RC(static_cast<std::uint8_t>(bytes.size()));
        bits.RC(static_cast<std::uint8_t>(i));
        bits.Raw(bytes, bytes.size());
    }
}

/// All between the size and the check sum.
CBytes Content(const CDwgFileHeader& header, const CDwgVariables& variables, std::uint32_t nAddress) {
    CBitWriter bits;
    bits.BL(nAddress);
    for (const char c : g_strDwgVersion)
        bits.RC(static_cast<std::uint8_t>(c));
    bits.Raw(CBytes(5), 5);
    bits.RC(header.m_identity.m_nMaintenance);
    bits.RC(1);
    bits.BS(header.m_identity.m_nWriter);
    bits.RS(header.m_identity.m_nCodePage);
    WriteLocators(bits, header.m_arSections);
    WriteHandles(bits, variables);
    return bits.Take();
}

} // namespace

CBytes WriteDwgSecondHeader(const CDwgFileHeader& header, const CDwgVariables& variables,
                            std::uint32_t nAddress) {
    const CBytes content = Content(header, variables, nAddress);
    CBitWriter bits;
    bits.Raw(g_secondStartMark, g_secondStartMark.size());
    bits.RL(static_cast<std::uint32_t>(g_nSecondSizeField + content.size() + g_nSecondSumField + g_nFiller));
    bits.Raw(content, content.size());
    bits.RS(DwgCrc(CByteView(bits.Bytes()).subspan(g_secondStartMark.size())));
    bits.Raw(CBytes(g_nFiller), g_nFiller);
    bits.Raw(g_secondEndMark, g_secondEndMark.size());
    return bits.Take();
}
