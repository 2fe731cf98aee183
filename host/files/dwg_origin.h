#pragma once

#include "host/files/drawing_text.h"
#include "host/files/dwg_file.h"
#include "host/files/dwg_record.h"
#include "platform/acad/db_database.h"

/// What a drawing keeps of the drawing file that it was read from: all of it, so that what the drawing itself
/// does not hold can be written again.
struct CDwgOrigin : CDbOrigin {
    /// Takes the objects of the file apart. Throws CDwgError.
    explicit CDwgOrigin(const CDwgFile& file);

    /// The object as it stood in the file; null for one that came later.
    const CDwgRecord* Find(std::uint64_t nHandle) const;
    /// The class of the objects of a type; null for a fixed type, and for none.
    const CDwgClass* FindClass(std::uint16_t nType) const;
    bool IsKnown(std::uint16_t nType) const;  ///< a fixed one or that of a class
    bool IsEntity(std::uint16_t nType) const; ///< known, and of entities

    CDwgFile m_file;     ///< but for its objects
    CDrawingText m_text; ///< by its code page
    std::map<std::uint64_t, CDwgRecord> m_records;
};

/// The drawing file that a drawing was read from; null for a drawing of another kind.
inline const CDwgOrigin* DwgOriginOf(const AcDbDatabase& database) {
    return dynamic_cast<const CDwgOrigin*>(database.Origin());
}
