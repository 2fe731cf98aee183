#include "host/files/dwg_origin.h"

#include "host/files/dwg_types.h"

#include <algorithm>

CDwgOrigin::CDwgOrigin(const CDwgFile& file)
    : m_file{file.m_identity, file.m_nSaves, file.m_arPreview, file.m_variables, file.m_arClasses, {},
             file.m_bMetric}
    , m_text(CodePageOfDwg(file.m_identity.m_nCodePage)) {
    for (const auto& [nHandle, content] : file.m_contents)
        m_records.emplace_hint(m_records.end(), nHandle, ReadDwgRecord(content, nHandle));
}

const CDwgRecord* CDwgOrigin::Find(std::uint64_t nHandle) const {
    const auto found = m_records.find(nHandle);
    return found == m_records.end() ? nullptr : &found->second;
}

const CDwgClass* CDwgOrigin::FindClass(std::uint16_t nType) const {
    const auto& classes = m_file.m_arClasses;
    const auto found = std::ranges::find(classes, nType, &CDwgClass::m_nNumber);
    return found == classes.end() ? nullptr : &*found;
}

bool CDwgOrigin::IsKnown(std::uint16_t nType) const {
    return FindDwgType(nType) || FindClass(nType);
}

bool CDwgOrigin::IsEntity(std::uint16_t nType) const {
    if (const CDwgType* const pType = FindDwgType(nType)) return pType->m_bEntity;
    const CDwgClass* const pClass = FindClass(nType);
    return pClass && pClass->m_bEntities;
}
