#pragma once

#include "host/desktop/scene.h"
#include "host/desktop/shape_painter.h"

#include <QtGui/QImage>

#include <functional>

/// What a view is to show.
struct CShownItems {
    /// The colour in which an entity is shown instead of its own, if it is.
    using CColorOf = std::function<std::optional<QColor>(const CSceneItem& item)>;

    const CScene& m_scene;
    CColorOf m_fnColor;
    unsigned m_nRevision; ///< another one whenever items or their colours may be others
};

/// What a view shows, kept as a picture: only what comes into sight when the view is panned by whole pixels,
/// and what changed, is painted anew.
class CViewImage {
public:
    /// Brings the picture up to date. dLineWidth is the width of thin lines in pixels.
    void Show(const CShownItems& shown, const CViewFrame& frame, const CViewColors& colors,
              double dLineWidth);
    /// What was painted counts no longer: its colours are others.
    void Invalidate() { m_bValid = false; }
    const QImage& Image() const { return m_image; }

private:
    /// An item as it was painted last.
    struct CPainted {
        AcDbHandle m_handle;
        std::shared_ptr<const CDisplayList> m_pPicture;
        CLayerLook m_look;
        double m_dLtscale;
        std::optional<QColor> m_color;
        AcDbExtents m_extents;

        bool LooksLike(const CPainted& other) const;
    };

    bool Scroll(const CViewFrame& frame, QRegion* pExposed);
    QRegion TakeChanges(const CShownItems& shown);
    QRegion Changes(const std::vector<CPainted>& arNow) const;
    QRect BoxOf(const CPainted& painted) const;

    QImage m_image;
    CViewFrame m_frame;
    std::vector<CPainted> m_arPainted; // by handle, as the scene's items are
    unsigned m_nRevision = 0;          // of what was painted
    bool m_bValid = false;
};
