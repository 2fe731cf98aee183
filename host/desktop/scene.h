#pragma once

#include "host/console/layer_look.h"
#include "host/desktop/screen_shapes.h"
#include "host/plot/page.h"

#include <memory>
#include <unordered_map>

/// An entity as it is shown.
struct CSceneItem {
    AcDbObjectId m_id;
    AcDbHandle m_handle; ///< its own, good also when the drawing has gone
    std::shared_ptr<const CDisplayList> m_pPicture;
    CLayerLook m_look;
    double m_dLtscale = 1.0;
    AcDbExtents m_extents;
    QPointF m_ptOrigin; ///< of the shapes: where in the drawing their upper left corner lies
    std::vector<CScreenShape> m_arShapes;

    bool ShowsSame(const CSceneItem& other) const;
};

/// A picture that is no entity's own, such as what is drawn during a drag.
struct CLoosePicture {
    QPointF m_ptOrigin;
    std::vector<CScreenShape> m_arShapes;
};

/// What model space shows, in database order, ready to be painted and picked from. It is brought up to date
/// between commands and holds no entity open.
class CScene {
public:
    explicit CScene(CFonts& fonts)
        : m_fonts(fonts) {}

    /// Takes over what the entities drew last. True when something changed.
    bool Sync(AcDbDatabase& drawing);

    const std::vector<CSceneItem>& Items() const { return m_arItems; }
    /// The item of an entity; null for one that is not shown.
    const CSceneItem* Find(AcDbObjectId id) const;
    /// The last item whose picture passes within a distance (drawing units) of the point; null for none.
    const CSceneItem* ItemAt(const QPointF& point, double dDistance) const;
    /// The items that lie in the box, wholly or (bCrossing) in part.
    std::vector<AcDbObjectId> ItemsIn(const CPageBox& box, bool bCrossing) const;
    AcDbExtents Extents() const;

    /// Lays out a picture of an entity shown here.
    CLoosePicture LayOut(AcDbDatabase& drawing, const CSceneItem& owner, const CDisplayList& picture);

private:
    void Compile(AcDbDatabase& drawing, CSceneItem* pItem);
    std::vector<CScreenShape> Shapes(AcDbDatabase& drawing, const CSceneItem& look, const QPointF& ptOrigin,
                                     const CDisplayList& picture);

    CFonts& m_fonts;
    CGlyphOutlines m_outlines;
    std::vector<CSceneItem> m_arItems;
};
