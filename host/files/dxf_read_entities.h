#pragma once

#include "host/files/dxf_drawing.h"
#include "platform/acad/db_polyline.h"

#include <memory>

/// Makes entities of the records of a block or of the section of entities, in their order: vertices belong to
/// the polyline, attributes to the reference that went before. A record of another type is counted as lost.
class CDxfEntities {
public:
    explicit CDxfEntities(CDxfDrawing& drawing)
        : m_drawing(drawing) {}
    /// Takes a record for a block.
    void Add(const CDxfRecord& record, AcDbObjectId idBlock);
    /// Nothing belongs to what went before any more: the block or the section ends.
    void End();
    /// Gives proxies the data of their classes, once all that these may refer to is in the drawing.
    void GiveProxyData();

private:
    void Begin(const CDxfRecord& record, AcDbObjectId idBlock);
    void AddVertex(const CDxfRecord& record);
    void AddAttribute(const CDxfRecord& record);
    void BeginPolyline(const CDxfRecord& record, AcDbObjectId idBlock);
    /// The id of the entity, which is part of the block then; null, and counted as lost, when it cannot be.
    AcDbObjectId Append(std::unique_ptr<AcDbEntity> pEntity, const CDxfRecord& record, AcDbObjectId idBlock);

    CDxfDrawing& m_drawing;
    std::unique_ptr<AcDbPolyline> m_pPolyline; ///< one that still gets vertices
    CDxfRecord m_polyline;                     ///< its record
    AcDbObjectId m_idBlockOfPolyline;
    AcDbObjectId m_idReference; ///< one that still gets attributes
    std::vector<std::pair<AcDbObjectId, CDxfRecord>> m_arProxies;
    bool m_bUnreadSequence = false; ///< what belongs to an entity that is lost is lost along with it
};
