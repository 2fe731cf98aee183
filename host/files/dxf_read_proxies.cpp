#include "host/files/dxf_read_proxies.h"

#include "host/files/proxy_graphics.h"

#include <algorithm>

namespace {

constexpr int g_nData = 310;

/// The binary data behind the group that tells how many there are, up to R2007 or later.
CBytes DataOf(const CDxfRecord& record, int nSizeCode, int nLaterSizeCode) {
    const CDxfTag* const pEarlier = record.Find(nSizeCode);
    const CDxfTag* const pSize = pEarlier ? pEarlier : record.Find(nLaterSizeCode);
    return pSize ? record.BytesBehind(*pSize, g_nData) : CBytes();
}

} // namespace

std::unique_ptr<AcDbEntity> ReadDxfProxy(const CDxfRecord& record, CDxfDrawing& drawing) {
    const CProxyOrigin* const pClass = drawing.Class(record.Whole(91));
    auto pProxy = std::make_unique<AcDbProxyEntity>();
    pProxy->SetOrigin(pClass ? *pClass : CProxyOrigin{L"AcDbProxyEntity", L"ACAD_PROXY_ENTITY", L""});
    return pProxy;
}

void GiveDxfPicture(const CDxfRecord& record, AcDbProxyEntity& proxy) {
    const CBytes bytes = DataOf(record, 92, 160);
    const CDrawingText text = record.m_pEncoding->WithPlainCarets();
    const auto decode = [&text](std::string_view narrow) { return text.Decode(narrow); };
    proxy.SetPicture(std::make_shared<const CDisplayList>(ReadProxyGraphics(bytes, proxy, decode)));
}
