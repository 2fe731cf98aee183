#include "tests/support/foreign/strangers.h"

#include "host/files/dwg_blocks.h"
#include "host/files/dwg_dictionaries.h"
#include "tests/support/foreign/records.h"

#include <algorithm>

namespace {

constexpr std::uint16_t g_nXrecord = 0x4F;
constexpr std::uint16_t g_nMoreClasses = 7;

std::uint16_t AddClass(CDwgFile& file, const char* pName, const char* pDxfName, bool bEntities) {
    std::uint16_t nNumber = g_nDwgFirstClass;
    for (const CDwgClass& each : file.m_arClasses)
        nNumber = std::max<std::uint16_t>(nNumber, each.m_nNumber + 1);
    file.m_arClasses.push_back({nNumber, 0, "Anderes Programm", pName, pDxfName, true, bEntities});
    return nNumber;
}

template <class Value, class File>
void Put(CDwgFile& file, std::uint16_t nType, std::uint64_t nHandle, const Value& value, File filed) {
    file.m_contents[nHandle] = WriteDwgRecord(DwgRecordOf(nType, nHandle, value, filed));
}

CDwgObjectCommon OwnedBy(std::uint64_t nOwner) {
    CDwgObjectCommon common;
    common.m_hOwner = SoftPointer(nOwner);
    common.m_arReactors = {common.m_hOwner};
    return common;
}

std::uint64_t AddXrecord(CDwgFile& file, std::uint64_t nOwner) {
    const std::uint64_t nHandle = TakeHandle(file);
    Put(file, g_nXrecord, nHandle, OwnedBy(nOwner), [](auto& io, auto& value) {
        FileObjectCommon(io, value);
        io.BL(std::uint32_t{4});
        io.Raw(CBytes{70, 0, 5, 0}, 4); // one number
        io.BS(std::uint16_t{1});
    });
    return nHandle;
}

/// An object of which nobody knows more than its common part.
std::uint64_t AddObject(CDwgFile& file, std::uint16_t nClass, std::uint64_t nOwner) {
    const std::uint64_t nHandle = TakeHandle(file);
    Put(file, nClass, nHandle, OwnedBy(nOwner), [](auto& io, auto& value) {
        FileObjectCommon(io, value);
        io.BD(2.25);
        io.RC(std::uint8_t{0x5A});
    });
    return nHandle;
}

CDwgDictionary DictionaryOf(std::uint64_t nOwner) {
    CDwgDictionary dictionary;
    dictionary.m_hOwner = SoftPointer(nOwner);
    return dictionary;
}

void AddItem(CDwgDictionary& dictionary, const char* pName, std::uint64_t nItem) {
    dictionary.m_arNames.emplace_back(pName);
    dictionary.m_arItems.push_back(SoftOwner(nItem));
}

class CStrangers {
public:
    explicit CStrangers(CDwgFile& file)
        : m_file(file)
        , m_nClass(AddClass(file, "CFremdling", "FREMDLING", true)) {}

    /// Adds one behind the entity nPrevious of model space.
    void AddBehind(std::uint64_t nPrevious) {
        const std::uint64_t nHandle = TakeHandle(m_file);
        CEntityRecord previous = EntityAt(m_file, nPrevious);
        const std::uint64_t nNext = previous.m_common.m_hNext.m_nValue;
        CDwgEntityCommon common = previous.m_common;
        common.m_arReactors.clear();
        common.m_hExtensions = HardOwner(0);
        common.m_hPrevious = SoftPointer(nPrevious);
        previous.m_common.m_hNext = SoftPointer(nHandle);
        PutEntity(m_file, nPrevious, previous);
        SetPrevious(nNext, nHandle);
        Put(m_file, m_nClass, nHandle, common, [nPrevious](auto& io, auto& value) {
            FileEntityCommon(io, value);
            io.BD(7.5);
            io.RC(std::uint8_t{0xA5});
            io.Handle(SoftPointer(nPrevious));
        });
    }

private:
    /// Of no entity: that nHandle is model space's last one.
    void SetPrevious(std::uint64_t nEntity, std::uint64_t nHandle) {
        if (nEntity) {
            CEntityRecord entity = EntityAt(m_file, nEntity);
            entity.m_common.m_hPrevious = SoftPointer(nHandle);
            return PutEntity(m_file, nEntity, entity);
        }
        ChangeObject<CDwgBlockHeader>(
            m_file, m_file.m_variables.m_roots.m_hModelSpace.m_nValue, DWG_FILED(FileBlockHeader),
            [nHandle](CDwgBlockHeader& header) { header.m_hLast = SoftPointer(nHandle); });
    }

    CDwgFile& m_file;
    std::uint16_t m_nClass;
};

} // namespace

void AddStrangeClasses(CDwgFile& file) {
    for (auto& [nHandle, content] : file.m_contents) {
        CDwgRecord record = ReadDwgRecord(content, nHandle);
        if (record.m_nType < g_nDwgFirstClass) continue;
        record.m_nType = static_cast<std::uint16_t>(record.m_nType + g_nMoreClasses);
        content = WriteDwgRecord(record);
    }
    for (CDwgClass& each : file.m_arClasses)
        each.m_nNumber = static_cast<std::uint16_t>(each.m_nNumber + g_nMoreClasses);
    for (std::uint16_t i = 0; i < g_nMoreClasses; ++i) {
        const std::string strName = "Fremd" + std::to_string(i);
        file.m_arClasses.insert(file.m_arClasses.begin() + i,
                                {static_cast<std::uint16_t>(g_nDwgFirstClass + i), 0x401, "Anderes Programm",
                                 "C" + strName, strName, false, i % 2 == 0});
    }
}

void AddStrangeObjects(CDwgFile& file) {
    const std::uint64_t nNamed = file.m_variables.m_roots.m_hNamedObjects.m_nValue;
    const std::uint64_t nDictionary = TakeHandle(file), nExtensions = TakeHandle(file);
    CDwgDictionary dictionary = DictionaryOf(nNamed);
    AddItem(dictionary, "EINTRAG", AddXrecord(file, nDictionary));
    AddItem(dictionary, "SACHE",
            AddObject(file, AddClass(file, "CFremdeSache", "FREMDESACHE", false), nDictionary));
    Put(file, g_nDwgDictionary, nDictionary, dictionary, DWG_FILED(FileDictionary));
    ChangeObject<CDwgDictionary>(
        file, nNamed, DWG_FILED(FileDictionary),
        [nDictionary](CDwgDictionary& named) { AddItem(named, "ANDERES_PROGRAMM", nDictionary); });

    const std::uint64_t nFirst = ModelSpaceOf(file).front();
    CDwgDictionary extensions = DictionaryOf(nFirst);
    AddItem(extensions, "EINTRAG", AddXrecord(file, nExtensions));
    Put(file, g_nDwgDictionary, nExtensions, extensions, DWG_FILED(FileDictionary));
    CEntityRecord first = EntityAt(file, nFirst);
    first.m_common.m_hExtensions = HardOwner(nExtensions);
    PutEntity(file, nFirst, first);
}

void AddStrangeEntities(CDwgFile& file) {
    const std::vector<std::uint64_t> entities = ModelSpaceOf(file);
    CStrangers strangers(file);
    strangers.AddBehind(entities[entities.size() / 2]);
    strangers.AddBehind(ModelSpaceOf(file).back());
}
