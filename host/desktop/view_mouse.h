#pragma once

#include "host/console/command_answers.h"
#include "host/desktop/document_view.h"

#include <QtCore/Qt>

/// What the mouse does in a view besides panning and zooming: it answers the question at hand, selects, and
/// drags grips. Positions are device pixels.
class CViewMouse {
public:
    /// Where what the mouse says goes. Texts are UTF-8.
    struct CSinks {
        std::function<void(const std::string&)> m_fnAnswer; ///< to the question at hand
        std::function<void(const std::string&)> m_fnStart;  ///< a command line
    };

    explicit CViewMouse(CSinks sinks)
        : m_sinks(std::move(sinks)) {}

    /// The document before the user; null for none. What was begun in another one is given up.
    void SetDocument(CDocumentView* pView);
    /// The question that waits; null while a command works. bCommand: it is the command prompt.
    void SetQuestion(const CQuestion* pQuestion, bool bCommand);

    // Each is true when what is shown may differ afterwards.
    bool Move(const CViewFrame& frame, const QPointF& at);
    bool Press(const CViewFrame& frame, const QPointF& at, Qt::KeyboardModifiers modifiers);
    bool Release(const CViewFrame& frame, const QPointF& at, Qt::KeyboardModifiers modifiers);
    /// Gives up what was begun, else clears the selection. False when there was nothing of either.
    bool Escape();
    /// Takes a typed point (`x,y`, `@dx,dy` from the grip) as the end of a drag. False when there is none, or
    /// it is no point.
    bool TakeTyped(const std::string& strText);
    /// The size of a grip and of the cursor's box, half of it, in device pixels.
    void SetAperture(double dPixels) { m_dAperture = dPixels; }
    double Aperture() const { return m_dAperture; }

    // What is shown besides the drawing.
    AcDbObjectId Hovered() const { return m_idHovered; }
    const CLoosePicture* Dragged() const;         ///< the picture of the grip drag under way; null for none
    std::optional<CPageBox> SelectionBox() const; ///< of drawing units, while one is drawn
    bool IsCrossing() const { return m_ptCursor.x() < m_ptCorner->x(); } ///< it is drawn to the left
    std::optional<QLineF> Band() const; ///< of drawing units, from the point given before
    bool IsPicking() const;             ///< entities are picked now
    bool IsAskedForPoint() const { return m_pQuestion && m_pQuestion->m_kind == CAnswerKind::Point; }

private:
    double Reach(const CViewFrame& frame) const { return m_dAperture / frame.m_dPixels; }
    bool PressAtCommand(const CViewFrame& frame, Qt::KeyboardModifiers modifiers);
    bool PressOnEntities(const CViewFrame& frame, Qt::KeyboardModifiers modifiers);
    void PickEntity(const CSceneItem& item, Qt::KeyboardModifiers modifiers);
    void FinishBox(Qt::KeyboardModifiers modifiers);
    void FinishDrag(const QPointF& ptTo);
    void AnswerPoint(const QPointF& point);
    bool IsDragging() const { return m_pView && m_pView->Grips().IsDragging(); }
    void ShowDrag();
    void EndDrag();

    CSinks m_sinks;
    CDocumentView* m_pView = nullptr;
    const CQuestion* m_pQuestion = nullptr;
    bool m_bCommand = false;
    double m_dAperture = 6.0;
    QPointF m_ptCursor;                // in the drawing
    QPointF m_ptPressed;               // pixels
    std::optional<QPointF> m_ptCorner; // of the box that is drawn, in the drawing
    AcDbObjectId m_idHovered;
    std::optional<CLoosePicture> m_dragged; // what was drawn last for a drag
};
