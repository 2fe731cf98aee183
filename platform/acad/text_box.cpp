#include "platform/acad/text_box.h"

#include "platform/acad/text_metrics.h"
#include "platform/windows/code_page.h"

namespace {

/// The characters that are shown: length counts characters, not bytes.
std::string ShownText(const CTextPrimitive& text) {
    if (text.m_nLength < 0) return text.m_strText;
    return GbkFromWide(WideFromGbk(text.m_strText).substr(0, static_cast<std::size_t>(text.m_nLength)));
}

bool IsFinite(const AcGePoint3d& point) {
    return std::isfinite(point.x) && std::isfinite(point.y) && std::isfinite(point.z);
}

} // namespace

std::optional<std::array<AcGePoint3d, 4>> TextBox(const CTextPrimitive& text) {
    const std::string strShown = ShownText(text);
    if (!TextMetrics() || strShown.empty() || text.m_dHeight == 0.0) return {};
    const double width = TextMetrics()->AdvanceWidth({text.m_strFont, text.m_strBigFont}, strShown) *
                         text.m_dHeight * text.m_dXScale;
    const AcGeVector3d along = text.m_vecDirection.normal();
    const AcGeVector3d up = text.m_vecNormal.crossProduct(along).normal();
    const AcGePoint3d start = text.m_ptPosition, end = start + along * width;
    const std::array<AcGePoint3d, 4> corners = {start, end, end + up * text.m_dHeight,
                                                start + up * text.m_dHeight};
    for (const AcGePoint3d& corner : corners)
        if (!IsFinite(corner)) return {};
    return corners;
}
