#pragma once
// Extended data in DXF: group 1001 with an application's name, then its values.

#include "host/files/dxf_drawing.h"
#include "host/files/dxf_writer.h"

struct resbuf;

/// The record's extended data as a chain, their applications registered; the caller's to release, null for
/// none. Binary data and what stands before the first application are counted as lost.
resbuf* ReadDxfXData(const CDxfRecord& record, CDxfDrawing& drawing);

/// Writes the values of one application, which the file lists by that name.
void WriteDxfXDataOf(CDxfWriter& writer, std::wstring_view strApp, const std::vector<CXDataItem>& arItems);

/// Writes all extended data of an object.
void WriteDxfXData(CDxfWriter& writer, const AcDbObject& object);
