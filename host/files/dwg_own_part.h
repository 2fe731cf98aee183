#pragma once

#include "host/files/dwg_origin.h"
#include "platform/acad/db_record.h"

/// What an object of a drawing file holds beyond what all objects have, for one whose class is not known or
/// of whose type a drawing here holds none. The references stand in its record: those to its neighbours
/// first, if it has any apart from those in its block; then its own, and those to the entities that it owns.
class CDwgOwnPart final : public CForeignData {
public:
    std::unique_ptr<CForeignReader> Reader(std::span<const CFiledId> ids) const override;

    static constexpr std::size_t s_nNeighbours = 2;

    std::shared_ptr<const CDwgOrigin> m_pOrigin;
    std::uint16_t m_nType = 0; ///< in that file
    CDwgBits m_data;
    bool m_bNeighbours = false;
    std::vector<CDwgHandle> m_arHandles; ///< the references as they stood in the file, but absolute
};
