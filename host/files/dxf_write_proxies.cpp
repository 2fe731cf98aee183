#include "host/files/dxf_write_proxies.h"

#include "host/files/dwg_own_part.h"
#include "host/files/dwg_value_writer.h"
#include "platform/acad/db_proxy.h"
#include "platform/acad/rx_class.h"
#include "platform/windows/code_page.h"

#include <optional>

namespace {

CDxfClass ClassOf(const AcDbEntity& entity) {
    if (const auto* const pProxy = dynamic_cast<const CProxy*>(&entity))
        return {pProxy->originalDxfName(), pProxy->originalClassName(), pProxy->applicationDescription(),
                pProxy->Origin().m_nProxyFlags, true};
    const AcRxClass& known = *entity.isA();
    return {known.dxfName(), known.name(), known.appName(), known.proxyFlags(), false};
}

std::uint64_t HandleOf(AcDbObjectId id) {
    return id.isNull() || id.isErased() ? 0 : id.handle().Value();
}

/// What the class of an entity has written, as drawing files hold it; nothing when it fails to, or when a
/// text is too long for one.
std::optional<CDwgRecord> DataOf(const AcDbEntity& entity) {
    const std::optional<CDbRecord> part = ClassPartOf(entity);
    if (!part) return std::nullopt;
    CDwgRecordWriter io;
    WriteDwgValues(io, *part, CDrawingText(g_nChinesePage), HandleOf);
    if (const CDwgOwnPart* const pForeign = DwgOwnPartOf(*part)) {
        io.RawBits(pForeign->m_data.m_arBytes, pForeign->m_data.m_nCount);
        for (std::size_t i = pForeign->FirstOwn(); i < pForeign->m_arHandles.size(); ++i)
            io.Handle(
                {pForeign->m_arHandles[i].m_nCode, HandleOf(part->m_arIds[part->m_nForeignIds + i].m_id)});
    }
    if (io.Failed()) return std::nullopt;
    return io.TakeRecord(0, 0);
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

bool IsDxfProxy(const AcDbEntity& entity) {
    const auto* const pProxy = dynamic_cast<const CProxy*>(&entity);
    const CDwgOwnPart* const pPart = pProxy ? DwgOwnPartOf(pProxy->ClassPart()) : nullptr;
    return !pPart || !pPart->IsOfFixedType();
}

void WriteDxfProxy(CDxfOutput& out, const AcDbEntity& entity, const CBytes* pPicture) {
    constexpr int nProxyEntity = 498, nR2000 = 23;
    const CDxfClass original = ClassOf(entity);
    const std::optional<CDwgRecord> written = DataOf(entity);
    const CDwgRecord data = written.value_or(CDwgRecord());
    const std::string strType = GbkFromWide(original.m_strDxfName);
    if (!pPicture) out.Lose("picture of " + strType);
    if (!written) out.Lose("data of " + strType);
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
