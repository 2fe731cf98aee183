#pragma once

#include "host/console/entity_drag.h"
#include "host/desktop/scene.h"

#include <optional>
#include <set>

/// A grip of a selected entity.
struct CGrip {
    AcDbObjectId m_id;
    int m_nIndex = 0; ///< among the entity's
    QPointF m_pt;     ///< in the drawing
};

/// The grips of the entities selected, and the drag of those that are hot.
class CGrips {
public:
    /// Takes the grips of these entities, none where they are more than a user tells apart (100); what was
    /// hot is hot no longer.
    void Take(const std::vector<AcDbObjectId>& ids);
    const std::vector<CGrip>& All() const { return m_arGrips; }
    /// The grip within a distance of the point; null for none.
    const CGrip* At(const QPointF& point, double dDistance) const;

    bool IsHot(const CGrip& grip) const { return m_id == grip.m_id && m_setHot.contains(grip.m_nIndex); }
    /// Makes a grip hot, or cold again. Hot grips are one entity's: those of another go cold.
    void Toggle(const CGrip& grip);

    // The drag: from the grip taken hold of to where the cursor is.
    void BeginDrag(const CGrip& grip);
    bool IsDragging() const { return m_ptFrom.has_value(); }
    QPointF From() const { return *m_ptFrom; }
    void EndDrag();
    /// What the entity draws when the hot grips are moved so that the one taken lies at a point. None when it
    /// refuses.
    std::optional<CDisplayList> PictureAt(AcDbDatabase& drawing, const QPointF& point) const;
    /// The command line that moves them there (UTF-8).
    std::string CommandFor(const QPointF& point) const;
    AcDbObjectId DraggedEntity() const { return m_id; }

private:
    std::vector<CGrip> m_arGrips;
    AcDbObjectId m_id; // of the hot ones
    std::set<int> m_setHot;
    std::optional<QPointF> m_ptFrom;
};
