#pragma once

#include "host/plot/plot.h"
#include "platform/acad/db_block_reference.h"

#include <vector>

/// What the entities of model space drew last, in database order, ready for pages.
class CPlottedDrawing {
public:
    explicit CPlottedDrawing(AcDbDatabase& drawing);
    CPlottedDrawing(const CPlottedDrawing&) = delete;
    CPlottedDrawing& operator=(const CPlottedDrawing&) = delete;

    /// A page for each reference to block "BRMB" that shows something of the block, with all that lies on it;
    /// the drawing's extents on one sheet where there is none. They point into this object.
    std::vector<CPlotPage> Pages() const;

private:
    struct CPlotted {
        CDisplayList m_list;
        Adesk::UInt16 m_nLayerColor;
        AcDbExtents m_extents;
    };

    void Add(const AcDbEntity& entity);
    void AddSheet(const AcDbBlockReference& reference);
    CPlotPage PageWith(const CPageBox& box) const;

    std::vector<CPlotted> m_arPlotted;
    std::vector<CPageBox> m_arSheets;
    AcDbExtents m_extents;
};
