#pragma once

#include "host/files/dxf_output.h"

#include <vector>

/// A sheet or model space as the objects of a file describe it.
struct CDxfLayout {
    AcDbObjectId m_idBlock;
    AcDbHandle m_handle;
    std::wstring m_strName;
    int m_nTab; ///< 0 is model space
};

/// What stands in the file alone and is referred to from several places.
struct CDxfStructure {
    std::vector<CDxfLayout> m_arLayouts;
    AcDbHandle m_plotStyle; ///< "Normal", which layers plot with

    explicit CDxfStructure(CDxfOutput& out);
    /// The handle of the block's layout; null for a block that is no space to draw in.
    AcDbHandle LayoutOf(AcDbObjectId idBlock) const;
};

/// Whether every drawing has an entry of that name in its dictionary of named objects, which is written anew.
bool IsUsualDxfEntry(std::string_view name);
