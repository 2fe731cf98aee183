#include "host/console/dump_primitives.h"

#include <variant>

namespace {

/// Fills in what each kind of primitive has of its own; the name of the kind is the first key.
struct CShapeToJson {
    CJson& m_json;

    void operator()(const CPolylinePrimitive& shape) const {
        m_json["points"] = JsonPoints(shape.m_arPoints);
    }
    void operator()(const CPlinePrimitive& shape) const {
        m_json["vertices"] = JsonVertices(shape.m_arVertices);
        m_json["closed"] = shape.m_bClosed;
    }
    void operator()(const CArcPrimitive& shape) const {
        m_json["center"] = JsonPoint(shape.m_ptCenter);
        m_json["radius"] = JsonNumber(shape.m_dRadius);
        m_json["normal"] = JsonVector(shape.m_vecNormal);
        m_json["start"] = JsonVector(shape.m_vecStart);
        m_json["sweep"] = JsonNumber(shape.m_dSweep);
    }
    void operator()(const CTextPrimitive& shape) const {
        m_json["position"] = JsonPoint(shape.m_ptPosition);
        m_json["normal"] = JsonVector(shape.m_vecNormal);
        m_json["direction"] = JsonVector(shape.m_vecDirection);
        m_json["text"] = JsonText(shape.m_strText);
        m_json["length"] = shape.m_nLength;
        m_json["height"] = JsonNumber(shape.m_dHeight);
        m_json["xScale"] = JsonNumber(shape.m_dXScale);
        m_json["oblique"] = JsonNumber(shape.m_dOblique);
        m_json["tracking"] = JsonNumber(shape.m_dTracking);
        m_json["font"] = JsonText(shape.m_strFont);
    }
    void operator()(const CSplinePrimitive& shape) const {
        m_json["fitPoints"] = JsonPoints(shape.m_arFitPoints);
        m_json["order"] = shape.m_nOrder;
        m_json["fitTolerance"] = JsonNumber(shape.m_dFitTolerance);
    }
};

struct CShapeName {
    const char* operator()(const CPolylinePrimitive&) const { return "polyline"; }
    const char* operator()(const CPlinePrimitive&) const { return "pline"; }
    const char* operator()(const CArcPrimitive&) const { return "arc"; }
    const char* operator()(const CTextPrimitive&) const { return "text"; }
    const char* operator()(const CSplinePrimitive&) const { return "spline"; }
};

CJson JsonPrimitive(const CPrimitive& primitive) {
    CJson json;
    json["prim"] = std::visit(CShapeName{}, primitive.m_shape);
    json["color"] = primitive.m_nColor;
    json["linetype"] = JsonText(primitive.m_strLinetype);
    json["marker"] = primitive.m_nMarker;
    std::visit(CShapeToJson{json}, primitive.m_shape);
    return json;
}

} // namespace

CJson JsonVertices(const std::vector<CPolylineVertex>& vertices) {
    CJson list = CJson::array();
    for (const CPolylineVertex& vertex : vertices)
        list.push_back(CJson{{"at", JsonPoint(vertex.m_pt)},
                             {"bulge", JsonNumber(vertex.m_dBulge)},
                             {"startWidth", JsonNumber(vertex.m_dStartWidth)},
                             {"endWidth", JsonNumber(vertex.m_dEndWidth)}});
    return list;
}

CJson JsonDisplayList(const CDisplayList& list) {
    CJson json = CJson::array();
    for (const CPrimitive& primitive : list)
        json.push_back(JsonPrimitive(primitive));
    return json;
}
