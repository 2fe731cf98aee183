#include "host/files/dxf_read_proxies.h"

#include "host/files/dwg_own_part.h"
#include "host/files/proxy_graphics.h"
#include "platform/windows/code_page.h"

#include <algorithm>
#include <array>

namespace {

constexpr int g_nData = 310, g_nSubclass = 100;

/// A kind of reference: its group, and what it is in a record and in a drawing file.
struct CReferenceKind {
    int m_nGroup;
    CFiledId::CKind m_kind;
    std::uint8_t m_nCode;
};

constexpr std::array g_arKinds = {
    CReferenceKind{330, CFiledId::CKind::SoftPointer, CDwgHandle::s_nSoftPointer},
    CReferenceKind{340, CFiledId::CKind::HardPointer, CDwgHandle::s_nHardPointer},
    CReferenceKind{350, CFiledId::CKind::SoftOwnership, CDwgHandle::s_nSoftOwner},
    CReferenceKind{360, CFiledId::CKind::HardOwnership, CDwgHandle::s_nHardOwner},
};

/// The binary data behind the group that tells how many there are, up to R2007 or later.
CBytes DataOf(const CDxfRecord& record, int nSizeCode, int nLaterSizeCode) {
    const CDxfTag* const pEarlier = record.Find(nSizeCode);
    const CDxfTag* const pSize = pEarlier ? pEarlier : record.Find(nLaterSizeCode);
    return pSize ? record.BytesBehind(*pSize, g_nData) : CBytes();
}

/// The references that stand with the class's own groups, and how the file has them.
void TakeReferences(const CDxfRecord& record, const AcDbDatabase& database, CDbRecord& data,
                    CDwgOwnPart& part) {
    bool bOwn = false; // the owner stands before
    for (const CDxfTag& tag : record.m_arTags) {
        bOwn = bOwn || (tag.m_nCode == g_nSubclass && tag.Text() == "AcDbProxyEntity");
        const auto* const pKind =
            std::find_if(g_arKinds.begin(), g_arKinds.end(),
                         [&tag](const CReferenceKind& kind) { return kind.m_nGroup == tag.m_nCode; });
        if (!bOwn || pKind == g_arKinds.end()) continue;
        AcDbObjectId id; // null for what the drawing has not
        database.getAcDbObjectId(id, DxfHandle(tag));
        data.m_arIds.push_back({pKind->m_kind, id});
        part.m_arHandles.push_back({pKind->m_nCode, 0});
    }
}

} // namespace

std::unique_ptr<AcDbEntity> ReadDxfProxy(const CDxfRecord& record, CDxfDrawing& drawing) {
    const CProxyOrigin* const pClass = drawing.Class(record.Whole(91));
    auto pProxy = std::make_unique<AcDbProxyEntity>();
    pProxy->SetOrigin(pClass ? *pClass : CProxyOrigin{L"AcDbProxyEntity", L"ACAD_PROXY_ENTITY", L""});
    return pProxy;
}

void GiveDxfData(const CDxfRecord& record, CDxfDrawing& drawing, AcDbProxyEntity& proxy) {
    static const auto s_pNoFile = std::make_shared<const CDwgOrigin>(CDwgFile());
    if (record.HasFlag(70, 1)) return drawing.Lose("data of " + GbkFromWide(proxy.originalDxfName()));
    const auto pPart = std::make_shared<CDwgOwnPart>();
    pPart->m_pOrigin = s_pNoFile;
    pPart->m_data.m_arBytes = DataOf(record, 93, 161);
    const std::int64_t nBits = std::max<std::int64_t>(record.Whole(93, record.Whole(161)), 0);
    pPart->m_data.m_nCount = std::min(static_cast<std::size_t>(nBits), pPart->m_data.m_arBytes.size() * 8);
    CDbRecord data;
    TakeReferences(record, drawing.Database(), data, *pPart);
    data.m_pForeign = pPart;
    proxy.SetClassPart(std::move(data));
}

void GiveDxfPicture(const CDxfRecord& record, AcDbProxyEntity& proxy) {
    const CBytes bytes = DataOf(record, 92, 160);
    const CDrawingText text = record.m_pEncoding->WithPlainCarets();
    const auto decode = [&text](std::string_view narrow) { return text.Decode(narrow); };
    proxy.SetPicture(std::make_shared<const CDisplayList>(ReadProxyGraphics(bytes, proxy, decode)));
}
