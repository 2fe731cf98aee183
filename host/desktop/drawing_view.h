#pragma once

#include "host/desktop/view_image.h"
#include "host/desktop/view_mouse.h"

#include <QtWidgets/QWidget>

/// The view of the current drawing: pan with the middle button, zoom with the wheel, the rest by CViewMouse.
class CDrawingView final : public QWidget {
public:
    /// Where what the user does here goes, besides the mouse's own sinks.
    struct CSinks {
        CViewMouse::CSinks m_mouse;
        std::function<void(const QPointF& ptDrawing)> m_fnCursor; ///< the cursor moved
        std::function<void()> m_fnEnter;                          ///< the right button, which is Enter
        std::function<void(QKeyEvent* pEvent)> m_fnKey;           ///< a key for the command line
    };

    explicit CDrawingView(CSinks sinks, QWidget* pParent = nullptr);

    /// The document shown from here on; null for none. Not owned.
    void Show(CDocumentView* pView);
    CDocumentView* Document() const { return m_pView; }
    /// After a command: what is shown may have changed.
    void Refresh();
    void SetQuestion(const CQuestion* pQuestion, bool bCommand);
    void SetColors(const CViewColors& colors);

    void ZoomExtents();
    void ZoomBy(double dFactor); ///< about the middle
    void PanBy(const QPointF& pixels);
    void SelectAll();
    bool Escape();                              ///< see CViewMouse::Escape
    bool TakeTyped(const std::string& strText); ///< see CViewMouse::TakeTyped

    CViewFrame Frame() const;
    QPointF ToWidget(const QPointF& ptDrawing) const; ///< where a point of the drawing lies, widget pixels
    const CViewMouse& Mouse() const { return m_mouse; }

protected:
    void paintEvent(QPaintEvent* pEvent) override;
    void mouseMoveEvent(QMouseEvent* pEvent) override;
    void mousePressEvent(QMouseEvent* pEvent) override;
    void mouseReleaseEvent(QMouseEvent* pEvent) override;
    void mouseDoubleClickEvent(QMouseEvent* pEvent) override;
    void wheelEvent(QWheelEvent* pEvent) override;
    void keyPressEvent(QKeyEvent* pEvent) override;
    bool event(QEvent* pEvent) override;

private:
    QPointF DevicePoint(const QPointF& point) const { return point * devicePixelRatioF(); }
    void SetFrame(const CViewFrame& frame);
    void ShowCursor();

    CSinks m_sinks;
    CViewMouse m_mouse;
    CDocumentView* m_pView = nullptr;
    CViewColors m_colors = DarkColors();
    CViewImage m_image;
    std::optional<QPointF> m_ptPanned; // where the middle button was last, device pixels
};
