#include "host/files/dwg_object_writer.h"

#include "host/files/dwg_dictionaries.h"
#include "host/files/dwg_entity_writer.h"
#include "host/files/dwg_own_part_writer.h"
#include "platform/acad/db_attribute.h"
#include "platform/acad/db_stub.h"

#include <algorithm>
#include <utility>

namespace {

class CObjectWriter {
public:
    CObjectWriter(const CDwgWriting& writing, std::vector<CDwgRecord>& records)
        : m_writing(writing)
        , m_records(records) {}

    void Write() {
        for (const AcDbObjectId& id : m_writing.m_database.ObjectIds()) {
            if (!m_writing.m_handles.Of(id)) continue;
            const CDbOpen<AcDbObject> object(id);
            if (const auto* const pDictionary = AcDbDictionary::cast(object.Get())) {
                WriteDictionary(*pDictionary);
            } else if (const auto* const pEntity = AcDbEntity::cast(object.Get())) {
                if (StandsApart(*pEntity)) WriteApart(*pEntity);
            } else if (!object->isKindOf(AcDbSymbolTable::desc()) &&
                       !object->isKindOf(AcDbSymbolTableRecord::desc())) {
                WriteObject(*object.Get());
            }
        }
    }

private:
    static bool StandsApart(const AcDbEntity& entity) {
        return !PeekObject<AcDbBlockTableRecord>(entity.ownerId()) && !AcDbAttribute::cast(&entity);
    }

    void WriteDictionary(const AcDbDictionary& dictionary) {
        const std::uint64_t nHandle = m_writing.m_handles.Of(dictionary.objectId());
        const CDwgDictionary former =
            FormerDwgValue<CDwgDictionary>(m_writing, nHandle, g_nDwgDictionary, DWG_FILED(FileDictionary));
        CDwgDictionary filed = former;
        RelateDwgObject(filed, dictionary, m_writing);
        filed.m_nHard = dictionary.isTreatElementsAsHard() ? 1 : 0;
        filed.m_arNames.clear();
        filed.m_arItems.clear();
        for (const auto& [strName, id] : EntriesOf(dictionary)) {
            const auto item = std::ranges::find(former.m_arItems, id, &CDwgHandle::m_nValue);
            filed.m_arNames.push_back(m_writing.m_text.Encode(strName));
            filed.m_arItems.push_back(item == former.m_arItems.end() ? SoftOwner(id) : *item);
        }
        m_records.push_back(DwgRecordOf(g_nDwgDictionary, nHandle, filed, DWG_FILED(FileDictionary)));
        m_records.back().m_arExtended = DwgExtendedDataOf(dictionary, m_writing);
    }

    /// The names in their order, with the handles of their objects.
    std::map<std::wstring, std::uint64_t> EntriesOf(const AcDbDictionary& dictionary) const {
        std::map<std::wstring, std::uint64_t> entries;
        if (!m_writing.m_pOrigin && dictionary.objectId() == m_writing.m_database.namedObjectsDictionaryId())
            entries = {{L"ACAD_GROUP", CStandardHandles::s_nGroups},
                       {L"ACAD_LAYOUT", CStandardHandles::s_nLayouts},
                       {L"ACAD_MLINESTYLE", CStandardHandles::s_nMlineStyles},
                       {L"ACAD_PLOTSETTINGS", CStandardHandles::s_nPlotSettings},
                       {L"ACAD_PLOTSTYLENAME", CStandardHandles::s_nPlotStyles}};
        for (const auto& [strName, id] : dictionary.Entries())
            if (const std::uint64_t nHandle = m_writing.m_handles.Of(id))
                entries.try_emplace(strName, nHandle);
        return entries;
    }

    void WriteObject(const AcDbObject& object) {
        const std::uint64_t nHandle = m_writing.m_handles.Of(object.objectId());
        const CDwgRecord* const pFormer = m_writing.m_pOrigin ? m_writing.m_pOrigin->Find(nHandle) : nullptr;
        CDwgObjectCommon common;
        if (pFormer) {
            CDwgRecordReader former(*pFormer);
            FileObjectCommon(former, common);
        }
        RelateDwgObject(common, object, m_writing);
        CDwgRecordWriter io;
        FileObjectCommon(io, std::as_const(common));
        const std::uint16_t nType = WriteDwgOwnPart(io, object, m_writing);
        if (io.Failed()) RefuseDwgObject(nHandle, "a text is too long for a file.");
        m_records.push_back(io.TakeRecord(nType, nHandle));
        m_records.back().m_arExtended = DwgExtendedDataOf(object, m_writing);
    }

    /// An entity such as a vertex: its owner's references name it.
    void WriteApart(const AcDbEntity& entity) {
        CDwgEntityCommon common = DwgEntityCommonOf(entity, m_writing);
        const CDwgNeighbours neighbours = DwgNeighboursOf(entity, m_writing);
        common.m_bNeighbours = false;
        common.m_hPrevious = neighbours.m_hPrevious;
        common.m_hNext = neighbours.m_hNext;
        if (!entity.ownerId().isNull()) {
            common.m_nPlace = g_nDwgOwnerGiven;
            common.m_hOwner = SoftPointer(m_writing.m_handles.Of(entity.ownerId()));
        }
        m_records.push_back(WriteDwgEntity(entity, common, {}, m_writing));
    }

    const CDwgWriting& m_writing;
    std::vector<CDwgRecord>& m_records;
};

} // namespace

void WriteDwgObjects(const CDwgWriting& writing, std::vector<CDwgRecord>& records) {
    CObjectWriter(writing, records).Write();
}
