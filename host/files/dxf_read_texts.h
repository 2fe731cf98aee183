#pragma once
// Texts as DXF records tell them, in the coordinates of the record. Null for values that no text has.

#include "host/files/dxf_drawing.h"
#include "platform/acad/db_attribute.h"

#include <memory>

std::unique_ptr<AcDbEntity> ReadDxfText(const CDxfRecord& record, CDxfDrawing& drawing);
std::unique_ptr<AcDbEntity> ReadDxfAttributeDefinition(const CDxfRecord& record, CDxfDrawing& drawing);
std::unique_ptr<AcDbAttribute> ReadDxfAttribute(const CDxfRecord& record, CDxfDrawing& drawing);
