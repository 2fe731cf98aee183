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
    /// Where its own references begin.
    std::size_t FirstOwn() const { return m_bNeighbours ? s_nNeighbours : 0; }
    bool IsOfFixedType() const { return m_nType != 0 && m_nType < g_nDwgFirstClass; }

    std::shared_ptr<const CDwgOrigin> m_pOrigin;
    std::uint16_t m_nType = 0; ///< in that file; 0 where it is of another kind, whose data no class reads
    CDwgBits m_data;
    bool m_bNeighbours = false;
    std::vector<CDwgHandle> m_arHandles; ///< the references as they stood in the file, but absolute
};

/// What a record has of a drawing file, with all references; null for none.
const CDwgOwnPart* DwgOwnPartOf(const CDbRecord& record);
