#pragma once

#include "host/files/custom_pictures.h"
#include "host/files/drawing_text.h"
#include "host/files/dwg_classes.h"
#include "host/files/dwg_common.h"
#include "host/files/dwg_extended_data.h"
#include "host/files/dwg_handle_map.h"

/// What the parts of a drawing that is being written share.
struct CDwgWriting {
    const AcDbDatabase& m_database;
    const CDrawingText& m_text;
    std::uint16_t m_nCodePage; ///< the text's
    CDwgHandleMap& m_handles;
    std::vector<CDwgClass>& m_classes;            ///< of the file
    const CCustomPictures* m_pPictures = nullptr; ///< of custom entities; null for none
};

/// The extended data of an object as its record holds them.
std::vector<CDwgExtendedData> DwgExtendedDataOf(const AcDbObject& object, const CDwgWriting& writing);

/// The objects that are told of changes to this one, as far as they are in the file.
std::vector<CDwgHandle> DwgReactorsOf(const AcDbObject& object, const CDwgWriting& writing);
