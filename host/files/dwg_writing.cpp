#include "host/files/dwg_writing.h"

std::vector<CDwgExtendedData> DwgExtendedDataOf(const AcDbObject& object, const CDwgWriting& writing) {
    const AcDbObjectId idLayers = writing.m_database.layerTableId();
    const CDwgExtendedContext context{writing.m_text,
                                      writing.m_nCodePage,
                                      [&](const std::wstring& strName) {
                                          return writing.m_handles.Of(RecordNamed(idLayers, strName.c_str()));
                                      },
                                      {}};
    std::vector<CDwgExtendedData> all;
    for (const CXDataOfApp& app : object.XData().Apps()) {
        const std::uint64_t nApp = writing.m_handles.Of(app.m_idApp);
        if (nApp && !app.m_arItems.empty())
            all.push_back({HardPointer(nApp), PackExtendedData(app.m_arItems, context)});
    }
    return all;
}

std::vector<CDwgHandle> DwgReactorsOf(const AcDbObject& object, const CDwgWriting& writing) {
    std::vector<CDwgHandle> reactors;
    for (const AcDbObjectId& id : object.PersistentReactors())
        if (const std::uint64_t nReactor = writing.m_handles.Of(id))
            reactors.push_back(SoftPointer(nReactor));
    return reactors;
}
