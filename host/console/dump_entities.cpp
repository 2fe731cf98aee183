#include "host/console/dump_entities.h"

#include "host/console/dump_primitives.h"
#include "host/console/texts.h"
#include "platform/acad/db_arc.h"
#include "platform/acad/db_block_reference.h"
#include "platform/acad/db_database.h"
#include "platform/acad/db_line.h"
#include "platform/acad/db_polyline.h"
#include "platform/acad/db_proxy.h"
#include "platform/acad/db_spline.h"
#include "platform/acad/db_text.h"
#include "platform/acad/rx_class.h"

#include <memory>

namespace {

CJson JsonExtents(const AcDbEntity& entity) {
    AcDbExtents extents;
    if (entity.getGeomExtents(extents) != Acad::eOk) return nullptr;
    const AcGePoint3d low = extents.minPoint(), high = extents.maxPoint();
    return CJson::array({JsonPoint(AcGePoint2d(low.x, low.y)), JsonPoint(AcGePoint2d(high.x, high.y))});
}

void AddText(const AcDbText& text, CJson* json) {
    (*json)["position"] = JsonPoint(text.position());
    (*json)["text"] = Utf8FromWide(text.textString());
    (*json)["height"] = JsonNumber(text.height());
    (*json)["rotation"] = JsonNumber(text.rotation());
    (*json)["widthFactor"] = JsonNumber(text.widthFactor());
    (*json)["oblique"] = JsonNumber(text.oblique());
    (*json)["style"] = JsonText(text.StyleName());
    (*json)["horizontalMode"] = static_cast<int>(text.horizontalMode());
    (*json)["verticalMode"] = static_cast<int>(text.verticalMode());
    (*json)["alignment"] = JsonPoint(text.alignmentPoint());
    (*json)["extents"] = JsonExtents(text);
}

void AddAttribute(const CAttributeText& attribute, CJson* json) {
    (*json)["tag"] = Utf8FromWide(attribute.tag());
    (*json)["fieldLength"] = attribute.fieldLength();
    (*json)["constant"] = attribute.isConstant();
}

void AddBlockReference(const AcDbBlockReference& reference, CJson* json) {
    const AcGeScale3d scale = reference.scaleFactors();
    (*json)["block"] = JsonText(SymbolName(reference.blockTableRecord()));
    (*json)["position"] = JsonPoint(reference.position());
    (*json)["rotation"] = JsonNumber(reference.rotation());
    (*json)["scale"] = JsonPoint(AcGePoint3d(scale.sx, scale.sy, scale.sz));
    CJson list = CJson::array();
    for (const AcDbObjectId& id : reference.AttributeIds())
        if (const CDbOpen<AcDbAttribute> attribute(id); attribute)
            list.push_back(JsonEntity(*attribute.Get()));
    (*json)["attributes"] = std::move(list);
}

void AddPolyline(const AcDbPolyline& polyline, CJson* json) {
    (*json)["vertices"] = JsonVertices(polyline.Vertices());
    (*json)["closed"] = polyline.isClosed();
}

void AddSpline(const AcDbSpline& spline, CJson* json) {
    (*json)["fitPoints"] = JsonPoints(spline.FitPoints());
    (*json)["order"] = spline.Order();
    (*json)["fitTolerance"] = JsonNumber(spline.FitTolerance());
    const CNurbs nurbs = spline.Nurbs();
    (*json)["controlPoints"] = JsonPoints(nurbs.m_arControlPoints);
    (*json)["knots"] = JsonNumbers(nurbs.m_arKnots);
}

void AddLine(const AcDbLine& line, CJson* json) {
    (*json)["start"] = JsonPoint(line.startPoint());
    (*json)["end"] = JsonPoint(line.endPoint());
}

void AddArc(const AcDbArc& arc, CJson* json) {
    (*json)["center"] = JsonPoint(arc.center());
    (*json)["radius"] = JsonNumber(arc.radius());
    (*json)["startAngle"] = JsonNumber(arc.startAngle());
    (*json)["endAngle"] = JsonNumber(arc.endAngle());
    (*json)["normal"] = JsonVector(arc.normal());
}

void AddProxy(const AcDbProxyEntity& proxy, CJson* json) {
    (*json)["originalClass"] = Utf8FromWide(proxy.originalClassName());
    (*json)["originalDxfName"] = Utf8FromWide(proxy.originalDxfName());
    (*json)["graphics"] = proxy.Picture() ? JsonDisplayList(*proxy.Picture()) : CJson::array();
}

struct CJsonOfItem {
    CJson operator()(const std::wstring& text) const { return Utf8FromWide(text); }
    CJson operator()(double value) const { return JsonNumber(value); }
    CJson operator()(const AcGePoint3d& point) const { return JsonPoint(point); }
    CJson operator()(Adesk::Int16 value) const { return value; }
    CJson operator()(Adesk::Int32 value) const { return value; }
};

/// One value stands for itself; a chain of another shape is a list of codes with their values.
CJson JsonItems(const std::vector<CXDataItem>& arItems) {
    if (arItems.size() == 1) return std::visit(CJsonOfItem(), arItems[0].m_value);
    CJson list = CJson::array();
    for (const CXDataItem& item : arItems)
        list.push_back(CJson::array({item.m_nCode, std::visit(CJsonOfItem(), item.m_value)}));
    return list;
}

CJson JsonXData(const AcDbEntity& entity) {
    CJson apps = CJson::object();
    for (const CXDataOfApp& app : entity.XData().Apps())
        apps[JsonText(SymbolName(app.m_idApp)).get<std::string>()] = JsonItems(app.m_arItems);
    return apps;
}

void AddFields(const AcDbEntity& entity, const CFieldTable& table, CJson* json) {
    CJson fields = CJson::object();
    for (const int row : table.DeclaredOrder())
        fields[JsonText(table.Info(row).m_pName).get<std::string>()] = JsonField(table.Get(entity, row));
    (*json)["fields"] = std::move(fields);
}

CJson JsonGrips(const AcDbEntity& entity) {
    AcGePoint3dArray points;
    AcDbIntArray osnapModes, geomIds;
    if (entity.getGripPoints(points, osnapModes, geomIds) != Acad::eOk) return CJson::array();
    return JsonPoints(points);
}

void AddClass(const AcDbEntity& entity, CJson* json) {
    if (const auto* const pText = AcDbText::cast(&entity)) AddText(*pText, json);
    if (const auto* const pDefinition = AcDbAttributeDefinition::cast(&entity))
        AddAttribute(*pDefinition, json);
    if (const auto* const pAttribute = AcDbAttribute::cast(&entity)) AddAttribute(*pAttribute, json);
    if (const auto* const pReference = AcDbBlockReference::cast(&entity))
        AddBlockReference(*pReference, json);
    if (const auto* const pPolyline = AcDbPolyline::cast(&entity)) AddPolyline(*pPolyline, json);
    if (const auto* const pSpline = AcDbSpline::cast(&entity)) AddSpline(*pSpline, json);
    if (const auto* const pLine = AcDbLine::cast(&entity)) AddLine(*pLine, json);
    if (const auto* const pArc = AcDbArc::cast(&entity)) AddArc(*pArc, json);
    if (const auto* const pProxy = AcDbProxyEntity::cast(&entity)) AddProxy(*pProxy, json);
    if (const CFieldTable* const pFields = CFieldTable::Of(entity)) AddFields(entity, *pFields, json);
}

void AddCommon(const AcDbEntity& entity, CJson* json) {
    (*json)["class"] = Utf8FromWide(entity.isA()->name());
    (*json)["dxfName"] = Utf8FromWide(entity.isA()->dxfName());
    (*json)["layer"] = JsonText(entity.LayerName());
    (*json)["color"] = entity.colorIndex();
    (*json)["linetype"] = JsonText(entity.LinetypeName());
    (*json)["xdata"] = JsonXData(entity);
}

// The parts belong to the caller of explode, also when it fails after making some.
CJson JsonExplode(const AcDbEntity& entity) {
    AcDbVoidPtrArray parts;
    const Acad::ErrorStatus status = entity.explode(parts);
    CJson list = CJson::array();
    for (void* const pPart : parts) {
        const std::unique_ptr<AcDbEntity> part(static_cast<AcDbEntity*>(pPart));
        if (status != Acad::eOk) continue;
        CJson& json = list.emplace_back(CJson::object());
        AddCommon(*part, &json);
        AddClass(*part, &json);
    }
    return list;
}

} // namespace

bool HasFields(const AcDbEntity& entity) {
    return CFieldTable::Of(entity) != nullptr;
}

CJson JsonEntity(const AcDbEntity& entity) {
    CJson json;
    json["handle"] = entity.handle().Hex();
    AddCommon(entity, &json);
    AddClass(entity, &json);
    if (HasFields(entity)) {
        json["grips"] = JsonGrips(entity);
        json["explode"] = JsonExplode(entity);
    }
    return json;
}
