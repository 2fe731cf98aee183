#include "host/files/dwg_block_writer.h"

#include "host/files/dwg_blocks.h"
#include "host/files/dwg_control_writer.h"
#include "host/files/dwg_entity_writer.h"
#include "platform/acad/db_block_reference.h"
#include "platform/acad/db_stub.h"

#include <algorithm>
#include <set>

namespace {

/// The handles of entities in a row, of which each names its neighbours.
class CChain {
public:
    explicit CChain(std::vector<std::uint64_t> handles)
        : m_handles(std::move(handles)) {}
    std::uint64_t At(std::size_t n) const { return n < m_handles.size() ? m_handles[n] : 0; }
    std::uint64_t First() const { return At(0); }
    std::uint64_t Last() const { return m_handles.empty() ? 0 : m_handles.back(); }

    /// Names the neighbours, unless they are left to be told by their handles and still can be.
    void GiveNeighbours(CDwgEntityCommon& common, std::size_t n) const {
        const std::uint64_t nPrevious = n ? At(n - 1) : 0, nNext = At(n + 1);
        common.m_bNeighbours = common.m_bNeighbours && nPrevious == At(n) - 1 && nNext == At(n) + 1;
        common.m_hPrevious = SoftPointer(nPrevious);
        common.m_hNext = SoftPointer(nNext);
    }

private:
    std::vector<std::uint64_t> m_handles;
};

class CBlockWriter {
public:
    CBlockWriter(const CDwgWriting& writing, std::vector<CDwgRecord>& records)
        : m_writing(writing)
        , m_records(records)
        , m_nModelSpace(writing.m_handles.Of(writing.m_database.ModelSpaceId()))
        , m_nPaperSpace(writing.m_handles.Of(PaperSpaceId(writing.m_database))) {}

    void Write() {
        FindInserts();
        const CDbOpen<AcDbBlockTable> table(m_writing.m_database.blockTableId());
        WriteDwgControl(m_writing, m_records, *table.Get(), g_nDwgBlockControl,
                        {m_writing.m_database.ModelSpaceId(), PaperSpaceId(m_writing.m_database)});
        for (const AcDbObjectId& id : table->RecordIds())
            if (m_writing.m_handles.Of(id)) WriteBlock(*CDbOpen<AcDbBlockTableRecord>(id).Get());
    }

private:
    static AcDbObjectId PaperSpaceId(const AcDbDatabase& database) {
        return RecordNamed(database.blockTableId(), ACDB_PAPER_SPACE);
    }
    bool IsSpace(std::uint64_t nBlock) const { return nBlock == m_nModelSpace || nBlock == m_nPaperSpace; }

    template <class Value, class File>
    CDwgRecord& Append(std::uint16_t nType, std::uint64_t nHandle, const Value& value, File file) {
        return m_records.emplace_back(DwgRecordOf(nType, nHandle, value, file));
    }

    /// Notes which insertions show each block.
    void FindInserts() {
        for (const AcDbObjectId& id : m_writing.m_database.ObjectIds())
            if (const auto* const pReference = PeekObject<AcDbBlockReference>(id))
                if (const std::uint64_t nReference = m_writing.m_handles.Of(id))
                    m_inserts[m_writing.m_handles.Of(pReference->blockTableRecord())].push_back(
                        SoftPointer(nReference));
    }

    /// The insertions that the file named and that are still there, such as arrays of them, which a drawing
    /// here only keeps; then those that came later.
    std::vector<CDwgHandle> InsertsOf(std::uint64_t nBlock, const std::vector<CDwgHandle>& former) const {
        std::vector<CDwgHandle> inserts;
        std::set<std::uint64_t> listed;
        for (const CDwgHandle& handle : former)
            if (m_writing.StillThere(handle).m_nValue && listed.insert(handle.m_nValue).second)
                inserts.push_back(handle);
        const auto found = m_inserts.find(nBlock);
        if (found == m_inserts.end()) return inserts;
        for (const CDwgHandle& handle : found->second)
            if (listed.insert(handle.m_nValue).second) inserts.push_back(handle);
        return inserts;
    }

    CChain ChainOf(const std::vector<AcDbObjectId>& ids) const {
        std::vector<std::uint64_t> handles;
        handles.reserve(ids.size());
        for (const AcDbObjectId& id : ids)
            handles.push_back(m_writing.m_handles.Of(id));
        return CChain(std::move(handles));
    }

    void WriteBlock(const AcDbBlockTableRecord& block) {
        const std::uint64_t nBlock = m_writing.m_handles.Of(block.objectId());
        const std::vector<AcDbObjectId> ids = block.EntityIds();
        const CChain chain = ChainOf(ids);
        const CDwgBlockHeader header = HeaderOf(block, nBlock, chain);
        Append(g_nDwgBlockHeader, nBlock, header, DWG_FILED(FileBlockHeader)).m_arExtended =
            DwgExtendedDataOf(block, m_writing);
        const std::string strName = m_writing.m_text.Encode(block.Name());
        WriteEnd(g_nDwgBlock, header.m_hBlock.m_nValue, nBlock,
                 [&strName](auto& io, auto&) { io.T(strName); });
        WriteEnd(g_nDwgBlockEnd, header.m_hBlockEnd.m_nValue, nBlock, [](auto&, auto&) {});
        for (std::size_t i = 0; i < ids.size(); ++i)
            WriteEntity(ids[i], chain, i, nBlock);
    }

    CDwgBlockHeader HeaderOf(const AcDbBlockTableRecord& block, std::uint64_t nBlock, const CChain& chain) {
        auto header =
            FormerDwgValue<CDwgBlockHeader>(m_writing, nBlock, g_nDwgBlockHeader, DWG_FILED(FileBlockHeader));
        const bool bNew = !m_writing.Former(nBlock, g_nDwgBlockHeader);
        RelateDwgObject(header, block, m_writing);
        const std::string strName = m_writing.m_text.Encode(block.Name());
        const bool bShort = header.m_strName.starts_with('*') && strName.starts_with(header.m_strName);
        if (bNew || !bShort) header.m_strName = strName; // else it may lack the number of an anonymous block
        if (bNew) header.m_bAnonymous = !IsSpace(nBlock) && block.Name().starts_with(L'*');
        header.m_ptBase = block.origin();
        header.m_bAttributes = HasAttributeDefinitions(block);
        PlaceStructure(header, nBlock);
        header.m_hFirst = SoftPointer(chain.First());
        header.m_hLast = SoftPointer(chain.Last());
        header.m_arInserts = InsertsOf(nBlock, header.m_arInserts);
        header.m_hLayout = m_writing.StillThere(header.m_hLayout);
        return header;
    }

    static bool HasAttributeDefinitions(const AcDbBlockTableRecord& block) {
        return std::ranges::any_of(block.EntityIds(), [](const AcDbObjectId& id) {
            return PeekObject<AcDbAttributeDefinition>(id) != nullptr;
        });
    }

    /// In a new drawing a space is followed by its ends and its layout.
    void PlaceStructure(CDwgBlockHeader& header, std::uint64_t nBlock) {
        if (!m_writing.m_pOrigin && IsSpace(nBlock)) {
            header.m_hBlock = HardOwner(nBlock + 1);
            header.m_hBlockEnd = HardOwner(nBlock + 2);
            header.m_hLayout = HardPointer(nBlock + 3);
        } else {
            header.m_hBlock = HardOwner(FormerOrNew(header.m_hBlock.m_nValue, g_nDwgBlock));
            header.m_hBlockEnd = HardOwner(FormerOrNew(header.m_hBlockEnd.m_nValue, g_nDwgBlockEnd));
        }
    }

    /// The handle that a structure had in the file that the drawing is of, unless it was another's.
    std::uint64_t FormerOrNew(std::uint64_t nFormer, std::uint16_t nType) {
        const bool bOwn = m_writing.Former(nFormer, nType) && m_structures.insert(nFormer).second;
        return bOwn ? nFormer : m_writing.m_handles.New();
    }

    /// The entity before the first or behind the last one of a block, with what it has of its own.
    template <class File>
    void WriteEnd(std::uint16_t nType, std::uint64_t nHandle, std::uint64_t nBlock, File fileOwn) {
        CDwgEntityCommon common = FormerCommon(nHandle, nType);
        PlaceIn(common, nBlock);
        if (common.m_hLayer.m_nValue == 0) common.m_hLayer = HardPointer(LayerZero());
        AppendStructure(nType, nHandle, common, fileOwn);
    }

    /// An entity that stands only in the file.
    template <class File>
    void AppendStructure(std::uint16_t nType, std::uint64_t nHandle, const CDwgEntityCommon& common,
                         File fileOwn) {
        CDwgRecord& record = Append(nType, nHandle, common, [&fileOwn](auto& io, auto& value) {
            FileEntityCommon(io, value);
            fileOwn(io, value);
        });
        if (const CDwgRecord* const pFormer = m_writing.Former(nHandle, nType))
            record.m_arExtended = pFormer->m_arExtended;
    }

    std::uint64_t LayerZero() const {
        return m_writing.m_handles.Of(RecordNamed(m_writing.m_database.layerTableId(), L"0"));
    }

    CDwgEntityCommon FormerCommon(std::uint64_t nHandle, std::uint16_t nType) const {
        return FormerDwgValue<CDwgEntityCommon>(m_writing, nHandle, nType, DWG_FILED(FileEntityCommon));
    }

    void PlaceIn(CDwgEntityCommon& common, std::uint64_t nBlock) const {
        common.m_nPlace = nBlock == m_nModelSpace   ? g_nDwgInModelSpace
                          : nBlock == m_nPaperSpace ? g_nDwgInPaperSpace
                                                    : g_nDwgOwnerGiven;
        common.m_hOwner = SoftPointer(nBlock);
    }

    /// The entity at a place of a chain, in a block or of an insertion.
    void WriteEntity(AcDbObjectId id, const CChain& chain, std::size_t nAt, std::uint64_t nOwner) {
        const CDbOpen<AcDbEntity> entity(id);
        CDwgEntityCommon common = DwgEntityCommonOf(*entity.Get(), m_writing);
        PlaceIn(common, nOwner);
        chain.GiveNeighbours(common, nAt);
        CDwgSequence attributes;
        const auto* const pReference = AcDbBlockReference::cast(entity.Get());
        if (pReference) attributes = WriteAttributes(*pReference, common.m_hLayer);
        m_records.push_back(WriteDwgEntity(*entity.Get(), common, attributes, m_writing));
    }

    CDwgSequence WriteAttributes(const AcDbBlockReference& reference, const CDwgHandle& hLayer) {
        const std::vector<AcDbObjectId> ids = reference.AttributeIds();
        if (ids.empty()) return {};
        const std::uint64_t nReference = m_writing.m_handles.Of(reference.objectId());
        const CChain chain = ChainOf(ids);
        for (std::size_t i = 0; i < ids.size(); ++i)
            WriteEntity(ids[i], chain, i, nReference);
        const CDwgSequence sequence{chain.First(), chain.Last(), SequenceEndOf(nReference)};
        CDwgEntityCommon common = FormerCommon(sequence.m_nEnd, g_nDwgSequenceEnd);
        PlaceIn(common, nReference);
        if (common.m_hLayer.m_nValue == 0) common.m_hLayer = hLayer;
        AppendStructure(g_nDwgSequenceEnd, sequence.m_nEnd, common, [](auto&, auto&) {});
        return sequence;
    }

    std::uint64_t SequenceEndOf(std::uint64_t nReference) {
        const auto former =
            FormerDwgPart<CDwgInsertEntity>(m_writing, nReference, g_nDwgInsert, DWG_FILED(FileInsert));
        return FormerOrNew(former.m_hSequenceEnd.m_nValue, g_nDwgSequenceEnd);
    }

    const CDwgWriting& m_writing;
    std::vector<CDwgRecord>& m_records;
    std::uint64_t m_nModelSpace, m_nPaperSpace;
    std::set<std::uint64_t> m_structures; ///< handles given to what stands only in the file
    std::map<std::uint64_t, std::vector<CDwgHandle>> m_inserts; ///< by block
};

} // namespace

void WriteDwgBlocks(const CDwgWriting& writing, std::vector<CDwgRecord>& records) {
    CBlockWriter(writing, records).Write();
}
