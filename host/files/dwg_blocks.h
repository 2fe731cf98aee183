#pragma once
// Blocks of a drawing file, their insertions, and how each is filed.

#include "host/files/dwg_table_records.h"
#include "platform/acad/geometry.h"

inline constexpr std::uint16_t g_nDwgBlock = 4, g_nDwgBlockEnd = 5, g_nDwgSequenceEnd = 6, g_nDwgInsert = 7,
                               g_nDwgBlockHeader = 0x31;

struct CDwgInsertEntity {
    AcGePoint3d m_ptPosition;
    AcGeScale3d m_scale{1.0, 1.0, 1.0};
    double m_dRotation = 0.0;
    AcGeVector3d m_vecExtrusion{0.0, 0.0, 1.0};
    bool m_bAttributes = false;
    CDwgHandle m_hBlock = HardPointer(0);
    CDwgHandle m_hFirstAttribute = SoftPointer(0), m_hLastAttribute = SoftPointer(0),
               m_hSequenceEnd = HardOwner(0); ///< with attributes only
};

/// Forms in which the three factors stand in a file.
enum : std::uint8_t {
    g_nDwgScaleByEach = 0,
    g_nDwgScaleAfterOne = 1,
    g_nDwgScaleAlike = 2,
    g_nDwgScaleOne = 3
};

template <class Io, class Scale>
void FileScale(Io& io, Scale& scale) {
    std::uint8_t nForm =
        scale.sx == 1.0 && scale.sy == 1.0 && scale.sz == 1.0 ? g_nDwgScaleOne : g_nDwgScaleByEach;
    io.BB(nForm);
    if (nForm == g_nDwgScaleOne) return;
    if (nForm != g_nDwgScaleAfterOne) io.RD(scale.sx);
    if constexpr (Io::s_bReads) {
        if (nForm == g_nDwgScaleAlike) {
            scale.sy = scale.sz = scale.sx;
            return;
        }
    }
    io.DD(scale.sy, scale.sx);
    io.DD(scale.sz, scale.sx);
}

template <class Io, class Insert>
void FileInsert(Io& io, Insert& insert) {
    io.BD3(insert.m_ptPosition);
    FileScale(io, insert.m_scale);
    io.BD(insert.m_dRotation);
    io.BD3(insert.m_vecExtrusion);
    io.B(insert.m_bAttributes);
    io.Handle(insert.m_hBlock);
    if (!insert.m_bAttributes) return;
    io.Handle(insert.m_hFirstAttribute);
    io.Handle(insert.m_hLastAttribute);
    io.Handle(insert.m_hSequenceEnd);
}

struct CDwgBlockHeader : CDwgTableRecord {
    bool m_bAnonymous = false, m_bAttributes = false, m_bXref = false, m_bOverlaid = false, m_bLoaded = false;
    AcGePoint3d m_ptBase;
    std::string m_strPath, m_strDescription;
    CBytes m_arPreview;
    CDwgHandle m_hBlock = HardOwner(0), m_hFirst = SoftPointer(0), m_hLast = SoftPointer(0),
               m_hBlockEnd = HardOwner(0);
    std::vector<CDwgHandle> m_arInserts; ///< all that show the block
    CDwgHandle m_hLayout = HardPointer(0);
};

/// As many ones as insertions, ended by a zero.
template <class Io, class Inserts>
std::size_t FileInsertMarks(Io& io, const Inserts& inserts) {
    std::size_t nCount = 0;
    for (;; ++nCount) {
        std::uint8_t nMark = nCount < inserts.size() ? 1 : 0;
        io.RC(nMark);
        if (nMark == 0) return nCount;
    }
}

template <class Io, class Header>
void FileBlockHeader(Io& io, Header& header) {
    FileTableRecord(io, header);
    io.B(header.m_bAnonymous);
    io.B(header.m_bAttributes);
    io.B(header.m_bXref);
    io.B(header.m_bOverlaid);
    io.B(header.m_bLoaded);
    io.BD3(header.m_ptBase);
    io.T(header.m_strPath);
    const std::size_t nInserts = FileInsertMarks(io, header.m_arInserts);
    std::uint32_t nPreview = static_cast<std::uint32_t>(header.m_arPreview.size());
    io.T(header.m_strDescription);
    io.BL(nPreview);
    io.Raw(header.m_arPreview, nPreview);
    io.Handle(header.m_hBlock);
    if (!header.m_bXref && !header.m_bOverlaid) {
        io.Handle(header.m_hFirst);
        io.Handle(header.m_hLast);
    }
    io.Handle(header.m_hBlockEnd);
    io.Handles(header.m_arInserts, nInserts);
    io.Handle(header.m_hLayout);
}
