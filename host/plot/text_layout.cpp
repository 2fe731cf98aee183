#include "host/plot/text_layout.h"

#include "host/plot/paintable.h"
#include "platform/windows/code_page.h"

#include <cmath>

namespace {

bool IsUsableSize(double dSize) {
    return dSize > 0.0 && IsPaintable(dSize, 0.0);
}

/// From the text's space to the page: slant, width factor, then the base line's direction; y down on both
/// sides.
std::optional<QTransform> Placement(const CTextPrimitive& text, const QPointF& position) {
    const AcGeVector3d along =
        text.m_vecDirection.isZeroLength() ? AcGeVector3d::kXAxis : text.m_vecDirection.normal();
    const AcGeVector3d normal =
        text.m_vecNormal.isZeroLength() ? AcGeVector3d::kZAxis : text.m_vecNormal.normal();
    const AcGeVector3d up = normal.crossProduct(along);
    const double dSlant = std::tan(text.m_dOblique);
    if (!IsPaintable(along.x, along.y) || !IsPaintable(up.x, up.y) || !IsPaintable(dSlant, 0.0)) return {};
    const QTransform direction(along.x, -along.y, -up.x, up.y, position.x(), position.y());
    return QTransform(text.m_dXScale, 0.0, -dSlant, 1.0, 0.0, 0.0) * direction;
}

} // namespace

std::optional<CTextRun> LayOut(const CTextPrimitive& text, const QPointF& position, CFonts& fonts) {
    if (!IsUsableSize(text.m_dHeight) || !IsUsableSize(text.m_dXScale) || !IsUsableSize(text.m_dTracking))
        return {};
    const auto placement = Placement(text, position);
    if (!placement) return {};
    std::wstring strText = WideFromGbk(text.m_strText);
    if (text.m_nLength >= 0 && static_cast<std::size_t>(text.m_nLength) < strText.size())
        strText.resize(static_cast<std::size_t>(text.m_nLength));

    CFontChain& chain = fonts.Chain({text.m_strFont, text.m_strBigFont});
    CTextRun run;
    run.m_arFamilies = chain.Families();
    run.m_dEm = text.m_dHeight * chain.EmPerCapital();
    run.m_toPage = QTransform::fromTranslate(0.0, chain.CapitalLift() * text.m_dHeight) * *placement;
    for (const wchar_t wide : strText) {
        const auto character = static_cast<char32_t>(wide);
        const CGlyph& glyph = chain.Glyph(character);
        if (!glyph.m_pFont) continue;
        run.m_strText += QString::fromUcs4(&character, 1);
        run.m_arGlyphs.push_back({glyph, run.m_dWidth});
        run.m_dWidth += glyph.m_dAdvance * text.m_dHeight * text.m_dTracking / 100.0;
    }
    return run.m_strText.isEmpty() ? std::nullopt : std::optional(std::move(run));
}
