#pragma once

#include "host/plot/canvas.h"

class QPainter;

/// Paints with a QPainter: on paper, picture or screen. The painter's transformation takes page millimetres
/// to the device; it must outlive the canvas. Texts stay texts where the device keeps them (PDF), else they
/// are filled as outlines, so that they stand where they were measured at any resolution.
class CPainterCanvas final : public CCanvas {
public:
    explicit CPainterCanvas(QPainter& painter);

    void StrokePath(const QPainterPath& path, const CStroke& stroke) override;
    void FillPath(const QPainterPath& path, const QColor& color) override;
    void DrawText(const CTextRun& run) override;

private:
    void DrawAsText(const CTextRun& run);
    void DrawAsOutlines(const CTextRun& run);

    QPainter& m_painter;
    bool m_bKeepsText;
};
