#pragma once
// The service "ACAD_REGISTERED_COMMANDS": commands by group.

#include "platform/acad/adesk.h"
#include "platform/acad/error_status.h"
#include "platform/acad/rx_object.h"
#include "platform/acad/rx_registry.h"

#include <functional>
#include <string>
#include <vector>

using AcRxFunctionPtr = void (*)();

inline constexpr Adesk::Int32 ACRX_CMD_MODAL = 0;
inline constexpr Adesk::Int32 ACRX_CMD_TRANSPARENT = 1;

/// One registered command.
struct CRegisteredCommand {
    std::wstring m_strGroup, m_strGlobalName, m_strLocalName;
    Adesk::Int32 m_nFlags = 0;
    AcRxFunctionPtr m_pFunction = nullptr;
};

class AcEdCommandStack : public AcRxObject {
public:
    static AcRxClass* desc();
    AcRxClass* isA() const override { return AcEdCommandStack::desc(); }

    /// Names compare without case; a name that the group has already is refused (eDuplicateKey).
    Acad::ErrorStatus addCommand(const ACHAR* group, const ACHAR* globalName, const ACHAR* localName,
                                 Adesk::Int32 flags, AcRxFunctionPtr pFunction);
    Acad::ErrorStatus removeGroup(const ACHAR* group);
    /// The command of that global or local name, in any case; null if none. Valid until the next change.
    const CRegisteredCommand* lookup(const ACHAR* name) const;
    /// Removes the commands whose function is code that goes.
    void RemoveCodeIn(const std::function<bool(const void*)>& isInside);
    const std::vector<CRegisteredCommand>& Commands() const { return m_arCommands; } ///< in order of adding

private:
    std::vector<CRegisteredCommand> m_arCommands;
};

#define acedRegCmds (static_cast<AcEdCommandStack*>(acrxSysRegistry()->at(ACRX_COMMAND_DOCK)))
