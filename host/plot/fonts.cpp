#include "host/plot/fonts.h"

#include "platform/windows/code_page.h"

#include <QtGui/QFont>
#include <QtGui/QFontDatabase>
#include <QtGui/QPainterPath>

#include <algorithm>
#include <array>

namespace {

// Song type in the standard's own shapes for the common characters, the other for the rest of the code page.
QString MainFamily() {
    return u"AR PL SungtiL GB"_qs;
}
QString RestFamily() {
    return u"BabelStone Han"_qs;
}

/// Names that stand for the main family: what Chinese drawings ask for and no Linux system has.
bool IsMapped(const QString& strName) {
    static constexpr std::array g_arNames = {
        // Outline fonts.
        u"仿宋_GB2312", u"仿宋", u"FangSong", u"FangSong_GB2312", u"宋体", u"SimSun", u"新宋体", u"NSimSun",
        // Shape fonts, and the big fonts that go with them.
        u"ComFont", u"Hztxt12a", u"txt", u"txt1", u"simplex", u"complex", u"monotxt", u"isocp", u"romans",
        u"romand", u"romanc", u"hztxt", u"hztxt1", u"hzfs", u"st64f", u"gbenor", u"gbeitc", u"gbcbig",
        u"bigfont", u"chineset"};
    QStringView name(strName);
    if (name.endsWith(u".shx", Qt::CaseInsensitive)) name.chop(4);
    return name.isEmpty() || std::any_of(g_arNames.begin(), g_arNames.end(), [&](const char16_t* strKnown) {
               return name.compare(QStringView(strKnown), Qt::CaseInsensitive) == 0;
           });
}

QRawFont MakeFont(const QString& strFamily) {
    QFont font(strFamily);
    font.setPixelSize(CFonts::PixelSize);
    font.setHintingPreference(QFont::PreferNoHinting);
    font.setStyleStrategy(QFont::NoFontMerging);
    return QRawFont::fromFont(font);
}

} // namespace

CFontChain::CFontChain(const QStringList& arFamilies)
    : m_arFamilies(arFamilies) {
    for (const QString& strFamily : arFamilies)
        m_arFonts.push_back(MakeFont(strFamily));
    MeasureCapitals();
}

void CFontChain::MeasureCapitals() {
    const QList<quint32> arGlyphs = m_arFonts.front().glyphIndexesForString(u"H"_qs);
    if (arGlyphs.isEmpty() || arGlyphs.front() == 0) return;
    const QRectF capital = m_arFonts.front().pathForGlyph(arGlyphs.front()).boundingRect();
    if (!(capital.height() > 0.0)) return;
    m_dEmPerCapital = CFonts::PixelSize / capital.height();
    m_dCapitalLift = -capital.bottom() / capital.height();
}

bool CFontChain::Covers(char32_t character) const {
    return std::any_of(m_arFonts.begin(), m_arFonts.end(),
                       [&](const QRawFont& font) { return font.supportsCharacter(character); });
}

CGlyph CFontChain::Find(char32_t character) const {
    if (character < U' ' || character == 0x7F) return {};
    const auto found = std::find_if(m_arFonts.begin(), m_arFonts.end(),
                                    [&](const QRawFont& font) { return font.supportsCharacter(character); });
    CGlyph glyph;
    glyph.m_pFont = found != m_arFonts.end() ? &*found : &m_arFonts.front();
    const QList<quint32> arGlyphs = glyph.m_pFont->glyphIndexesForString(QString::fromUcs4(&character, 1));
    if (!arGlyphs.isEmpty() && found != m_arFonts.end()) glyph.m_nIndex = arGlyphs.front();
    const QList<QPointF> arAdvances =
        glyph.m_pFont->advancesForGlyphIndexes({glyph.m_nIndex}, QRawFont::UseDesignMetrics);
    if (!arAdvances.isEmpty())
        glyph.m_dAdvance = arAdvances.front().x() / CFonts::PixelSize * m_dEmPerCapital;
    return glyph;
}

const CGlyph& CFontChain::Glyph(char32_t character) {
    const auto [position, bNew] = m_mapGlyphs.try_emplace(character);
    if (bNew) position->second = Find(character);
    return position->second;
}

CFonts::CFonts(CWarning warn)
    : m_fnWarn(std::move(warn))
    , m_arInstalled(QFontDatabase::families()) {
    for (const QString& strFamily : {MainFamily(), RestFamily()})
        if (Installed(strFamily).isEmpty())
            Warn("Font " + GbkFromWide(strFamily.toStdWString()) +
                 " is not installed: Chinese texts may lack characters");
}

void CFonts::Warn(const std::string& strText) const {
    if (m_fnWarn) m_fnWarn(strText);
}

double CFonts::AdvanceWidth(const CTextFont& font, const std::string& strText) {
    CFontChain& chain = Chain(font);
    double dWidth = 0.0;
    for (const wchar_t character : WideFromGbk(strText))
        dWidth += chain.Glyph(static_cast<char32_t>(character)).m_dAdvance;
    return dWidth;
}

CFontChain& CFonts::Chain(const CTextFont& font) {
    const std::pair key(font.m_strFont, font.m_strBigFont);
    const auto found = m_mapChains.find(key);
    if (found != m_mapChains.end()) return found->second;
    QStringList arFamilies = {FamilyFor(font.m_strFont)};
    if (!font.m_strBigFont.empty()) arFamilies.append(FamilyFor(font.m_strBigFont));
    arFamilies.append({FamilyFor({}), RestFamily()});
    arFamilies.removeDuplicates();
    return m_mapChains.try_emplace(key, arFamilies).first->second;
}

/// The family by its own spelling, or empty.
QString CFonts::Installed(const QString& strFamily) const {
    const auto found = std::find_if(m_arInstalled.begin(), m_arInstalled.end(), [&](const QString& strOne) {
        return strOne.compare(strFamily, Qt::CaseInsensitive) == 0;
    });
    return found != m_arInstalled.end() ? *found : QString();
}

QString CFonts::FamilyFor(const std::string& strName) {
    const auto [position, bNew] = m_mapFamilies.try_emplace(strName, MainFamily());
    if (!bNew) return position->second;
    const QString strWanted = QString::fromStdWString(WideFromGbk(strName));
    const QString strOwn = Installed(strWanted);
    if (!strOwn.isEmpty())
        position->second = strOwn;
    else if (!IsMapped(strWanted))
        Warn("Font " + strName + " is not installed and was replaced");
    return position->second;
}
