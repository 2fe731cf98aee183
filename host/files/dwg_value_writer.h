#pragma once

#include "host/files/drawing_text.h"
#include "host/files/dwg_record_io.h"
#include "platform/acad/db_record.h"

#include <functional>

using CDwgHandleOf =
    std::function<std::uint64_t(AcDbObjectId)>; ///< an object's handle in the file; 0 for none

/// Writes what an object wrote of itself into its record in a drawing file: numbers in their bit codes, texts
/// in the drawing's code page, references beside them. Foreign data, and what belongs to them, are left out.
void WriteDwgValues(CDwgRecordWriter& io, const CDbRecord& record, const CDrawingText& text,
                    const CDwgHandleOf& handleOf);
