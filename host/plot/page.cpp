#include "host/plot/page.h"

#include <array>

CPageBox PageOf(const AcDbExtents& extents) {
    if (extents.isEmpty()) return {};
    return {extents.minPoint().x, extents.minPoint().y, extents.maxPoint().x, extents.maxPoint().y};
}

CPageBox SheetFor(const AcDbExtents& extents) {
    struct CSheet {
        double m_dShort, m_dLong;
    };
    static constexpr std::array<CSheet, 5> g_arSheets = {
        {{210, 297}, {297, 420}, {420, 594}, {594, 841}, {841, 1189}}};
    constexpr double dRounding = 1e-6; // sums of coordinates must not push a full sheet onto the next
    const CPageBox box = PageOf(extents);
    const auto around = [&](double dWidth, double dHeight) {
        const double dMidX = box.m_dLeft + box.Width() / 2.0;
        const double dMidY = box.m_dBottom + box.Height() / 2.0;
        return CPageBox{dMidX - dWidth / 2.0, dMidY - dHeight / 2.0, dMidX + dWidth / 2.0,
                        dMidY + dHeight / 2.0};
    };
    const auto fits = [&](double dWidth, double dHeight) {
        return box.Width() <= dWidth + dRounding && box.Height() <= dHeight + dRounding;
    };
    for (const CSheet& sheet : g_arSheets) {
        if (fits(sheet.m_dShort, sheet.m_dLong)) return around(sheet.m_dShort, sheet.m_dLong);
        if (fits(sheet.m_dLong, sheet.m_dShort)) return around(sheet.m_dLong, sheet.m_dShort);
    }
    return box;
}
