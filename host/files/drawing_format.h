#pragma once
// Drawings and the bytes of their files, whichever format those have.

#include "host/files/dxf_losses.h"
#include "host/files/read_goes_on.h"
#include "platform/acad/db_database.h"

#include <memory>
#include <optional>
#include <string>
#include <string_view>

enum class CDrawingFormat {
    Dwg,
    Dxf,
    ExplodedDxf, ///< with what custom entities explode into; only written, on demand
};

/// The format that a file's ending stands for, in any case: Dwg or Dxf, nothing for another ending.
std::optional<CDrawingFormat> FormatOfEnding(const std::string& utf8Path);

/// What a file holds and its drawing does not, or the reverse: each kind, GBK, with its count.
using CDrawingLosses = CDxfLosses;

/// The kinds and counts on one line, UTF-8: "HATCH (3); INSERT in rows and columns (1)".
std::string LossesText(const CDrawingLosses& losses);

struct CReadDrawing {
    std::unique_ptr<AcDbDatabase> m_pDatabase; ///< unchanged
    CDrawingFormat m_format;                   ///< what the bytes are, however the file is called
    CDrawingLosses m_losses;
    CDrawingLosses m_kept = {}; ///< entities that the drawing keeps as they are without knowing their type
};

/// Throws CDrawingFailure, for bytes that are no drawing too; it names the version of one that cannot be
/// read. With eUserBreak when fnGoesOn, asked before each object, gives it up.
CReadDrawing ReadDrawing(std::string_view bytes, const CReadGoesOn& fnGoesOn = {});

struct CWrittenDrawing {
    std::string m_strBytes;
    CDrawingLosses m_losses;
};

/// Throws CDrawingFailure, for a drawing with an object that is open for writing too.
CWrittenDrawing WriteDrawing(const AcDbDatabase& database, CDrawingFormat format);
