#pragma once

#include "host/console/json_values.h"
#include "platform/acad/display_list.h"

CJson JsonVertices(const std::vector<CPolylineVertex>& vertices);

/// A list of PRIMITIVE in the order drawn.
CJson JsonDisplayList(const CDisplayList& list);
