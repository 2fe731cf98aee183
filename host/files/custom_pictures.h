#pragma once

#include "host/files/bytes.h"
#include "host/files/drawing_text.h"
#include "platform/acad/db_database.h"

/// The pictures that a file keeps of a drawing's custom entities, for programs that don't know their classes.
/// All are drawn at once, before anything is written: that may bring styles and line types into the drawing,
/// which is put back as it was afterwards.
class CCustomPictures {
public:
    /// Texts in the pictures are in the code page of text.
    CCustomPictures(const AcDbDatabase& database, const CDrawingText& text);
    /// The picture's bytes; null for an entity that is none such, draws nothing, or was open for writing.
    const CBytes* Of(const AcDbEntity& entity) const;

private:
    std::map<AcDbHandle, CBytes> m_mapPictures;
};
