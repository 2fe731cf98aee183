#pragma once

#include "host/files/dwg_fixed_handles.h"
#include "platform/acad/db_database.h"

#include <map>

/// The handles under which a drawing's objects stand in its file. What every drawing has stands under the
/// fixed ones; all else keeps its own, unless that is among those reserved for them.
class CDwgHandleMap {
public:
    explicit CDwgHandleMap(const AcDbDatabase& database);

    /// 0 for none, and for an erased object, which is not in the file.
    std::uint64_t Of(AcDbObjectId id) const;
    /// A handle for an object that the file has and the drawing has not.
    std::uint64_t New() { return m_nNext++; }
    std::uint64_t Seed() const { return m_nNext; } ///< above all handles given so far

private:
    std::map<AcDbHandle, std::uint64_t> m_mapHandles; ///< where they differ from the object's own
    std::uint64_t m_nNext;
};

/// The record of a table by its name; null when there is none.
AcDbObjectId RecordNamed(AcDbObjectId idTable, const ACHAR* name);
