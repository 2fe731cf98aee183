#pragma once

#include "host/files/dxf_drawing.h"

#include <string_view>

/// The variables of a file's header that a drawing takes over.
class CDxfHeader {
public:
    CDxfHeader() = default;
    /// From the record that begins the section, which has all variables behind it.
    explicit CDxfHeader(const CDxfRecord& section);

    /// The encoding of the file's texts: from R2007 on UTF-8, before that a code page.
    CDrawingText Encoding() const;
    /// Sets the drawing's variables; those that no drawing can have are left as they are.
    void Apply(CDxfDrawing& drawing) const;

private:
    const CDxfRecord& Variable(std::string_view name) const;

    std::map<std::string_view, CDxfRecord> m_mapVariables; ///< each with its values' groups
};
