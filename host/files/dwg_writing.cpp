#include "host/files/dwg_writing.h"

#include "platform/acad/db_stub.h"

#include <algorithm>

namespace {

/// Puts the extended data of an object into those that its record had.
class CExtendedWriter {
public:
    CExtendedWriter(const AcDbObject& object, const CDwgWriting& writing)
        : m_writing(writing)
        , m_arLeft(object.XData().Apps())
        , m_context{writing.m_text, writing.m_nCodePage,
                    [&](const std::wstring& strName) {
                        const AcDbObjectId idLayers = writing.m_database.layerTableId();
                        return writing.m_handles.Of(RecordNamed(idLayers, strName.c_str()));
                    },
                    [&](std::uint64_t nHandle) {
                        AcDbObjectId id;
                        writing.m_database.getAcDbObjectId(id, AcDbHandle(nHandle));
                        const auto* const pLayer = PeekObject<AcDbLayerTableRecord>(id);
                        return pLayer ? pLayer->Name() : std::wstring();
                    }} {}

    void WriteFormer(const CDwgRecord& former) {
        for (const CDwgExtendedData& data : former.m_arExtended)
            WriteFormer(data);
    }

    std::vector<CDwgExtendedData> Finish() {
        for (const CXDataOfApp& app : m_arLeft)
            Write(app);
        return std::move(m_all);
    }

private:
    void WriteFormer(const CDwgExtendedData& data) {
        const std::vector<CXDataItem> items = UnpackExtendedData(data.m_arBytes, m_context);
        const auto app = std::ranges::find_if(m_arLeft, [&](const CXDataOfApp& each) {
            return m_writing.m_handles.Of(each.m_idApp) == data.m_hApp.m_nValue;
        });
        if (app == m_arLeft.end()) {
            if (items.empty()) m_all.push_back(data); // of which the drawing holds nothing
            return;
        }
        items == app->m_arItems ? m_all.push_back(data) : Write(*app);
        m_arLeft.erase(app);
    }

    void Write(const CXDataOfApp& app) {
        const std::uint64_t nApp = m_writing.m_handles.Of(app.m_idApp);
        if (nApp && !app.m_arItems.empty())
            m_all.push_back({HardPointer(nApp), PackExtendedData(app.m_arItems, m_context)});
    }

    const CDwgWriting& m_writing;
    std::vector<CXDataOfApp> m_arLeft;
    CDwgExtendedContext m_context;
    std::vector<CDwgExtendedData> m_all;
};

} // namespace

const CDwgRecord* CDwgWriting::Former(std::uint64_t nHandle, std::uint16_t nType) const {
    const CDwgRecord* const pRecord = m_pOrigin ? m_pOrigin->Find(nHandle) : nullptr;
    return pRecord && pRecord->m_nType == nType ? pRecord : nullptr;
}

CDwgHandle CDwgWriting::StillThere(const CDwgHandle& handle) const {
    AcDbObjectId id;
    const bool bGone =
        m_database.getAcDbObjectId(id, AcDbHandle(handle.m_nValue)) == Acad::eOk && m_handles.Of(id) == 0;
    return {handle.m_nCode, bGone ? 0 : handle.m_nValue};
}

std::vector<CDwgExtendedData> DwgExtendedDataOf(const AcDbObject& object, const CDwgWriting& writing) {
    CExtendedWriter writer(object, writing);
    const CDwgRecord* const pFormer =
        writing.m_pOrigin ? writing.m_pOrigin->Find(object.handle().Value()) : nullptr;
    if (pFormer) writer.WriteFormer(*pFormer);
    return writer.Finish();
}

std::vector<CDwgHandle> DwgReactorsOf(const AcDbObject& object, const CDwgWriting& writing) {
    std::vector<CDwgHandle> reactors;
    for (const AcDbObjectId& id : object.PersistentReactors())
        if (const std::uint64_t nReactor = writing.m_handles.Of(id))
            reactors.push_back(SoftPointer(nReactor));
    return reactors;
}

void RelateDwgObject(CDwgObjectCommon& common, const AcDbObject& object, const CDwgWriting& writing) {
    const AcDbObjectId idOwner = object.ownerId();
    common.m_hOwner =
        idOwner.isNull() ? writing.StillThere(common.m_hOwner) : SoftPointer(writing.m_handles.Of(idOwner));
    common.m_arReactors = DwgReactorsOf(object, writing);
    common.m_hExtensions = writing.StillThere(common.m_hExtensions);
}
