#include "host/files/dxf_write_proxies.h"

#include "host/files/dwg_out_filer.h"
#include "platform/acad/db_proxy.h"
#include "platform/acad/rx_class.h"
#include "platform/windows/code_page.h"

namespace {

CDxfClass ClassOf(const AcDbEntity& entity) {
    if (const auto* const pProxy = dynamic_cast<const CProxy*>(&entity))
        return {pProxy->originalDxfName(), pProxy->originalClassName(), pProxy->applicationDescription(), 0,
                true};
    const AcRxClass& known = *entity.isA();
    return {known.dxfName(), known.name(), known.appName(), known.proxyFlags(), false};
}

/// What an entity writes of itself, as drawing files hold it; empty when it fails to.
CDwgRecord DataOf(const AcDbEntity& entity) {
    const CDrawingText text(g_nChinesePage);
    const CDwgOutFiler::CHandleOf handleOf = [](AcDbObjectId id) {
        return id.isNull() || id.isErased() ? 0 : id.handle().Value();
    };
    CDwgRecordWriter io;
    CDwgOutFiler filer(io, text, handleOf);
    const bool bWritten = entity.dwgOut(&filer) == Acad::eOk && filer.filerStatus() == Acad::eOk;
    return bWritten ? io.TakeRecord(0, 0) : CDwgRecord();
}

/// The code of a reference, by the kind of it.
int GroupOf(const CDwgHandle& handle) {
    switch (handle.m_nCode) {
    case CDwgHandle::s_nSoftOwner:
        return 350;
    case CDwgHandle::s_nHardOwner:
        return 360;
    case CDwgHandle::s_nHardPointer:
        return 340;
    default:
        return 330;
    }
}

} // namespace

void WriteDxfProxy(CDxfOutput& out, const AcDbEntity& entity, const CBytes* pPicture) {
    constexpr int nProxyEntity = 498, nR2000 = 23;
    const CDxfClass original = ClassOf(entity);
    const CDwgRecord data = DataOf(entity);
    const std::string strType = GbkFromWide(original.m_strDxfName);
    if (!pPicture) out.Lose("picture of " + strType);
    if (data.m_data.m_nCount == 0) out.Lose("data of " + strType);
    out.Subclass("AcDbProxyEntity");
    out.Whole(90, nProxyEntity);
    out.Whole(91, out.ClassNumber(original));
    out.Whole(95, nR2000); // the form of the data
    out.Whole(70, 0);      // they are those of a drawing file
    out.Whole(92, pPicture ? static_cast<std::int64_t>(pPicture->size()) : 0);
    if (pPicture) out.Bytes(310, *pPicture);
    out.Whole(93, static_cast<std::int64_t>(data.m_data.m_nCount));
    out.Bytes(310, data.m_data.m_arBytes);
    for (const CDwgHandle& handle : data.m_arHandles)
        out.Handle(GroupOf(handle), AcDbHandle(handle.m_nValue));
    out.Whole(94, 0);
}
