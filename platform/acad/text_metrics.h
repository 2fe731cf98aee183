#pragma once
// The widths of texts. The host that paints also measures, with the same fonts.

#include <string>

/// What decides a text's size.
struct CTextFont {
    std::string m_strFont;    ///< GBK; a font name or a shape-font file, before any mapping
    std::string m_strBigFont; ///< GBK; empty unless the style has a big font
};

class CTextMetrics {
public:
    virtual ~CTextMetrics() = default;
    /// Sum of the advance widths of a GBK text at height 1 (height of the capitals), width factor 1, no
    /// tracking.
    virtual double AdvanceWidth(const CTextFont& font, const std::string& strText) = 0;
};

/// The metrics in force; null when no host registered any, and then a text has no extents.
CTextMetrics* TextMetrics();
/// Not owned. Null takes the metrics away.
void SetTextMetrics(CTextMetrics* pMetrics);
