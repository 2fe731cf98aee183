#pragma once

#include "host/files/dxf_drawing.h"

#include <set>

/// Takes the records of the section of objects. None of them becomes part of the drawing: those that every
/// drawing has are written anew, the others are counted as lost.
class CDxfObjects {
public:
    explicit CDxfObjects(CDxfDrawing& drawing)
        : m_drawing(drawing) {}
    void Add(const CDxfRecord& record);

private:
    void TakeRoot(const CDxfRecord& record);

    CDxfDrawing& m_drawing;
    bool m_bRootRead = false;
    std::set<AcDbHandle> m_setUsual; ///< dictionaries that every drawing has
};
