#include "host/desktop/dialogs/dialog_units.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr double g_dLetterWidth = 4.0, g_dLetterHeight = 8.0; // units
constexpr double g_dFieldHeight = 12.0;                       // units, of an edit field

// Of the letters, and of half a hanzi: two letters are as wide in the fonts that dialogs are laid out for.
double LetterWidth(const QFontMetrics& metrics) {
    const QString strLetters = QStringLiteral("ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz");
    const double dMean = metrics.horizontalAdvance(strLetters) / static_cast<double>(strLetters.size());
    return std::max(dMean, metrics.horizontalAdvance(QChar(u'字')) / 2.0);
}

int Rounded(double dPixels) {
    return static_cast<int>(std::lround(dPixels));
}

} // namespace

CDialogUnits::CDialogUnits(const QFontMetrics& metrics, int nFieldHeight)
    : m_dLetterWidth(LetterWidth(metrics))
    , m_dLetterHeight(std::max<double>(metrics.height(), nFieldHeight * g_dLetterHeight / g_dFieldHeight)) {}

int CDialogUnits::Width(int nUnits) const {
    return Rounded(nUnits * m_dLetterWidth / g_dLetterWidth);
}

int CDialogUnits::Height(int nUnits) const {
    return Rounded(nUnits * m_dLetterHeight / g_dLetterHeight);
}

QRect CDialogUnits::Place(const CControlPlace& place) const {
    return {Width(place.x), Height(place.y), Width(place.cx), Height(place.cy)};
}
