#include "host/files/dwg_object_reader.h"

#include "host/files/dwg_dictionaries.h"
#include "host/files/dwg_proxies.h"
#include "host/files/dwg_table_records.h"

namespace {

class CObjectReader {
public:
    explicit CObjectReader(CDwgReading& reading)
        : m_reading(reading) {}

    void Read() {
        FindDictionaries(m_reading.m_pOrigin->m_file.m_variables.m_roots.m_hNamedObjects.m_nValue);
        for (const auto& [nHandle, record] : m_reading.m_pOrigin->m_records)
            if (IsLeft(record)) Add(record);
        for (const auto& [nHandle, hOwner] : m_owners)
            m_reading.m_database.SetOwner(m_reading.IdOf(nHandle), m_reading.IdOf(hOwner));
        for (const auto& [nHandle, dictionary] : m_dictionaries)
            Fill(m_reading.IdOf(nHandle), dictionary);
    }

private:
    /// Notes the dictionary, if it is one, and those that it has among its items.
    void FindDictionaries(std::uint64_t nRoot) {
        std::vector<std::uint64_t> left{nRoot};
        while (!left.empty()) {
            const CDwgRecord* const pRecord = m_reading.m_pOrigin->Find(left.back());
            left.pop_back();
            if (!pRecord || pRecord->m_nType != g_nDwgDictionary ||
                m_dictionaries.contains(pRecord->m_nHandle))
                continue;
            const CDwgDictionary& dictionary =
                m_dictionaries
                    .emplace(pRecord->m_nHandle,
                             ReadDwgValue<CDwgDictionary>(*pRecord, DWG_FILED(FileDictionary)))
                    .first->second;
            for (const CDwgHandle& handle : dictionary.m_arItems)
                left.push_back(handle.m_nValue);
        }
        if (m_dictionaries.contains(nRoot))
            IdentifyDwg(m_reading, m_reading.m_database.namedObjectsDictionaryId(), nRoot);
    }

    /// Whether it is no entity and was not read; a table that the drawing holds itself stands in it already.
    bool IsLeft(const CDwgRecord& record) const {
        return !m_reading.m_ids.contains(record.m_nHandle) && record.m_nType != g_nDwgBlockControl &&
               !m_reading.m_pOrigin->IsEntity(record.m_nType);
    }

    void Add(const CDwgRecord& record) {
        m_reading.CheckGoesOn();
        CDwgRecordReader reader(record);
        const auto common =
            ReadDwgCommon<CDwgObjectCommon>(reader, record.m_nHandle, DWG_FILED(FileObjectCommon));
        std::unique_ptr<AcDbObject> pObject;
        if (m_dictionaries.contains(record.m_nHandle)) {
            pObject = std::make_unique<AcDbDictionary>();
        } else {
            auto pProxy = std::make_unique<AcDbProxyObject>();
            pProxy->SetOrigin(DwgProxyOrigin(record, m_reading));
            pObject = std::move(pProxy);
        }
        AcDbObjectId id;
        m_reading.m_database.AddObject(id, pObject.get(), AcDbObjectId::kNull);
        pObject.release()->close();
        IdentifyDwg(m_reading, id, record.m_nHandle);
        m_owners[record.m_nHandle] = common.m_hOwner;
    }

    void Fill(AcDbObjectId id, const CDwgDictionary& filed) {
        const CDbOpen<AcDbDictionary> dictionary(id, AcDb::kForWrite);
        dictionary->setTreatElementsAsHard(filed.m_nHard != 0);
        for (std::size_t i = 0; i < filed.m_arItems.size(); ++i)
            if (const AcDbObjectId idItem = m_reading.IdOf(filed.m_arItems[i]); !idItem.isNull())
                dictionary->Enter(m_reading.Text(filed.m_arNames[i]).c_str(), idItem);
    }

    CDwgReading& m_reading;
    std::map<std::uint64_t, CDwgDictionary> m_dictionaries;
    std::map<std::uint64_t, CDwgHandle> m_owners;
};

} // namespace

void ReadDwgObjects(CDwgReading& reading) {
    CObjectReader(reading).Read();
}
