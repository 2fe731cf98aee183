#include "platform/acad/command_stack.h"

#include "platform/acad/rx_class.h"
#include "platform/acad/wide_names.h"

#include <algorithm>

ACRX_DEFINE_DESC(AcEdCommandStack, AcRxObject)

Acad::ErrorStatus AcEdCommandStack::addCommand(const ACHAR* group, const ACHAR* globalName,
                                               const ACHAR* localName, Adesk::Int32 flags,
                                               AcRxFunctionPtr pFunction) {
    if (!group || !*group || !globalName || !*globalName || !pFunction) return Acad::eInvalidInput;
    const std::wstring strLocal = localName && *localName ? localName : globalName;
    for (const CRegisteredCommand& known : m_arCommands) {
        if (!SameName(known.m_strGroup, group)) continue;
        if (SameName(known.m_strGlobalName, globalName) || SameName(known.m_strLocalName, strLocal))
            return Acad::eDuplicateKey;
    }
    m_arCommands.push_back({group, globalName, strLocal, flags, pFunction});
    return Acad::eOk;
}

Acad::ErrorStatus AcEdCommandStack::removeGroup(const ACHAR* group) {
    if (!group || !*group) return Acad::eInvalidInput;
    const auto removed = std::erase_if(
        m_arCommands, [&](const CRegisteredCommand& known) { return SameName(known.m_strGroup, group); });
    return removed ? Acad::eOk : Acad::eKeyNotFound;
}

void AcEdCommandStack::RemoveCodeIn(const std::function<bool(const void*)>& isInside) {
    std::erase_if(m_arCommands, [&](const CRegisteredCommand& known) {
        return isInside(reinterpret_cast<const void*>(known.m_pFunction));
    });
}

const CRegisteredCommand* AcEdCommandStack::lookup(const ACHAR* name) const {
    if (!name || !*name) return nullptr;
    const auto found =
        std::find_if(m_arCommands.begin(), m_arCommands.end(), [&](const CRegisteredCommand& known) {
            return SameName(known.m_strGlobalName, name) || SameName(known.m_strLocalName, name);
        });
    return found == m_arCommands.end() ? nullptr : &*found;
}
