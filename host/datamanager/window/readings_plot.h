#pragma once

#include <QtWidgets/QWidget>

#include <vector>

#include "host/datamanager/window/plot_panel.h"
#include "host/datamanager/window/sample_curves.h"

/// Deviator stress against axial strain, below it pore pressure where there is one; a colour a cell pressure.
/// Failure states have rings.
class CReadingsPlot final : public QWidget {
public:
    CReadingsPlot();

    /// Shows curves; where there are none, the text in their place.
    void Show(std::vector<CSampleCurve> arCurves, const QString& strWithout);

    /// The panels at the widget's present size: deviator stress, then pore pressure.
    [[nodiscard]] std::vector<CPlotPanel> Panels() const;
    /// The colour of a curve on the present palette.
    [[nodiscard]] QColor CurveColor(std::size_t nCurve) const;

    QSize sizeHint() const override { return {640, 420}; }
    QSize minimumSizeHint() const override { return {320, 220}; }

protected:
    void paintEvent(QPaintEvent* pEvent) override;

private:
    using CValue = double CCurvePoint::*;

    [[nodiscard]] CAxisTicks Ticks(CValue value, int nSteps) const;
    [[nodiscard]] QRectF PanelsPlace() const;
    void PaintCurves(QPainter& painter, const CPlotPanel& panel, CValue value) const;
    void PaintPoints(QPainter& painter, const CPlotPanel& panel, CValue value,
                     const CSampleCurve& curve) const;
    void PaintLegend(QPainter& painter) const;

    std::vector<CSampleCurve> m_arCurves;
    QString m_strWithout;
};
