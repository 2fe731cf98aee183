#pragma once

#include "platform/acad/db_database.h"
#include "platform/acad/standard_handles.h"

#include <map>
#include <set>

/// The handles under which a drawing's objects stand in its file. Those of a drawing that was read from a
/// drawing file are the objects' own. Else what every drawing has stands under the fixed ones; the rest keeps
/// its own, unless that is among those reserved for them.
class CDwgHandleMap {
public:
    explicit CDwgHandleMap(const AcDbDatabase& database);

    /// 0 for none, and for an object that is erased or whose owner is, which is not in the file.
    std::uint64_t Of(AcDbObjectId id) const;
    /// A handle for an object that the file has and the drawing has not.
    std::uint64_t New() { return m_nNext++; }
    std::uint64_t Seed() const { return m_nNext; } ///< above all handles given so far

private:
    void FindGone(const AcDbDatabase& database);
    void FixHandles(const AcDbDatabase& database);

    std::set<AcDbHandle> m_gone;                      ///< with their owners
    std::map<AcDbHandle, std::uint64_t> m_mapHandles; ///< where they differ from the object's own
    std::uint64_t m_nNext;
};

/// The record of a table by its name; null when there is none.
AcDbObjectId RecordNamed(AcDbObjectId idTable, const ACHAR* name);
