#pragma once

#include "host/files/bytes.h"

/// One form of a drawing's preview.
struct CDwgPreviewItem {
    static constexpr std::uint8_t s_nHeader = 1, s_nBitmap = 2, s_nMetafile = 3;
    std::uint8_t m_nKind = s_nBitmap;
    CBytes m_arBytes; ///< of a bitmap without its file header
    bool operator==(const CDwgPreviewItem&) const = default;
};

/// The preview at an address (0: none) of a whole file. It is no part of the drawing, so what cannot be read
/// of it is left out.
std::vector<CDwgPreviewItem> ReadDwgPreview(CByteView file, std::uint32_t nAddress);

/// The preview as it stands at that address.
CBytes WriteDwgPreview(const std::vector<CDwgPreviewItem>& items, std::uint32_t nAddress);
