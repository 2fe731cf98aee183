#pragma once

#include "host/plot/canvas.h"

#include <QtCore/QSizeF>
#include <QtCore/QXmlStreamWriter>

class QIODevice;

/// Writes one page as SVG in millimetres; each text is one element with its whole string, held to its width.
class CSvgCanvas final : public CCanvas {
public:
    /// Begins the document; the device must outlive the canvas.
    CSvgCanvas(QIODevice& device, const QSizeF& sizeMm);
    CSvgCanvas(const CSvgCanvas&) = delete;
    CSvgCanvas& operator=(const CSvgCanvas&) = delete;

    void StrokePath(const QPainterPath& path, const CStroke& stroke) override;
    void FillPath(const QPainterPath& path, const QColor& color) override;
    void DrawText(const CTextRun& run) override;
    /// Ends the document; false when something could not be written.
    bool Finish();

private:
    void WritePath(const QPainterPath& path);

    QXmlStreamWriter m_writer;
};
