#include "host/files/dwg_block_writer.h"

#include "host/files/dwg_blocks.h"
#include "host/files/dwg_custom_entities.h"
#include "host/files/dwg_entity_writer.h"
#include "platform/acad/db_block_reference.h"
#include "platform/acad/db_stub.h"

namespace {

/// The handles of entities in a row, of which each names its neighbours.
class CChain {
public:
    explicit CChain(std::vector<std::uint64_t> handles)
        : m_handles(std::move(handles)) {}
    std::uint64_t At(std::size_t n) const { return n < m_handles.size() ? m_handles[n] : 0; }
    std::uint64_t First() const { return At(0); }
    std::uint64_t Last() const { return m_handles.empty() ? 0 : m_handles.back(); }

private:
    std::vector<std::uint64_t> m_handles;
};

class CBlockWriter {
public:
    CBlockWriter(const CDwgWriting& writing, std::vector<CDwgRecord>& records)
        : m_writing(writing)
        , m_records(records) {}

    void Write() {
        FindInserts();
        const CDbOpen<AcDbBlockTable> table(m_writing.m_database.blockTableId());
        CDwgControl control;
        control.m_arFixed = {HardOwner(CDwgFixed::s_nModelSpace), HardOwner(CDwgFixed::s_nPaperSpace)};
        for (const AcDbObjectId& id : table->RecordIds()) {
            const std::uint64_t nBlock = m_writing.m_handles.Of(id);
            if (!nBlock) continue;
            if (!IsSpace(nBlock)) control.m_arRecords.push_back(SoftOwner(nBlock));
            const CDbOpen<AcDbBlockTableRecord> block(id);
            WriteBlock(*block.Get(), nBlock);
        }
        Append(g_nDwgBlockControl, CDwgFixed::s_nBlocks, control,
               [](auto& io, auto& value) { FileControl(io, value, g_nDwgBlockControl); });
    }

private:
    static bool IsSpace(std::uint64_t nBlock) {
        return nBlock == CDwgFixed::s_nModelSpace || nBlock == CDwgFixed::s_nPaperSpace;
    }

    template <class Value, class File>
    CDwgRecord& Append(std::uint16_t nType, std::uint64_t nHandle, const Value& value, File file) {
        return m_records.emplace_back(DwgRecordOf(nType, nHandle, value, file));
    }

    /// Notes which insertions show each block.
    void FindInserts() {
        for (const AcDbObjectId& id : m_writing.m_database.ObjectIds())
            if (const auto* const pReference = PeekObject<AcDbBlockReference>(id))
                m_inserts[m_writing.m_handles.Of(pReference->blockTableRecord())].push_back(
                    SoftPointer(m_writing.m_handles.Of(id)));
    }

    CChain ChainOf(const std::vector<AcDbObjectId>& ids) const {
        std::vector<std::uint64_t> handles;
        handles.reserve(ids.size());
        for (const AcDbObjectId& id : ids)
            handles.push_back(m_writing.m_handles.Of(id));
        return CChain(std::move(handles));
    }

    void WriteBlock(const AcDbBlockTableRecord& block, std::uint64_t nBlock) {
        const std::vector<AcDbObjectId> ids = block.EntityIds();
        const CChain chain = ChainOf(ids);
        CDwgBlockHeader header;
        header.m_hOwner = SoftPointer(CDwgFixed::s_nBlocks);
        header.m_arReactors = DwgReactorsOf(block, m_writing);
        header.m_strName = m_writing.m_text.Encode(block.Name());
        header.m_bAnonymous = !IsSpace(nBlock) && block.Name().starts_with(L'*');
        header.m_ptBase = block.origin();
        for (const AcDbObjectId& id : ids)
            header.m_bAttributes = header.m_bAttributes || PeekObject<AcDbAttributeDefinition>(id);
        header.m_hBlock = HardOwner(IsSpace(nBlock) ? nBlock + 1 : m_writing.m_handles.New());
        header.m_hFirst = SoftPointer(chain.First());
        header.m_hLast = SoftPointer(chain.Last());
        header.m_hBlockEnd = HardOwner(IsSpace(nBlock) ? nBlock + 2 : m_writing.m_handles.New());
        header.m_arInserts = m_inserts[nBlock];
        header.m_hLayout = HardPointer(IsSpace(nBlock) ? nBlock + 3 : 0);
        Append(g_nDwgBlockHeader, nBlock, header, DWG_FILED(FileBlockHeader)).m_arExtended =
            DwgExtendedDataOf(block, m_writing);
        WriteEnds(header, nBlock);
        for (std::size_t i = 0; i < ids.size(); ++i) {
            CDwgEntityCommon common = PlaceIn(nBlock);
            common.m_hPrevious = SoftPointer(i ? chain.At(i - 1) : 0);
            common.m_hNext = SoftPointer(chain.At(i + 1));
            WriteEntity(ids[i], common);
        }
    }

    /// The entities before the first and behind the last one of a block.
    void WriteEnds(const CDwgBlockHeader& header, std::uint64_t nBlock) {
        CDwgEntityCommon common = PlaceIn(nBlock);
        common.m_hLayer = HardPointer(CDwgFixed::s_nLayer0);
        Append(g_nDwgBlock, header.m_hBlock.m_nValue, common, [&header](auto& io, auto& value) {
            FileEntityCommon(io, value);
            io.T(header.m_strName);
        });
        Append(g_nDwgBlockEnd, header.m_hBlockEnd.m_nValue, common, DWG_FILED(FileEntityCommon));
    }

    static CDwgEntityCommon PlaceIn(std::uint64_t nBlock) {
        CDwgEntityCommon common;
        common.m_hOwner = SoftPointer(nBlock);
        if (nBlock == CDwgFixed::s_nModelSpace) common.m_nPlace = g_nDwgInModelSpace;
        if (nBlock == CDwgFixed::s_nPaperSpace) common.m_nPlace = g_nDwgInPaperSpace;
        return common;
    }

    /// What the entity itself says of the common part.
    void TakeProperties(CDwgEntityCommon& common, const AcDbEntity& entity) const {
        common.m_nColor = entity.colorIndex();
        common.m_arReactors = DwgReactorsOf(entity, m_writing);
        const std::uint64_t nLayer = m_writing.m_handles.Of(entity.layerId());
        common.m_hLayer = HardPointer(nLayer ? nLayer : CDwgFixed::s_nLayer0);
        const std::uint64_t nLinetype = m_writing.m_handles.Of(entity.linetypeId());
        if (nLinetype == 0 || nLinetype == CDwgFixed::s_nByLayer) return;
        common.m_nLinetype = nLinetype == CDwgFixed::s_nByBlock      ? g_nDwgByBlock
                             : nLinetype == CDwgFixed::s_nContinuous ? g_nDwgContinuous
                                                                     : g_nDwgByHandle;
        common.m_hLinetype = HardPointer(nLinetype);
    }

    void WriteEntity(AcDbObjectId id, CDwgEntityCommon common) {
        const CDbOpen<AcDbEntity> entity(id);
        TakeProperties(common, *entity.Get());
        CDwgSequence attributes;
        const auto* const pReference = AcDbBlockReference::cast(entity.Get());
        if (pReference) attributes = WriteAttributes(*pReference, common.m_hLayer);
        std::optional<CDwgRecord> record = WriteDwgEntity(*entity.Get(), common, attributes, m_writing);
        if (!record) record = WriteDwgCustomEntity(*entity.Get(), common, m_writing);
        m_records.push_back(std::move(*record));
    }

    CDwgSequence WriteAttributes(const AcDbBlockReference& reference, const CDwgHandle& hLayer) {
        const std::vector<AcDbObjectId> ids = reference.AttributeIds();
        if (ids.empty()) return {};
        const CChain chain = ChainOf(ids);
        CDwgEntityCommon common;
        common.m_hOwner = SoftPointer(m_writing.m_handles.Of(reference.objectId()));
        for (std::size_t i = 0; i < ids.size(); ++i) {
            common.m_hPrevious = SoftPointer(i ? chain.At(i - 1) : 0);
            common.m_hNext = SoftPointer(chain.At(i + 1));
            WriteEntity(ids[i], common);
        }
        const CDwgSequence sequence{chain.First(), chain.Last(), m_writing.m_handles.New()};
        common.m_hPrevious = common.m_hNext = SoftPointer(0);
        common.m_hLayer = hLayer;
        Append(g_nDwgSequenceEnd, sequence.m_nEnd, common, DWG_FILED(FileEntityCommon));
        return sequence;
    }

    const CDwgWriting& m_writing;
    std::vector<CDwgRecord>& m_records;
    std::map<std::uint64_t, std::vector<CDwgHandle>> m_inserts; ///< by block
};

} // namespace

void WriteDwgBlocks(const CDwgWriting& writing, std::vector<CDwgRecord>& records) {
    CBlockWriter(writing, records).Write();
}
