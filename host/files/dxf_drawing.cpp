#include "host/files/dxf_drawing.h"

#include "host/files/dxf_xdata.h"
#include "platform/acad/result_buffer.h"
#include "platform/acad/wide_names.h"

#include <charconv>
#include <memory>

namespace {

constexpr int g_nHandle = 5;

/// The handle that the record has; null for none.
AcDbHandle HandleOf(const CDxfRecord& record) {
    const CDxfTag* const pTag = record.Find(g_nHandle);
    const std::string_view text = pTag ? pTag->Text() : std::string_view();
    Adesk::UInt64 value = 0;
    std::from_chars(text.data() + std::min(text.find_first_not_of(' '), text.size()),
                    text.data() + text.size(), value, 16);
    return AcDbHandle(value);
}

} // namespace

template <class Table, class Record>
AcDbObjectId CDxfDrawing::Named(AcDbObjectId idTable, CIds& mapIds, const std::wstring& strName) {
    AcDbObjectId& id = mapIds[UpperName(strName)];
    if (!id.isNull()) return id;
    const CDbOpen<Table> table(idTable, AcDb::kForWrite);
    if (table->getAt(strName.c_str(), id) == Acad::eOk) return id;
    auto pRecord = std::make_unique<Record>();
    pRecord->setName(strName.c_str());
    if (table->add(id, pRecord.get()) == Acad::eOk) pRecord.release()->close();
    return id;
}

AcDbObjectId CDxfDrawing::Block(const std::wstring& strName) {
    // R12 has its own names for the two spaces.
    const std::wstring strUpper = UpperName(strName);
    if (strUpper == L"$MODEL_SPACE") return m_database.ModelSpaceId();
    const std::wstring strKnown = strUpper == L"$PAPER_SPACE" ? ACDB_PAPER_SPACE : strName;
    return Named<AcDbBlockTable, AcDbBlockTableRecord>(m_database.blockTableId(), m_mapBlocks, strKnown);
}

AcDbObjectId CDxfDrawing::Layer(const std::wstring& strName) {
    return Named<AcDbLayerTable, AcDbLayerTableRecord>(m_database.layerTableId(), m_mapLayers,
                                                       strName.empty() ? L"0" : strName);
}

AcDbObjectId CDxfDrawing::Linetype(const std::wstring& strName) {
    if (strName.empty() || SameName(strName, L"ByLayer")) return AcDbObjectId::kNull;
    return LinetypeRecord(strName);
}

AcDbObjectId CDxfDrawing::LinetypeRecord(const std::wstring& strName) {
    return Named<AcDbLinetypeTable, AcDbLinetypeTableRecord>(m_database.linetypeTableId(), m_mapLinetypes,
                                                             strName);
}

AcDbObjectId CDxfDrawing::TextStyle(const std::wstring& strName) {
    return Named<AcDbTextStyleTable, AcDbTextStyleTableRecord>(m_database.textStyleTableId(), m_mapTextStyles,
                                                               strName.empty() ? L"Standard" : strName);
}

AcDbObjectId CDxfDrawing::App(const std::wstring& strName) {
    return Named<AcDbRegAppTable, AcDbRegAppTableRecord>(m_database.regAppTableId(), m_mapApps, strName);
}

void CDxfDrawing::Identify(AcDbObjectId id, const CDxfRecord& record) {
    TakeHandle(id, HandleOf(record));
    if (record.m_arXData.empty()) return;
    const CResbufChain chain(ReadDxfXData(record, *this));
    const CDbOpen<AcDbObject> object(id, AcDb::kForWrite);
    if (chain && object->setXData(chain.Get()) != Acad::eOk) Lose("extended data");
}

// An object that is not of the file makes way. Of two that have the same handle the later one gets its own.
void CDxfDrawing::TakeHandle(AcDbObjectId id, AcDbHandle handle) {
    if (handle.isNull() || !m_setTaken.insert(handle.Value()).second || id.handle() == handle) return;
    AcDbObjectId idThere;
    if (m_database.getAcDbObjectId(idThere, handle) == Acad::eOk)
        m_database.SetHandle(idThere, m_database.handseed());
    m_database.SetHandle(id, handle);
}
