#include "host/plot/colors.h"

#include <array>

namespace {

/// Indices 10 to 249 are 24 hues of 15 degrees, each in five brightnesses, full (even) and half saturated
/// (odd).
QColor HueColor(int nIndex) {
    static constexpr std::array<int, 5> g_arBrightness = {255, 204, 153, 127, 76};
    const int nHue = (nIndex / 10 - 1) * 15;
    const int nSaturation = nIndex % 2 == 0 ? 255 : 127;
    return QColor::fromHsv(nHue, nSaturation, g_arBrightness[static_cast<std::size_t>(nIndex % 10 / 2)]);
}

QColor Grey(int nLevel) {
    return {nLevel, nLevel, nLevel};
}

} // namespace

QColor PaperColor(Adesk::UInt16 nIndex) {
    switch (nIndex) {
    case 1:
        return {255, 0, 0};
    case 2:
        return {255, 255, 0};
    case 3:
        return {0, 255, 0};
    case 4:
        return {0, 255, 255};
    case 5:
        return {0, 0, 255};
    case 6:
        return {255, 0, 255};
    case 8:
        return Grey(128);
    case 9:
        return Grey(192);
    default:
        break;
    }
    if (nIndex >= 10 && nIndex < 250) return HueColor(nIndex).toRgb();
    if (nIndex >= 250 && nIndex <= 255) return Grey(51 + (nIndex - 250) * 204 / 5);
    return Qt::black;
}
