#include "host/desktop/drawing_view.h"

#include "host/desktop/view_overlay.h"

#include <QtGui/QKeyEvent>
#include <QtGui/QPainter>

#include <cmath>

namespace {

constexpr double g_dAperture = 5.0;      // half a grip, widget pixels
constexpr double g_dZoomPerNotch = 1.25; // of the wheel
constexpr double g_dNotch = 120.0;       // of QWheelEvent::angleDelta

} // namespace

CDrawingView::CDrawingView(CSinks sinks, QWidget* pParent)
    : QWidget(pParent)
    , m_sinks(std::move(sinks))
    , m_mouse(m_sinks.m_mouse) {
    setMouseTracking(true);
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setMinimumSize(200, 150);
    setAccessibleName(u"Drawing"_qs);
    ShowCursor();
}

void CDrawingView::Show(CDocumentView* pView) {
    m_pView = pView;
    m_mouse.SetDocument(pView);
    update();
}

void CDrawingView::Refresh() {
    if (m_pView) m_pView->Sync();
    update();
}

void CDrawingView::SetQuestion(const CQuestion* pQuestion, bool bCommand) {
    m_mouse.SetQuestion(pQuestion, bCommand);
    ShowCursor();
    update();
}

void CDrawingView::ShowCursor() {
    setCursor(m_ptPanned ? Qt::ClosedHandCursor : Qt::CrossCursor);
}

void CDrawingView::SetColors(const CViewColors& colors) {
    m_colors = colors;
    m_image.Invalidate();
    update();
}

CViewFrame CDrawingView::Frame() const {
    const QSize pixels = (QSizeF(size()) * devicePixelRatioF()).toSize().expandedTo({1, 1});
    return m_pView ? m_pView->Frame(pixels) : CViewFrame{{}, 1.0, pixels};
}

QPointF CDrawingView::ToWidget(const QPointF& ptDrawing) const {
    return Frame().ToScreen(ptDrawing) / devicePixelRatioF();
}

void CDrawingView::SetFrame(const CViewFrame& frame) {
    if (m_pView) m_pView->SetFrame(frame);
    update();
}

void CDrawingView::ZoomExtents() {
    if (!m_pView) return;
    const AcDbExtents extents = m_pView->Scene().Extents();
    if (extents.isEmpty()) return; // nothing to be seen: the view stays
    CViewFrame frame = Frame();
    frame.Fit(PageOf(extents));
    SetFrame(frame);
}

void CDrawingView::ZoomBy(double dFactor) {
    CViewFrame frame = Frame();
    frame.ZoomAt(QPointF(frame.m_size.width() / 2.0, frame.m_size.height() / 2.0), dFactor);
    SetFrame(frame);
}

void CDrawingView::PanBy(const QPointF& pixels) {
    CViewFrame frame = Frame();
    frame.PanBy(pixels);
    SetFrame(frame);
}

void CDrawingView::SelectAll() {
    if (!m_pView) return;
    m_pView->SelectAll();
    update();
}

bool CDrawingView::Escape() {
    const bool bTaken = m_mouse.Escape();
    if (bTaken) update();
    return bTaken;
}

bool CDrawingView::TakeTyped(const std::string& strText) {
    const bool bTaken = m_mouse.TakeTyped(strText);
    if (bTaken) update();
    return bTaken;
}

void CDrawingView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    if (!m_pView) {
        painter.fillRect(rect(), m_colors.m_background.darker(110));
        return;
    }
    const double dRatio = devicePixelRatioF();
    const auto colorOf = [this](const CSceneItem& item) {
        return m_pView->IsSelected(item.m_handle) ? std::optional(m_colors.m_selected) : std::nullopt;
    };
    m_image.Show({m_pView->Scene(), colorOf, m_pView->Revision()}, Frame(), m_colors, dRatio);
    painter.scale(1.0 / dRatio, 1.0 / dRatio); // device pixels from here on
    painter.drawImage(QPointF(), m_image.Image());
    PaintOverlay({painter, Frame(), m_colors, dRatio}, *m_pView, m_mouse);
}

void CDrawingView::mouseMoveEvent(QMouseEvent* pEvent) {
    const QPointF at = DevicePoint(pEvent->position());
    if (m_ptPanned) {
        PanBy({std::round(at.x() - m_ptPanned->x()), std::round(at.y() - m_ptPanned->y())});
        m_ptPanned = at;
    }
    if (m_mouse.Move(Frame(), at)) update();
    m_sinks.m_fnCursor(Frame().ToDrawing(at));
}

void CDrawingView::mousePressEvent(QMouseEvent* pEvent) {
    const QPointF at = DevicePoint(pEvent->position());
    switch (pEvent->button()) {
    case Qt::LeftButton:
        if (m_mouse.Press(Frame(), at, pEvent->modifiers())) update();
        break;
    case Qt::MiddleButton:
        m_ptPanned = at;
        ShowCursor();
        break;
    case Qt::RightButton:
        m_sinks.m_fnEnter();
        break;
    default:
        break;
    }
}

void CDrawingView::mouseReleaseEvent(QMouseEvent* pEvent) {
    const QPointF at = DevicePoint(pEvent->position());
    if (pEvent->button() == Qt::LeftButton && m_mouse.Release(Frame(), at, pEvent->modifiers())) update();
    if (pEvent->button() != Qt::MiddleButton) return;
    m_ptPanned.reset();
    ShowCursor();
}

void CDrawingView::mouseDoubleClickEvent(QMouseEvent* pEvent) {
    if (pEvent->button() == Qt::MiddleButton)
        ZoomExtents();
    else
        mousePressEvent(pEvent); // two clicks close together are two clicks
}

void CDrawingView::wheelEvent(QWheelEvent* pEvent) {
    CViewFrame frame = Frame();
    frame.ZoomAt(DevicePoint(pEvent->position()),
                 std::pow(g_dZoomPerNotch, pEvent->angleDelta().y() / g_dNotch));
    SetFrame(frame);
    pEvent->accept();
}

void CDrawingView::keyPressEvent(QKeyEvent* pEvent) {
    m_sinks.m_fnKey(pEvent);
}

bool CDrawingView::event(QEvent* pEvent) {
    if (pEvent->type() == QEvent::Resize || pEvent->type() == QEvent::ScreenChangeInternal)
        m_mouse.SetAperture(g_dAperture * devicePixelRatioF());
    return QWidget::event(pEvent);
}
