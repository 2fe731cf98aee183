#include "host/desktop/view_mouse.h"

#include "host/console/numbers.h"
#include "host/console/points.h"

#include <algorithm>

namespace {

constexpr double g_dDragBegins = 4.0;   // pixels between press and release that make a drag of a click
constexpr double g_dPickDistance = 1.0; // drawing units around a typed point, as commands take it

std::string PointText(const QPointF& point) {
    return NumberText(point.x()) + "," + NumberText(point.y());
}

} // namespace

void CViewMouse::SetDocument(CDocumentView* pView) {
    if (pView == m_pView) return;
    m_pView = pView;
    m_ptCorner.reset();
    m_dragged.reset();
    m_idHovered = AcDbObjectId::kNull;
}

void CViewMouse::SetQuestion(const CQuestion* pQuestion, bool bCommand) {
    m_pQuestion = pQuestion;
    m_bCommand = bCommand;
    if (!m_bCommand && IsDragging()) EndDrag(); // a command has begun, and the next click is its own
    if (IsPicking()) return;
    m_idHovered = AcDbObjectId::kNull;
    m_ptCorner.reset();
}

bool CViewMouse::IsPicking() const {
    return m_pQuestion && (m_bCommand || m_pQuestion->m_kind == CAnswerKind::Entity);
}

bool CViewMouse::Move(const CViewFrame& frame, const QPointF& at) {
    m_ptCursor = frame.ToDrawing(at);
    if (!m_pView) return false;
    if (IsDragging()) {
        ShowDrag();
        return true;
    }
    const AcDbObjectId idBefore = m_idHovered;
    const CSceneItem* const pItem =
        IsPicking() && !m_ptCorner ? m_pView->Scene().ItemAt(m_ptCursor, Reach(frame)) : nullptr;
    m_idHovered = pItem ? pItem->m_id : AcDbObjectId::kNull;
    return m_idHovered != idBefore || m_ptCorner || Band();
}

bool CViewMouse::Press(const CViewFrame& frame, const QPointF& at, Qt::KeyboardModifiers modifiers) {
    if (!m_pView || !m_pQuestion) return false;
    m_ptCursor = frame.ToDrawing(at);
    m_ptPressed = at;
    if (IsDragging()) {
        FinishDrag(m_ptCursor);
        return true;
    }
    if (m_ptCorner) {
        FinishBox(modifiers);
        return true;
    }
    if (IsAskedForPoint()) {
        AnswerPoint(m_ptCursor);
        return true;
    }
    if (!IsPicking()) return false;
    return m_bCommand ? PressAtCommand(frame, modifiers) : PressOnEntities(frame, modifiers);
}

bool CViewMouse::PressAtCommand(const CViewFrame& frame, Qt::KeyboardModifiers modifiers) {
    CGrips& grips = m_pView->Grips();
    const CGrip* const pGrip = grips.At(m_ptCursor, Reach(frame));
    if (!pGrip) return PressOnEntities(frame, modifiers);
    if (modifiers & Qt::ShiftModifier) {
        grips.Toggle(*pGrip);
    } else {
        grips.BeginDrag(*pGrip);
        m_dragged.reset();
        m_idHovered = AcDbObjectId::kNull;
        ShowDrag();
    }
    return true;
}

bool CViewMouse::PressOnEntities(const CViewFrame& frame, Qt::KeyboardModifiers modifiers) {
    if (const CSceneItem* const pItem = m_pView->Scene().ItemAt(m_ptCursor, Reach(frame)))
        PickEntity(*pItem, modifiers);
    else
        m_ptCorner = m_ptCursor;
    return true;
}

bool CViewMouse::Release(const CViewFrame& frame, const QPointF& at, Qt::KeyboardModifiers modifiers) {
    if (!m_pView || (at - m_ptPressed).manhattanLength() < g_dDragBegins) return false;
    m_ptCursor = frame.ToDrawing(at);
    if (IsDragging()) {
        FinishDrag(m_ptCursor);
    } else if (m_ptCorner) {
        FinishBox(modifiers);
    } else {
        return false;
    }
    return true;
}

void CViewMouse::PickEntity(const CSceneItem& item, Qt::KeyboardModifiers modifiers) {
    if (m_bCommand)
        return modifiers & Qt::ShiftModifier ? m_pView->Deselect({item.m_id}) : m_pView->Select({item.m_id});
    // A command is given the point where that names the same entity; the handle names it at any scale.
    const CSceneItem* const pByPoint = m_pView->Scene().ItemAt(m_ptCursor, g_dPickDistance);
    m_sinks.m_fnAnswer(pByPoint == &item ? PointText(m_ptCursor) : "#" + item.m_handle.Hex());
}

void CViewMouse::FinishBox(Qt::KeyboardModifiers modifiers) {
    const std::vector<AcDbObjectId> ids = m_pView->Scene().ItemsIn(*SelectionBox(), IsCrossing());
    m_ptCorner.reset();
    if (!m_bCommand) {
        for (const AcDbObjectId& id : ids)
            m_sinks.m_fnAnswer("#" + id.handle().Hex());
    } else if (modifiers & Qt::ShiftModifier) {
        m_pView->Deselect(ids);
    } else {
        m_pView->Select(ids);
    }
}

void CViewMouse::FinishDrag(const QPointF& ptTo) {
    const std::string strLine = m_pView->Grips().CommandFor(ptTo);
    EndDrag();
    m_sinks.m_fnStart(strLine);
}

bool CViewMouse::TakeTyped(const std::string& strText) {
    if (!IsDragging()) return false;
    const QPointF from = m_pView->Grips().From();
    AcGePoint3d point;
    if (!ParsePoint(strText, AcGePoint3d(from.x(), from.y(), 0.0), &point)) return false;
    FinishDrag({point.x, point.y});
    return true;
}

bool CViewMouse::Escape() {
    if (m_ptCorner) {
        m_ptCorner.reset();
        return true;
    }
    if (IsDragging()) {
        EndDrag();
        return true;
    }
    if (!m_pView || !m_bCommand || m_pView->Selection().empty()) return false;
    m_pView->ClearSelection();
    return true;
}

void CViewMouse::AnswerPoint(const QPointF& point) {
    m_sinks.m_fnAnswer(PointText(point));
}

void CViewMouse::ShowDrag() {
    const CSceneItem* const pItem = m_pView->Scene().Find(m_pView->Grips().DraggedEntity());
    const std::optional<CDisplayList> picture = m_pView->Grips().PictureAt(m_pView->Drawing(), m_ptCursor);
    if (pItem && picture) m_dragged = m_pView->Scene().LayOut(m_pView->Drawing(), *pItem, *picture);
}

void CViewMouse::EndDrag() {
    m_pView->Grips().EndDrag();
    m_dragged.reset();
}

const CLoosePicture* CViewMouse::Dragged() const {
    return IsDragging() && m_dragged ? &*m_dragged : nullptr; // another selection ends the drag of its own
}

std::optional<CPageBox> CViewMouse::SelectionBox() const {
    if (!m_ptCorner) return std::nullopt;
    const auto [left, right] = std::minmax({m_ptCorner->x(), m_ptCursor.x()});
    const auto [bottom, top] = std::minmax({m_ptCorner->y(), m_ptCursor.y()});
    return CPageBox{left, bottom, right, top};
}

std::optional<QLineF> CViewMouse::Band() const {
    if (IsDragging()) return QLineF(m_pView->Grips().From(), m_ptCursor);
    if (!IsAskedForPoint() || !m_pQuestion->m_ptFrom) return std::nullopt;
    return QLineF(QPointF(m_pQuestion->m_ptFrom->x, m_pQuestion->m_ptFrom->y), m_ptCursor);
}
