#pragma once

#include "platform/acad/display_list.h"
#include "platform/acad/plane_transform.h"

/// The picture's image. What its primitives cannot show (a circle that becomes an ellipse) is a polyline of
/// short chords in it.
CDisplayList Transformed(const CDisplayList& list, const AcGeMatrix3d& xform);

/// Takes the vertices of a polyline along; plane is what the transformation does to the plane they lie in.
void TransformVertices(std::vector<CPolylineVertex>& arVertices, const AcGeMatrix3d& xform,
                       const CPlaneTransform& plane);
