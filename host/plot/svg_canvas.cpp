#include "host/plot/svg_canvas.h"

namespace {

/// Six decimals and no trailing zeros: a millionth of a millimetre is more than any device shows.
QString Number(double dValue) {
    QString strValue = QString::number(dValue, 'f', 6);
    while (strValue.endsWith(u'0'))
        strValue.chop(1);
    if (strValue.endsWith(u'.')) strValue.chop(1);
    return strValue == u"-0"_qs ? u"0"_qs : strValue;
}

QString Numbers(std::initializer_list<double> arValues) {
    QStringList arTexts;
    for (const double dValue : arValues)
        arTexts << Number(dValue);
    return arTexts.join(u' ');
}

QString PathData(const QPainterPath& path) {
    QStringList arParts;
    for (int i = 0; i < path.elementCount(); ++i) {
        const QPainterPath::Element element = path.elementAt(i);
        if (element.type == QPainterPath::CurveToElement) {
            const QPointF second = path.elementAt(i + 1);
            const QPointF end = path.elementAt(i + 2);
            arParts << u"C"_qs + Numbers({element.x, element.y, second.x(), second.y(), end.x(), end.y()});
            i += 2;
        } else {
            arParts << (element.isMoveTo() ? u"M"_qs : u"L"_qs) + Numbers({element.x, element.y});
        }
    }
    return arParts.join(u' ');
}

QString FamilyList(const QStringList& arFamilies) {
    QStringList arQuoted;
    for (const QString& strFamily : arFamilies)
        arQuoted << u"'%1'"_qs.arg(strFamily);
    return arQuoted.join(u", ");
}

} // namespace

CSvgCanvas::CSvgCanvas(QIODevice& device, const QSizeF& sizeMm)
    : m_writer(&device) {
    m_writer.setAutoFormatting(true);
    m_writer.setAutoFormattingIndent(1);
    m_writer.writeStartDocument();
    m_writer.writeStartElement(u"svg"_qs);
    m_writer.writeDefaultNamespace(u"http://www.w3.org/2000/svg"_qs);
    m_writer.writeAttribute(u"width"_qs, Number(sizeMm.width()) + u"mm"_qs);
    m_writer.writeAttribute(u"height"_qs, Number(sizeMm.height()) + u"mm"_qs);
    m_writer.writeAttribute(u"viewBox"_qs, Numbers({0.0, 0.0, sizeMm.width(), sizeMm.height()}));
}

void CSvgCanvas::WritePath(const QPainterPath& path) {
    m_writer.writeEmptyElement(u"path"_qs);
    m_writer.writeAttribute(u"d"_qs, PathData(path));
}

void CSvgCanvas::StrokePath(const QPainterPath& path, const CStroke& stroke) {
    WritePath(path);
    m_writer.writeAttribute(u"fill"_qs, u"none"_qs);
    m_writer.writeAttribute(u"stroke"_qs, stroke.m_color.name());
    m_writer.writeAttribute(u"stroke-width"_qs, Number(stroke.m_dWidth));
    m_writer.writeAttribute(u"stroke-linejoin"_qs, u"round"_qs);
    if (stroke.m_dashes.m_arLengths.empty()) return;
    QStringList arLengths;
    for (const double dLength : stroke.m_dashes.m_arLengths)
        arLengths << Number(dLength);
    m_writer.writeAttribute(u"stroke-dasharray"_qs, arLengths.join(u' '));
    m_writer.writeAttribute(u"stroke-dashoffset"_qs, Number(stroke.m_dashes.m_dPhase));
}

void CSvgCanvas::FillPath(const QPainterPath& path, const QColor& color) {
    WritePath(path);
    m_writer.writeAttribute(u"fill"_qs, color.name());
}

void CSvgCanvas::DrawText(const CTextRun& run) {
    const QTransform& m = run.m_toPage;
    m_writer.writeStartElement(u"text"_qs);
    m_writer.writeAttribute(
        u"transform"_qs, u"matrix(%1)"_qs.arg(Numbers({m.m11(), m.m12(), m.m21(), m.m22(), m.dx(), m.dy()})));
    m_writer.writeAttribute(u"font-family"_qs, FamilyList(run.m_arFamilies));
    m_writer.writeAttribute(u"font-size"_qs, Number(run.m_dEm));
    m_writer.writeAttribute(u"textLength"_qs, Number(run.m_dWidth));
    m_writer.writeAttribute(u"lengthAdjust"_qs, u"spacing"_qs);
    m_writer.writeAttribute(u"fill"_qs, run.m_color.name());
    m_writer.writeAttribute(u"xml:space"_qs, u"preserve"_qs);
    m_writer.writeCharacters(run.m_strText);
    m_writer.writeEndElement();
}

bool CSvgCanvas::Finish() {
    m_writer.writeEndDocument();
    return !m_writer.hasError();
}
