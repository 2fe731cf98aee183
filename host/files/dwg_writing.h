#pragma once

#include "host/files/custom_pictures.h"
#include "host/files/drawing_text.h"
#include "host/files/dwg_common.h"
#include "host/files/dwg_extended_data.h"
#include "host/files/dwg_handle_map.h"
#include "host/files/dwg_origin.h"

/// What the parts of a drawing that is being written share.
struct CDwgWriting {
    const AcDbDatabase& m_database;
    const CDwgOrigin* m_pOrigin; ///< null for a drawing that is of no drawing file
    const CDrawingText& m_text;
    std::uint16_t m_nCodePage; ///< the text's
    CDwgHandleMap& m_handles;
    std::vector<CDwgClass>& m_classes;            ///< of the file
    const CCustomPictures* m_pPictures = nullptr; ///< of custom entities; null for none

    /// An object's record in the file that the drawing is of, if it was of that type; else null.
    const CDwgRecord* Former(std::uint64_t nHandle, std::uint16_t nType) const;
    /// A reference of that file: none once its object is gone.
    CDwgHandle StillThere(const CDwgHandle& handle) const;
};

/// What an object was in the file that the drawing is of; a new one if it was none of that type there. What
/// the drawing itself does not hold of it stays so.
template <class Value, class File>
Value FormerDwgValue(const CDwgWriting& writing, std::uint64_t nHandle, std::uint16_t nType, File file) {
    Value value;
    const CDwgRecord* const pFormer = writing.Former(nHandle, nType);
    if (!pFormer) return value;
    CDwgRecordReader io(*pFormer);
    file(io, value);
    return value;
}

/// The same of an entity's own part.
template <class Part, class File>
Part FormerDwgPart(const CDwgWriting& writing, std::uint64_t nHandle, std::uint16_t nType, File file) {
    return FormerDwgValue<Part>(writing, nHandle, nType, [file](auto& io, auto& part) {
        CDwgEntityCommon common;
        FileEntityCommon(io, common);
        file(io, part);
    });
}

/// The extended data of an object as its record holds them. Those that are as they were keep their bytes.
std::vector<CDwgExtendedData> DwgExtendedDataOf(const AcDbObject& object, const CDwgWriting& writing);

/// The objects that are told of changes to this one, as far as they are in the file.
std::vector<CDwgHandle> DwgReactorsOf(const AcDbObject& object, const CDwgWriting& writing);

/// Gives what an object has in common with others the references of the drawing.
void RelateDwgObject(CDwgObjectCommon& common, const AcDbObject& object, const CDwgWriting& writing);
