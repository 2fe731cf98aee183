#include "drawing/line_entities.h"

#include "drawing/explode_set.h"
#include "drawing/polyline_vertices.h"

namespace {
void AddTwoVertices(AcDbVoidPtrArray& entitySet, const CPolylineVertex& from, const CPolylineVertex& to) {
    auto pLine = std::make_unique<AcDbPolyline>(2);
    for (const CPolylineVertex& vertex : {from, to})
        AppendVertex(*pLine, vertex);
    HandOver(entitySet, std::move(pLine));
}
} // namespace

void AddLineEntity(AcDbVoidPtrArray& entitySet, const AcGePoint3d& from, const AcGePoint3d& to) {
    AddTwoVertices(entitySet, {{from.x, from.y}}, {{to.x, to.y}});
}

void AddWideLineEntity(AcDbVoidPtrArray& entitySet, const AcGePoint3d& from, const AcGePoint3d& to,
                       double dWidth) {
    AddTwoVertices(entitySet, {{from.x, from.y}, 0.0, dWidth, dWidth}, {{to.x, to.y}, 0.0, dWidth, dWidth});
}

void AddArrowEntity(AcDbVoidPtrArray& entitySet, const AcGePoint3d& from, const AcGePoint3d& to,
                    double dWidth) {
    AddTwoVertices(entitySet, {{from.x, from.y}, 0.0, dWidth, 0.0}, {{to.x, to.y}});
}
