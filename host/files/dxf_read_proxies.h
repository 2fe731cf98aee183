#pragma once
// Proxies as DXF records tell them: a class's name, a picture, and what the class has written.

#include "host/files/dxf_drawing.h"

#include <memory>

/// A proxy without its picture. Its class is not asked for, whether it is known or not.
std::unique_ptr<AcDbEntity> ReadDxfProxy(const CDxfRecord& record, CDxfDrawing& drawing);

/// Gives a proxy what its class has written, which stays as it is; all that it may refer to is in the
/// drawing. Data in another form than that of drawing files are counted as lost.
void GiveDxfData(const CDxfRecord& record, CDxfDrawing& drawing, AcDbProxyEntity& proxy);

/// Gives a proxy the picture of its record; where that does not tell colours or line types, those that the
/// proxy has by now hold.
void GiveDxfPicture(const CDxfRecord& record, AcDbProxyEntity& proxy);
