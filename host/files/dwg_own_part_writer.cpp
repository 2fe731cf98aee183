#include "host/files/dwg_own_part_writer.h"

#include "host/files/dwg_error.h"
#include "host/files/dwg_own_part.h"
#include "host/files/dwg_value_writer.h"
#include "platform/acad/db_proxy.h"

#include <algorithm>
#include <limits>

namespace {

/// The reference of an own part at a place as it stands in the file that is written.
CDwgHandle HandleAt(const CDwgOwnPart& part, const CDbRecord& record, std::size_t nAt,
                    const CDwgWriting& writing) {
    CDwgHandle handle = part.m_arHandles[nAt];
    const AcDbObjectId id = record.m_arIds[record.m_nForeignIds + nAt].m_id;
    if (!id.isNull()) {
        handle.m_nValue = writing.m_handles.Of(id);
    } else if (part.m_pOrigin.get() != writing.m_pOrigin) {
        handle.m_nValue = 0; // it means something in another file
    }
    return handle;
}

void WriteForeign(CDwgRecordWriter& io, const CDwgOwnPart& part, const CDbRecord& record,
                  const CDwgWriting& writing) {
    io.RawBits(part.m_data.m_arBytes, part.m_data.m_nCount);
    for (std::size_t i = part.FirstOwn(); i < part.m_arHandles.size(); ++i)
        io.Handle(HandleAt(part, record, i, writing));
}

/// A number behind those of the file's classes.
std::uint16_t NextNumber(const std::vector<CDwgClass>& classes) {
    const auto last = std::ranges::max_element(classes, {}, &CDwgClass::m_nNumber);
    if (last == classes.end()) return g_nDwgFirstClass;
    if (last->m_nNumber == std::numeric_limits<std::uint16_t>::max())
        throw CDwgError("Classes: the last number is taken, another class has no room.");
    return static_cast<std::uint16_t>(last->m_nNumber + 1);
}

/// The number of a class in the file.
std::uint16_t NumberOf(const CProxyOrigin& original, bool bKnown, bool bEntity, const CDwgWriting& writing) {
    const std::string strName = writing.m_text.Encode(original.m_strClassName);
    auto& classes = writing.m_classes;
    const auto found = std::ranges::find(classes, strName, &CDwgClass::m_strClassName);
    if (found != classes.end()) {
        found->m_bWasProxy = found->m_bWasProxy && !bKnown;
        return found->m_nNumber;
    }
    CDwgClass entry;
    entry.m_nNumber = NextNumber(classes);
    entry.m_nProxyFlags = static_cast<std::uint16_t>(original.m_nProxyFlags);
    entry.m_strAppName = writing.m_text.Encode(original.m_strAppName);
    entry.m_strClassName = strName;
    entry.m_strDxfName = writing.m_text.Encode(original.m_strDxfName);
    entry.m_bWasProxy = !bKnown;
    entry.m_bEntities = bEntity;
    classes.push_back(entry);
    return entry.m_nNumber;
}

std::uint16_t TypeOf(const AcDbObject& object, const CDwgOwnPart* pPart, const CDwgWriting& writing) {
    const bool bSameFile = pPart && pPart->m_pOrigin.get() == writing.m_pOrigin;
    if (pPart && (bSameFile || pPart->IsOfFixedType())) return pPart->m_nType;
    const bool bEntity = object.isKindOf(AcDbEntity::desc());
    if (const auto* const pProxy = dynamic_cast<const CProxy*>(&object))
        return NumberOf(pProxy->Origin(), false, bEntity, writing);
    const AcRxClass& known = *object.isA();
    return NumberOf({known.name(), known.dxfName(), known.appName(), known.proxyFlags()}, true, bEntity,
                    writing);
}

} // namespace

CDwgNeighbours DwgNeighboursOf(const AcDbEntity& entity, const CDwgWriting& writing) {
    const auto* const pProxy = dynamic_cast<const CProxy*>(&entity);
    const CDwgOwnPart* const pPart = pProxy ? DwgOwnPartOf(pProxy->ClassPart()) : nullptr;
    if (!pPart || !pPart->m_bNeighbours) return {};
    return {HandleAt(*pPart, pProxy->ClassPart(), 0, writing),
            HandleAt(*pPart, pProxy->ClassPart(), 1, writing)};
}

std::uint16_t WriteDwgOwnPart(CDwgRecordWriter& io, const AcDbObject& object, const CDwgWriting& writing) {
    const std::optional<CDbRecord> record = ClassPartOf(object);
    if (!record)
        RefuseDwgObject(writing.m_handles.Of(object.objectId()), "it cannot be written into a file.");
    const CDwgOwnPart* const pPart = DwgOwnPartOf(*record);
    WriteDwgValues(io, *record, writing.m_text, [&](AcDbObjectId id) { return writing.m_handles.Of(id); });
    if (pPart) WriteForeign(io, *pPart, *record, writing);
    return TypeOf(object, pPart, writing);
}
