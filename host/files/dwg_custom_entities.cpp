#include "host/files/dwg_custom_entities.h"

#include "host/files/dwg_in_filer.h"
#include "host/files/dwg_out_filer.h"
#include "platform/acad/rx_registry.h"

#include <algorithm>

namespace {

/// The number of a class in the file.
std::uint16_t NumberOf(const AcRxClass& rxClass, const CDwgWriting& writing) {
    const std::string strName = writing.m_text.Encode(rxClass.name());
    const auto found = std::find_if(writing.m_classes.begin(), writing.m_classes.end(),
                                    [&](const CDwgClass& entry) { return entry.m_strClassName == strName; });
    if (found != writing.m_classes.end()) return found->m_nNumber;
    CDwgClass entry;
    entry.m_nNumber = static_cast<std::uint16_t>(g_nDwgFirstClass + writing.m_classes.size());
    entry.m_nProxyFlags = static_cast<std::uint16_t>(rxClass.proxyFlags());
    entry.m_strAppName = writing.m_text.Encode(rxClass.appName());
    entry.m_strClassName = strName;
    entry.m_strDxfName = writing.m_text.Encode(rxClass.dxfName());
    entry.m_bEntities = true;
    writing.m_classes.push_back(entry);
    return entry.m_nNumber;
}

} // namespace

CDwgRecord WriteDwgCustomEntity(const AcDbEntity& entity, const CDwgEntityCommon& common,
                                const CDwgWriting& writing) {
    const std::uint64_t nHandle = writing.m_handles.Of(entity.objectId());
    const CDwgOutFiler::CHandleOf handleOf = [&](AcDbObjectId id) { return writing.m_handles.Of(id); };
    CDwgEntityCommon drawn = common;
    if (const CBytes* const pPicture = writing.m_pPictures ? writing.m_pPictures->Of(entity) : nullptr) {
        drawn.m_bGraphics = true;
        drawn.m_arGraphics = *pPicture;
    }
    CDwgRecordWriter io;
    FileEntityCommon(io, drawn);
    CDwgOutFiler filer(io, writing.m_text, handleOf);
    if (entity.dwgOut(&filer) != Acad::eOk || filer.filerStatus() != Acad::eOk)
        RefuseDwgObject(nHandle, "it cannot be written into a file.");
    return io.TakeRecord(NumberOf(*entity.isA(), writing), nHandle);
}

std::unique_ptr<AcDbEntity> MakeDwgCustomEntity(const CDwgClass& fileClass, const CDrawingText& text) {
    const auto* const pClasses = dynamic_cast<AcRxDictionary*>(acrxSysRegistry()->at(ACDB_CLASS_DICTIONARY));
    const std::wstring strName = text.Decode(fileClass.m_strClassName);
    const auto* const pClass = dynamic_cast<AcRxClass*>(pClasses->at(strName.c_str()));
    if (!pClass || !fileClass.m_bEntities || !pClass->isDerivedFrom(AcDbEntity::desc())) return nullptr;
    return std::unique_ptr<AcDbEntity>(static_cast<AcDbEntity*>(pClass->create()));
}

void ReadDwgCustomEntity(AcDbEntity& entity, const CDwgRecord& record, const CDwgReading& reading) {
    const CDwgInFiler::CIdOf idOf = [&](const CDwgHandle& handle) { return reading.IdOf(handle); };
    CDwgRecordReader io(record);
    CDwgEntityCommon common;
    FileEntityCommon(io, common);
    CDwgInFiler filer(io, reading.m_text, idOf);
    if (entity.dwgIn(&filer) != Acad::eOk || !io.IsAtEnd())
        RefuseDwgObject(record.m_nHandle, "its data are not those of its class.");
}
