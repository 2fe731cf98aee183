#pragma once
// A whole drawing file as plain values: everything but what its objects mean.

#include "host/files/dwg_classes.h"
#include "host/files/dwg_file_header.h"
#include "host/files/dwg_objects.h"
#include "host/files/dwg_preview.h"
#include "host/files/dwg_variables.h"

struct CDwgFile {
    CDwgIdentity m_identity;
    std::uint32_t m_nSaves = 0; ///< how often the drawing was saved
    std::vector<CDwgPreviewItem> m_arPreview;
    CDwgVariables m_variables;
    std::vector<CDwgClass> m_arClasses;
    CDwgContents m_contents;
    bool m_bMetric = true; ///< new line types and hatches come from the metric files
};

/// Takes a file apart. Throws CDwgError with the part and what is wrong there.
CDwgFile ReadDwgFile(CByteView bytes);

/// The file's bytes. Throws CDwgError for what no file can hold.
CBytes WriteDwgFile(const CDwgFile& file);
