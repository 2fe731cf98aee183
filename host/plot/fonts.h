#pragma once

#include "platform/acad/text_metrics.h"

#include <QtCore/QStringList>
#include <QtGui/QRawFont>

#include <functional>
#include <map>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

/// One character of a text as it is painted.
struct CGlyph {
    const QRawFont* m_pFont = nullptr; ///< null for a control character, which shows nothing
    quint32 m_nIndex = 0;
    double m_dAdvance = 0.0; ///< in capital heights
};

/// The fonts that serve one font name, first come first: the name's own, then those that cover the code page.
class CFontChain {
public:
    /// At least one family.
    explicit CFontChain(const QStringList& arFamilies);
    CFontChain(const CFontChain&) = delete;
    CFontChain& operator=(const CFontChain&) = delete;

    /// The character by the first font that has it, else the first font's own mark for a missing one.
    const CGlyph& Glyph(char32_t character);
    bool Covers(char32_t character) const;
    /// Size of the em square over the height of the first font's capitals.
    double EmPerCapital() const { return m_dEmPerCapital; }
    /// How far the first font's capitals stand above its base line (fonts that centre them beside hanzi do),
    /// in capital heights. Texts are lowered by it, so that capitals stand on the text's position.
    double CapitalLift() const { return m_dCapitalLift; }
    const QStringList& Families() const { return m_arFamilies; }

private:
    CGlyph Find(char32_t character) const;
    void MeasureCapitals();

    QStringList m_arFamilies;
    std::vector<QRawFont> m_arFonts; // stays as constructed: glyphs point into it
    double m_dEmPerCapital = 1.0, m_dCapitalLift = 0.0;
    std::unordered_map<char32_t, CGlyph> m_mapGlyphs;
};

/// All fonts of pictures: what is measured here is what is painted. Fonts are held at CFonts::PixelSize
/// without hinting, and everything scales linearly from there. Needs Qt's graphics started.
class CFonts final : public CTextMetrics {
public:
    static constexpr int PixelSize = 1000;
    /// Takes a line of GBK text.
    using CWarning = std::function<void(const std::string& strText)>;

    /// warn hears once of each font name that is neither installed nor in our table, and of each of our own
    /// fonts that is not installed; it may be empty.
    explicit CFonts(CWarning warn);

    double AdvanceWidth(const CTextFont& font, const std::string& strText) override;
    CFontChain& Chain(const CTextFont& font);

private:
    void Warn(const std::string& strText) const;
    QString Installed(const QString& strFamily) const;
    QString FamilyFor(const std::string& strName);

    CWarning m_fnWarn;
    QStringList m_arInstalled;
    std::map<std::string, QString> m_mapFamilies;
    std::map<std::pair<std::string, std::string>, CFontChain> m_mapChains;
};
