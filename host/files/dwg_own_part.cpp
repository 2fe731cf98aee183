#include "host/files/dwg_own_part.h"

#include "host/files/dwg_in_filer.h"

namespace {

class CDwgOwnPartReader final : public CForeignReader {
public:
    CDwgOwnPartReader(const CDwgOwnPart& part, std::span<const CFiledId> ids)
        : m_ids(ids)
        , m_record(RecordOf(part))
        , m_io(m_record)
        , m_filer(m_io, part.m_pOrigin->m_text, m_idOf) {
        const bool bOfClass = part.m_nType >= g_nDwgFirstClass;
        if (!bOfClass || ids.size() < part.m_arHandles.size()) m_io.Fail();
    }
    AcDbDwgFiler& Filer() override { return m_filer; }
    bool IsAtEnd() const override { return m_io.IsAtEnd(); }

private:
    /// The references of the record stand for the places of the ids.
    static CDwgRecord RecordOf(const CDwgOwnPart& part) {
        CDwgRecord record;
        record.m_data = part.m_data;
        for (std::size_t i = part.FirstOwn(); i < part.m_arHandles.size(); ++i)
            record.m_arHandles.push_back(SoftPointer(i));
        return record;
    }

    std::span<const CFiledId> m_ids;
    CDwgRecord m_record;
    CDwgRecordReader m_io;
    CDwgInFiler::CIdOf m_idOf = [this](const CDwgHandle& handle) { return m_ids[handle.m_nValue].m_id; };
    CDwgInFiler m_filer;
};

} // namespace

std::unique_ptr<CForeignReader> CDwgOwnPart::Reader(std::span<const CFiledId> ids) const {
    return std::make_unique<CDwgOwnPartReader>(*this, ids);
}

const CDwgOwnPart* DwgOwnPartOf(const CDbRecord& record) {
    const auto* const pPart = dynamic_cast<const CDwgOwnPart*>(record.m_pForeign.get());
    const bool bWhole = pPart && record.m_arIds.size() >= record.m_nForeignIds + pPart->m_arHandles.size();
    return bWhole ? pPart : nullptr;
}
