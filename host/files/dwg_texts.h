#pragma once
// The own parts of a drawing file's texts, attributes and attribute definitions, and how each is filed.

#include "host/files/dwg_handle.h"
#include "host/files/dwg_zero.h"
#include "platform/acad/geometry.h"

#include <string>

inline constexpr std::uint16_t g_nDwgText = 1, g_nDwgAttribute = 2, g_nDwgAttributeDefinition = 3;

struct CDwgTextEntity {
    double m_dElevation = 0.0;
    AcGePoint2d m_ptPosition, m_ptAlignment; ///< the latter of (0, 0) is not used
    AcGeVector3d m_vecExtrusion{0.0, 0.0, 1.0};
    double m_dThickness = 0.0;
    double m_dOblique = 0.0, m_dRotation = 0.0, m_dHeight = 0.0, m_dWidthFactor = 1.0;
    std::string m_strText;           ///< in the drawing's code page, as all texts here
    std::uint16_t m_nGeneration = 0; ///< 2 backward, 4 upside down
    std::uint16_t m_nHorizontal = 0, m_nVertical = 0;
    CDwgHandle m_hStyle = HardPointer(0);

    /// One bit for each value that is the usual one and left out of the file.
    std::uint8_t UsualValues() const {
        const bool arUsual[] = {
            IsPlainZero(m_dElevation), IsPlainZero(m_ptAlignment.x) && IsPlainZero(m_ptAlignment.y),
            IsPlainZero(m_dOblique),   IsPlainZero(m_dRotation),
            m_dWidthFactor == 1.0,     m_nGeneration == 0,
            m_nHorizontal == 0,        m_nVertical == 0};
        unsigned nBits = 0;
        for (unsigned i = 0; i < std::size(arUsual); ++i)
            nBits |= static_cast<unsigned>(arUsual[i]) << i;
        return static_cast<std::uint8_t>(nBits);
    }
};

template <class Io, class Text>
void FileText(Io& io, Text& text) {
    std::uint8_t nUsual = text.UsualValues();
    io.RC(nUsual);
    const auto has = [&nUsual](unsigned nBit) { return (nUsual & nBit) == 0; };
    if (has(0x01)) io.RD(text.m_dElevation);
    io.RD2(text.m_ptPosition);
    if (has(0x02)) {
        io.DD(text.m_ptAlignment.x, text.m_ptPosition.x);
        io.DD(text.m_ptAlignment.y, text.m_ptPosition.y);
    }
    io.BE(text.m_vecExtrusion);
    io.BT(text.m_dThickness);
    if (has(0x04)) io.RD(text.m_dOblique);
    if (has(0x08)) io.RD(text.m_dRotation);
    io.RD(text.m_dHeight);
    if (has(0x10)) io.RD(text.m_dWidthFactor);
    io.T(text.m_strText);
    if (has(0x20)) io.BS(text.m_nGeneration);
    if (has(0x40)) io.BS(text.m_nHorizontal);
    if (has(0x80)) io.BS(text.m_nVertical);
    io.Handle(text.m_hStyle);
}

struct CDwgAttributeEntity : CDwgTextEntity {
    static constexpr std::uint8_t s_nInvisible = 1, s_nConstant = 2, s_nVerify = 4, s_nPreset = 8;
    std::string m_strTag;
    std::int16_t m_nFieldLength = 0;
    std::uint8_t m_nFlags = 0;
};

template <class Io, class Attribute>
void FileAttribute(Io& io, Attribute& attribute) {
    FileText(io, attribute);
    io.T(attribute.m_strTag);
    io.BS(attribute.m_nFieldLength);
    io.RC(attribute.m_nFlags);
}

struct CDwgAttributeDefinitionEntity : CDwgAttributeEntity {
    std::string m_strPrompt;
};

template <class Io, class Definition>
void FileAttributeDefinition(Io& io, Definition& definition) {
    FileAttribute(io, definition);
    io.T(definition.m_strPrompt);
}
