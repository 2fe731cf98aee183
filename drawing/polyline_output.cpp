#include "drawing/polyline_output.h"

void DrawPolylineByMode(Adesk::Int16 nMode, AcGiWorldDraw* pMode, const AcDbPolyline& polyline) {
    pMode->subEntityTraits().setSelectionMarker(1);
    if (nMode != 1) {
        pMode->rawGeometry()->pline(polyline, 0, 0);
        return;
    }
    AcGePoint3dArray points;
    for (unsigned int i = 0; i < polyline.numVerts(); i++) {
        AcGePoint3d point;
        polyline.getPointAt(i, point);
        points.append(point);
    }
    if (polyline.isClosed() && !points.isEmpty()) points.append(AcGePoint3d(points.first()));
    pMode->rawGeometry()->polyline(static_cast<Adesk::UInt32>(points.length()), points.asArrayPtr());
}
