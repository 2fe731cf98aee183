#include "host/files/dxf_read_entities.h"

#include "host/files/dxf_angles.h"
#include "host/files/dxf_plane.h"
#include "host/files/dxf_read_curves.h"
#include "host/files/dxf_read_proxies.h"
#include "host/files/dxf_read_texts.h"
#include "platform/acad/db_block_reference.h"

#include <algorithm>
#include <array>

namespace {

constexpr std::string_view g_szProxy = "ACAD_PROXY_ENTITY";

using CReadEntity = std::unique_ptr<AcDbEntity> (*)(const CDxfRecord&, CDxfDrawing&);

std::unique_ptr<AcDbEntity> ReadReference(const CDxfRecord& record, CDxfDrawing& drawing) {
    const AcDbObjectId idBlock = drawing.Block(record.Text(2));
    if (idBlock.isNull()) return nullptr;
    if (record.Whole(70, 1) > 1 || record.Whole(71, 1) > 1) drawing.Lose("INSERT in rows and columns");
    auto pReference = std::make_unique<AcDbBlockReference>(record.Point(10), idBlock);
    pReference->setRotation(DxfRadians(record.Real(50)));
    const AcGeScale3d scale(record.Real(41, 1.0), record.Real(42, 1.0), record.Real(43, 1.0));
    return pReference->setScaleFactors(scale) == Acad::eOk ? std::move(pReference) : nullptr;
}

struct CEntityType {
    std::string_view m_name;
    CReadEntity m_pRead;
    bool m_bOwnPlane; ///< its coordinates are those of its plane
};

constexpr std::array g_arTypes = {
    CEntityType{"LINE", ReadDxfLine, false},
    CEntityType{"ARC", ReadDxfArc, true},
    CEntityType{"LWPOLYLINE", ReadDxfLwPolyline, true},
    CEntityType{"SPLINE", ReadDxfSpline, false},
    CEntityType{"TEXT", ReadDxfText, true},
    CEntityType{"ATTDEF", ReadDxfAttributeDefinition, true},
    CEntityType{"INSERT", ReadReference, true},
    CEntityType{g_szProxy, ReadDxfProxy, false},
};

const CEntityType* TypeOf(const CDxfRecord& record) {
    const auto* const pFound = std::find_if(g_arTypes.begin(), g_arTypes.end(), [&](const CEntityType& type) {
        return type.m_name == record.m_type;
    });
    return pFound == g_arTypes.end() ? nullptr : pFound;
}

/// A property of every entity that an entity here has not, and the value that makes no difference.
struct CForeignProperty {
    int m_nCode;
    double m_dUsual;
    const char* m_szName;
};

constexpr std::array g_arForeign = {
    CForeignProperty{39, 0.0, "thickness"},     CForeignProperty{48, 1.0, "line type scale"},
    CForeignProperty{60, 0.0, "hidden entity"}, CForeignProperty{370, -1.0, "line weight"},
    CForeignProperty{420, -1.0, "true colour"},
};

double NumberOf(const CDxfTag& tag) {
    if (const auto* const pWhole = std::get_if<std::int64_t>(&tag.m_value))
        return static_cast<double>(*pWhole);
    return std::get<double>(tag.m_value);
}

void SetProperties(const CDxfRecord& record, CDxfDrawing& drawing, AcDbEntity& entity) {
    entity.setLayer(drawing.Layer(record.Text(8)));
    entity.setLinetype(drawing.Linetype(record.Text(6)));
    const std::int64_t nColor = record.Whole(62, g_nColorByLayer);
    if (nColor >= 0 && nColor <= g_nColorByLayer) entity.setColorIndex(static_cast<Adesk::UInt16>(nColor));
    for (const CForeignProperty& property : g_arForeign)
        if (const CDxfTag* const pTag = record.Find(property.m_nCode);
            pTag && NumberOf(*pTag) != property.m_dUsual)
            drawing.Lose(property.m_szName);
}

/// Brings an entity from its own plane into the drawing's; false when it cannot lie there.
bool BringIntoPlane(const CDxfRecord& record, AcDbEntity& entity) {
    if (!record.Find(210)) return true;
    const AcGePoint3d normal = record.Point(210);
    if (normal.x == 0.0 && normal.y == 0.0 && normal.z > 0.0) return true;
    return entity.transformBy(DxfPlaneToDrawing(normal.asVector())) == Acad::eOk;
}

} // namespace

void CDxfEntities::Add(const CDxfRecord& record, AcDbObjectId idBlock) {
    if (record.m_type == "VERTEX") {
        AddVertex(record);
    } else if (record.m_type == "ATTRIB") {
        AddAttribute(record);
    } else {
        End();
        if (record.m_type != "SEQEND") Begin(record, idBlock);
    }
}

void CDxfEntities::End() {
    if (m_pPolyline) Append(std::move(m_pPolyline), m_polyline, m_idBlockOfPolyline);
    m_idReference.setNull();
    m_bUnreadSequence = false;
}

void CDxfEntities::GiveProxyData() {
    for (const auto& [id, record] : m_arProxies)
        if (const CDbOpen<AcDbProxyEntity> proxy(id, AcDb::kForWrite); proxy)
            GiveDxfData(record, m_drawing, *proxy.Get());
}

void CDxfEntities::Begin(const CDxfRecord& record, AcDbObjectId idBlock) {
    if (record.m_type == "POLYLINE") return BeginPolyline(record, idBlock);
    const CEntityType* const pType = TypeOf(record);
    AcDbObjectId id;
    if (pType)
        id = Append(pType->m_pRead(record, m_drawing), record, idBlock);
    else
        m_drawing.Lose(record);
    m_bUnreadSequence = id.isNull();
    if (record.m_type == "INSERT") m_idReference = id;
}

void CDxfEntities::BeginPolyline(const CDxfRecord& record, AcDbObjectId idBlock) {
    m_pPolyline = ReadDxfPolyline(record);
    m_bUnreadSequence = !m_pPolyline;
    if (!m_pPolyline) return m_drawing.Lose(record);
    if (record.Real(30) != 0.0) m_drawing.Lose("POLYLINE elevation");
    m_polyline = record;
    m_idBlockOfPolyline = idBlock;
}

void CDxfEntities::AddVertex(const CDxfRecord& record) {
    if (m_pPolyline)
        AddDxfVertex(record, m_polyline, *m_pPolyline);
    else if (!m_bUnreadSequence)
        m_drawing.Lose(record);
}

void CDxfEntities::AddAttribute(const CDxfRecord& record) {
    const CDbOpen<AcDbBlockReference> reference(m_idReference, AcDb::kForWrite);
    std::unique_ptr<AcDbAttribute> pAttribute = ReadDxfAttribute(record, m_drawing);
    if (!reference || !pAttribute || !BringIntoPlane(record, *pAttribute)) {
        if (!m_bUnreadSequence) m_drawing.Lose(record);
        return;
    }
    SetProperties(record, m_drawing, *pAttribute);
    AcDbObjectId id;
    if (reference->appendAttribute(id, pAttribute.get()) == Acad::eOk) pAttribute.release()->close();
    m_drawing.Identify(id, record);
}

AcDbObjectId CDxfEntities::Append(std::unique_ptr<AcDbEntity> pEntity, const CDxfRecord& record,
                                  AcDbObjectId idBlock) {
    AcDbObjectId id;
    const CEntityType* const pType = TypeOf(record);
    const bool bOwnPlane = !pType || pType->m_bOwnPlane;
    if (!pEntity || (bOwnPlane && !BringIntoPlane(record, *pEntity))) {
        m_drawing.Lose(record);
        return id;
    }
    SetProperties(record, m_drawing, *pEntity);
    if (auto* const pProxy = AcDbProxyEntity::cast(pEntity.get())) GiveDxfPicture(record, *pProxy);
    const CDbOpen<AcDbBlockTableRecord> block(idBlock, AcDb::kForWrite);
    if (block && block->appendAcDbEntity(id, pEntity.get()) == Acad::eOk) pEntity.release()->close();
    m_drawing.Identify(id, record);
    if (record.m_type == g_szProxy) m_arProxies.emplace_back(id, record);
    return id;
}
