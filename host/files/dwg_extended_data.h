#pragma once
// Extended data as they are packed in a drawing file.

#include "host/files/bytes.h"
#include "host/files/drawing_text.h"
#include "platform/acad/db_xdata.h"

#include <functional>

/// What packing needs to know of the drawing.
struct CDwgExtendedContext {
    const CDrawingText& m_text;
    std::uint16_t m_nCodePage; ///< its number, which stands with each text
    std::function<std::uint64_t(const std::wstring&)> m_handleOfLayer; ///< 0 for a name that is none
    std::function<std::wstring(std::uint64_t)> m_layerOfHandle;        ///< empty for a handle that is none
};

/// The values of one application. A text is cut to 255 bytes, for more of which a file has no room.
CBytes PackExtendedData(const std::vector<CXDataItem>& items, const CDwgExtendedContext& context);

/// The values out of their bytes, up to the first that there is no telling what it is.
std::vector<CXDataItem> UnpackExtendedData(CByteView bytes, const CDwgExtendedContext& context);
