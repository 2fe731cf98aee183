#include "host/console/host_commands.h"
#include "host/console/texts.h"
#include "platform/acad/command_stack.h"

void CommandLoadModule(CHost& host) {
    const std::string path = host.m_input.FileToOpen("Module: ", ".so");
    host.m_input.End();
    std::string reason;
    if (host.m_modules.Load(path, &reason)) return;
    // The one failure after which a run goes on.
    host.m_bModuleFailed = true;
    host.m_answers.Report("module " + path + " did not load: " + reason);
}

void CommandUnloadModule(CHost& host) {
    const std::string path = host.m_input.FileToOpen("Module: ", ".so");
    host.m_input.End();
    std::string reason;
    if (!host.m_modules.Unload(path, &reason)) RefuseAnswer("module " + path + " did not unload: " + reason);
}

void CommandCommands(CHost& host) {
    host.m_input.End();
    for (const CRegisteredCommand& command : acedRegCmds->Commands())
        host.Print(Utf8FromWide(command.m_strGroup) + " " + Utf8FromWide(command.m_strGlobalName) + " " +
                   std::to_string(command.m_nFlags));
}
