#include "host/files/dxf_drawing.h"

#include "host/files/dxf_xdata.h"
#include "platform/acad/result_buffer.h"
#include "platform/acad/wide_names.h"

#include <memory>

namespace {

/// The record of a table with that name, made if need be; null for no name.
template <class Record>
AcDbObjectId Named(AcDbObjectId idTable, const std::wstring& strName) {
    const CDbOpen<AcDbSymbolTable> table(idTable, AcDb::kForWrite);
    AcDbObjectId id = table->Find(strName.c_str());
    if (!id.isNull()) return id;
    auto pRecord = std::make_unique<Record>();
    pRecord->setName(strName.c_str());
    if (table->add(id, pRecord.get()) == Acad::eOk) pRecord.release()->close();
    return id;
}

} // namespace

AcDbObjectId CDxfDrawing::Block(const std::wstring& strName) {
    // R12 has its own names for the two spaces.
    const std::wstring strUpper = UpperName(strName);
    if (strUpper == L"$MODEL_SPACE") return m_database.ModelSpaceId();
    const std::wstring strKnown = strUpper == L"$PAPER_SPACE" ? ACDB_PAPER_SPACE : strName;
    return Named<AcDbBlockTableRecord>(m_database.blockTableId(), strKnown);
}

AcDbObjectId CDxfDrawing::Layer(const std::wstring& strName) {
    return Named<AcDbLayerTableRecord>(m_database.layerTableId(), strName.empty() ? L"0" : strName);
}

AcDbObjectId CDxfDrawing::Linetype(const std::wstring& strName) {
    if (strName.empty() || SameName(strName, L"ByLayer")) return AcDbObjectId::kNull;
    return LinetypeRecord(strName);
}

AcDbObjectId CDxfDrawing::LinetypeRecord(const std::wstring& strName) {
    return Named<AcDbLinetypeTableRecord>(m_database.linetypeTableId(), strName);
}

AcDbObjectId CDxfDrawing::TextStyle(const std::wstring& strName) {
    return Named<AcDbTextStyleTableRecord>(m_database.textStyleTableId(),
                                           strName.empty() ? L"Standard" : strName);
}

AcDbObjectId CDxfDrawing::App(const std::wstring& strName) {
    return Named<AcDbRegAppTableRecord>(m_database.regAppTableId(), strName);
}

const CProxyOrigin* CDxfDrawing::Class(std::int64_t nNumber) const {
    constexpr std::int64_t nFirst = 500;
    const std::int64_t nCount = static_cast<std::int64_t>(m_arClasses.size());
    if (nNumber < nFirst || nNumber >= nFirst + nCount) return nullptr;
    return &m_arClasses[static_cast<std::size_t>(nNumber - nFirst)];
}

void CDxfDrawing::Identify(AcDbObjectId id, const CDxfRecord& record) {
    TakeHandle(id, record.Handle());
    LoseGroups(record);
    if (record.m_arXData.empty()) return;
    const CResbufChain chain(ReadDxfXData(record, *this));
    const CDbOpen<AcDbObject> object(id, AcDb::kForWrite);
    if (chain && object->setXData(chain.Get()) != Acad::eOk) Lose("extended data");
}

void CDxfDrawing::LoseGroups(const CDxfRecord& record) {
    for (const std::string_view name : record.m_arGroups) {
        if (name == "{ACAD_REACTORS")
            Lose("reactors");
        else if (name == "{ACAD_XDICTIONARY")
            Lose("extension dictionary");
        else if (name != "{BLKREFS")
            Lose("application data"); // references are found again
    }
}

// An object that is not of the file makes way. Of two that have the same handle the later one gets its own.
void CDxfDrawing::TakeHandle(AcDbObjectId id, AcDbHandle handle) {
    if (handle.isNull() || !m_setTaken.insert(handle.Value()).second || id.handle() == handle) return;
    AcDbObjectId idThere;
    if (m_database.getAcDbObjectId(idThere, handle) == Acad::eOk)
        m_database.SetHandle(idThere, m_database.handseed());
    m_database.SetHandle(id, handle);
}
