#pragma once

#include "host/console/host.h"

#include <span>
#include <string_view>

/// A command of the host itself. Its function takes all its answers and the end of the line before it acts;
/// it throws CRunFailure or CCommandCancelled.
struct CHostCommand {
    const char* m_pName; ///< upper case
    void (*m_pFunction)(CHost& host);
    const char* m_pHelp; ///< its answers and what it does, for --help
    /// Not to be run from within another command, since that one's drawing or code may go.
    bool m_bAlone = false;
};

std::span<const CHostCommand> HostCommands();
/// The command of that upper-case name; null if none.
const CHostCommand* FindHostCommand(std::string_view strName);

// document_commands.cpp
void CommandNew(CHost& host);
void CommandOpen(CHost& host);
void CommandSaveAs(CHost& host);
void CommandQSave(CHost& host);
void CommandClose(CHost& host);
void CommandQuit(CHost& host);
void CommandDocuments(CHost& host);
void CommandActivate(CHost& host);
// drawing_commands.cpp
void CommandErase(CHost& host);
void CommandList(CHost& host);
// making_commands.cpp
void CommandLine(CHost& host);
void CommandPline(CHost& host);
void CommandArc(CHost& host);
void CommandText(CHost& host);
void CommandInsert(CHost& host);
// add_entity_command.cpp
void CommandAddEntity(CHost& host);
// editing_commands.cpp
void CommandMove(CHost& host);
void CommandCopy(CHost& host);
void CommandRotate(CHost& host);
void CommandScale(CHost& host);
void CommandMirror(CHost& host);
void CommandExplode(CHost& host);
void CommandUndo(CHost& host);
void CommandRedo(CHost& host);
// grip_commands.cpp
void CommandGrip(CHost& host);
void CommandDrag(CHost& host);
// view_commands.cpp
void CommandZoom(CHost& host);
void CommandRegen(CHost& host);
void CommandSetVar(CHost& host);
void CommandMeasure(CHost& host);
// module_commands.cpp
void CommandLoadModule(CHost& host);
void CommandUnloadModule(CHost& host);
void CommandCommands(CHost& host);
// save_charts_command.cpp
void CommandSaveCharts(CHost& host);
// output_commands.cpp
void CommandDump(CHost& host);
void CommandPlot(CHost& host);
