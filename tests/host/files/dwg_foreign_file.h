#pragma once

#include "host/files/dwg_common.h"
#include "host/files/dwg_file.h"

// A drawing file as another program makes it, with much that drawings here do not hold.

/// Where its objects are.
struct CForeign {
    static constexpr std::uint64_t s_nModelSpace = 0x40, s_nCircle = 0x200, s_nLine = 0x201, s_nHatch = 0x202,
                                   s_nMark = 0x203, s_nPolyline = 0x204, s_nVertex1 = 0x205,
                                   s_nVertex2 = 0x206, s_nSequenceEnd = 0x207, s_nLoose = 0x210,
                                   s_nExtensions = 0x220, s_nXrecord = 0x221, s_nGroup = 0x222,
                                   s_nUnknown = 0x223, s_nStrange = 0x230;
    static constexpr std::uint16_t s_nMarkClass = 510, s_nUnknownClass = 511, s_nStrangeType = 0x1F0;
};

/// The file: in code page 1252; the standard objects stand under other handles than in files of this program.
/// Model space is a chain of the circle, the line, the hatch, the mark and the polyline; of the loose line
/// only its owner is known. bNeighbours: the chain is told by the handles alone.
CDwgFile ForeignFile(bool bNeighbours);

/// All records of a file with their references made absolute.
std::map<std::uint64_t, CDwgRecord> RecordsOf(const CDwgFile& file);
