#include "host/datamanager/window/readings_plot.h"

#include <QtGui/QFontMetricsF>
#include <QtGui/QPainterPath>

#include <algorithm>
#include <array>

#include "host/datamanager/numbers.h"

namespace {

constexpr double g_dMargin = 10.0;
constexpr double g_dGapBetween = 20.0; // of the two panels
constexpr double g_dSwatch = 22.0;     // a legend's piece of line
constexpr double g_dCurveWidth = 1.6;
constexpr double g_dPointRadius = 2.2;
constexpr double g_dRingRadius = 5.0;

QString LegendTitle() {
    return u"Cell pressure, kPa"_qs;
}

QString PressureText(double dPressure) {
    return QString::fromStdString(ShortestFloat(static_cast<float>(dPressure)));
}

} // namespace

CReadingsPlot::CReadingsPlot() {
    setObjectName(u"Plot"_qs);
    setAccessibleName(u"Plot of the readings"_qs);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    setBackgroundRole(QPalette::Base);
    setAutoFillBackground(true);
}

void CReadingsPlot::Show(std::vector<CSampleCurve> arCurves, const QString& strWithout) {
    m_arCurves = std::move(arCurves);
    m_strWithout = strWithout;
    update();
}

QColor CReadingsPlot::CurveColor(std::size_t nCurve) const {
    static constexpr std::array<QRgb, 6> g_arOnLight = {0xFF1F5FA8, 0xFFC0392B, 0xFF1E8449,
                                                        0xFFB9770E, 0xFF7D3C98, 0xFF117A8B};
    static constexpr std::array<QRgb, 6> g_arOnDark = {0xFF6CB2FF, 0xFFFF7F71, 0xFF63D28F,
                                                       0xFFF5C04F, 0xFFC994E6, 0xFF5AD1E0};
    const bool bDark = palette().color(QPalette::Base).lightness() < 128;
    return QColor((bDark ? g_arOnDark : g_arOnLight)[nCurve % g_arOnLight.size()]);
}

/// The axis of a value over all curves; zero is always on it.
CAxisTicks CReadingsPlot::Ticks(CValue value, int nSteps) const {
    double dLowest = 0.0, dHighest = 0.0;
    for (const CSampleCurve& curve : m_arCurves)
        for (const CCurvePoint& point : curve.m_arPoints) {
            dLowest = std::min(dLowest, point.*value);
            dHighest = std::max(dHighest, point.*value);
        }
    return RoundTicks(dLowest, dHighest, nSteps);
}

/// What is left for the frames beside legend, titles and labels.
QRectF CReadingsPlot::PanelsPlace() const {
    const QFontMetricsF metrics(font());
    const double dLeft = g_dMargin + 1.4 * metrics.height() + metrics.horizontalAdvance(u"-10000"_qs);
    const double dRight = metrics.horizontalAdvance(LegendTitle()) + 2.5 * g_dMargin;
    return QRectF(rect()).adjusted(dLeft, g_dMargin + metrics.height() / 2.0, -dRight,
                                   -g_dMargin - 2.6 * metrics.height());
}

std::vector<CPlotPanel> CReadingsPlot::Panels() const {
    const QRectF place = PanelsPlace();
    const CAxisTicks strain = Ticks(&CCurvePoint::m_dStrain, 8);
    const CAxisTicks deviator = Ticks(&CCurvePoint::m_dDeviator, 5);
    if (!HavePorePressure(m_arCurves)) return {CPlotPanel(place, strain, deviator)};
    const double dUpper = (place.height() - g_dGapBetween) * 0.62;
    QRectF upper = place, lower = place;
    upper.setHeight(dUpper);
    lower.setTop(upper.bottom() + g_dGapBetween);
    return {CPlotPanel(upper, strain, deviator), CPlotPanel(lower, strain, Ticks(&CCurvePoint::m_dPore, 3))};
}

void CReadingsPlot::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(palette().color(QPalette::Text));
    if (m_arCurves.empty()) {
        painter.drawText(QRectF(rect()).adjusted(g_dMargin, g_dMargin, -g_dMargin, -g_dMargin),
                         Qt::AlignCenter | Qt::TextWordWrap, m_strWithout);
        return;
    }
    const std::vector<CPlotPanel> arPanels = Panels();
    const std::array<QString, 2> arTitles = {u"Deviator stress σ1 − σ3, kPa"_qs, u"Pore pressure u, kPa"_qs};
    const std::array<CValue, 2> arValues = {&CCurvePoint::m_dDeviator, &CCurvePoint::m_dPore};
    const QFontMetricsF metrics(font());
    for (std::size_t i = 0; i < arPanels.size(); ++i) {
        arPanels[i].PaintAxes(painter, palette(), i + 1 == arPanels.size());
        arPanels[i].PaintTitleY(painter, arTitles[i], g_dMargin + metrics.ascent());
        PaintCurves(painter, arPanels[i], arValues[i]);
    }
    const QRectF frame = arPanels.back().Frame();
    painter.setPen(palette().color(QPalette::Text));
    painter.drawText(
        QRectF(frame.left(), height() - g_dMargin - metrics.height(), frame.width(), 2 * metrics.height()),
        Qt::AlignHCenter | Qt::AlignTop, u"Axial strain ε, %"_qs);
    PaintLegend(painter);
}

void CReadingsPlot::PaintCurves(QPainter& painter, const CPlotPanel& panel, CValue value) const {
    for (std::size_t nCurve = 0; nCurve < m_arCurves.size(); ++nCurve) {
        QPolygonF line;
        for (const CCurvePoint& point : m_arCurves[nCurve].m_arPoints)
            if (point.m_bOnCurve) line.append(panel.Place(point.m_dStrain, point.*value));
        painter.setPen(QPen(CurveColor(nCurve), g_dCurveWidth, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        painter.drawPolyline(line);
        PaintPoints(painter, panel, value, m_arCurves[nCurve]);
    }
}

void CReadingsPlot::PaintPoints(QPainter& painter, const CPlotPanel& panel, CValue value,
                                const CSampleCurve& curve) const {
    const QColor color = painter.pen().color();
    for (const CCurvePoint& point : curve.m_arPoints) {
        const QPointF place = panel.Place(point.m_dStrain, point.*value);
        painter.setBrush(color);
        painter.drawEllipse(place, g_dPointRadius - 1.0, g_dPointRadius - 1.0);
        painter.setBrush(Qt::NoBrush);
        if (point.m_bFailure) painter.drawEllipse(place, g_dRingRadius, g_dRingRadius);
    }
}

void CReadingsPlot::PaintLegend(QPainter& painter) const {
    const QFontMetricsF metrics(font());
    const QColor text = palette().color(QPalette::Text);
    const double dLeft = PanelsPlace().right() + 1.5 * g_dMargin;
    double dY = PanelsPlace().top() + metrics.ascent();
    painter.setPen(text);
    painter.drawText(QPointF(dLeft, dY), LegendTitle());
    // Writes the next line and gives the place left of it.
    const auto line = [&](const QString& strText) {
        dY += metrics.height() * 1.2;
        painter.setPen(text);
        painter.drawText(QPointF(dLeft + g_dSwatch + 6.0, dY), strText);
        return QPointF(dLeft, dY - metrics.capHeight() / 2.0);
    };
    for (std::size_t nCurve = 0; nCurve < m_arCurves.size(); ++nCurve) {
        const QPointF place = line(PressureText(m_arCurves[nCurve].m_dCellPressure));
        painter.setPen(QPen(CurveColor(nCurve), 2.0));
        painter.drawLine(place, place + QPointF(g_dSwatch, 0.0));
    }
    if (!HaveFailureState(m_arCurves)) return;
    const QPointF place = line(u"failure"_qs);
    painter.setPen(QPen(text, g_dCurveWidth));
    painter.drawEllipse(place + QPointF(g_dSwatch / 2.0, 0.0), g_dRingRadius, g_dRingRadius);
}
