#include "host/console/host_commands.h"

#include <algorithm>
#include <array>

namespace {

constexpr std::array g_arCommands = {
    CHostCommand{"NEW", CommandNew, "begins a new drawing; while SDI is not 0, in place of the current one",
                 true},
    CHostCommand{"QNEW", CommandNew, "the same", true},
    CHostCommand{"OPEN", CommandOpen,
                 "path: opens a DWG or DXF file; while SDI is not 0, in place of the current drawing", true},
    CHostCommand{"QSAVE", CommandQSave, "saves the drawing to its file; one without a file asks for a path"},
    CHostCommand{
        "SAVEAS", CommandSaveAs,
        "path [exploded]: saves the drawing as .dwg or .dxf, in a .dxf custom entities as their parts"},
    CHostCommand{"CLOSE", CommandClose, "closes the current drawing", true},
    CHostCommand{"QUIT", CommandQuit, "ends the run"},
    CHostCommand{"DOCUMENTS", CommandDocuments,
                 "lists the drawings: number, * for the current one, name, (changed)"},
    CHostCommand{"ACTIVATE", CommandActivate, "number: makes a drawing the current one", true},
    CHostCommand{"ERASE", CommandErase, "selection: erases the entities"},
    CHostCommand{"LIST", CommandList, "entity: tells what it is"},
    CHostCommand{"LINE", CommandLine, "point point: makes a line"},
    CHostCommand{"PLINE", CommandPline, "points and end: makes a polyline"},
    CHostCommand{"ARC", CommandArc, "center radius start end: makes an arc, angles in degrees"},
    CHostCommand{"TEXT", CommandText, "point height text: makes a text"},
    CHostCommand{"ADDENTITY", CommandAddEntity, "path: makes an entity of a registered class from JSON"},
    CHostCommand{"INSERT", CommandInsert, "block point: inserts a block"},
    CHostCommand{"MOVE", CommandMove, "selection base to: moves the entities"},
    CHostCommand{"COPY", CommandCopy, "selection base to: makes moved copies"},
    CHostCommand{"ROTATE", CommandRotate, "selection base degrees: turns the entities"},
    CHostCommand{"SCALE", CommandScale, "selection base factor: scales the entities"},
    CHostCommand{"MIRROR", CommandMirror, "selection point point keep|drop: mirrors the entities"},
    CHostCommand{"EXPLODE", CommandExplode, "selection: replaces the entities by their parts"},
    CHostCommand{"GRIP", CommandGrip, "entity index[,index...] point: moves grips, counted from 0"},
    CHostCommand{"DRAG", CommandDrag,
                 "entity index[,index...] point path: writes what is drawn while they are dragged"},
    CHostCommand{"UNDO", CommandUndo, "n: undoes the last n commands that changed the drawing"},
    CHostCommand{"REDO", CommandRedo, "n: does the last n commands that were undone again"},
    CHostCommand{"REGEN", CommandRegen, "draws all entities anew"},
    CHostCommand{"ZOOM", CommandZoom, "e|a: shows all that is drawn"},
    CHostCommand{"SETVAR", CommandSetVar, "name [value]: shows or sets a system variable"},
    CHostCommand{"MEASURE", CommandMeasure, "style height text: prints the width of the text's extents"},
    CHostCommand{"LOADMODULE", CommandLoadModule, "path: loads a module"},
    CHostCommand{"UNLOADMODULE", CommandUnloadModule, "path: unloads a module", true},
    CHostCommand{"COMMANDS", CommandCommands, "lists the commands of modules: group, name, flags"},
    CHostCommand{"DUMP", CommandDump, "path: writes the drawing as JSON"},
    CHostCommand{"PLOT", CommandPlot, "path: plots to .pdf, .svg or .png"},
    CHostCommand{"SAVECHARTS", CommandSaveCharts,
                 "saves a drawing of charts into the project's output tree, under its charts' name"},
};

} // namespace

std::span<const CHostCommand> HostCommands() {
    return g_arCommands;
}

const CHostCommand* FindHostCommand(std::string_view strName) {
    const auto* const found =
        std::find_if(g_arCommands.begin(), g_arCommands.end(),
                     [&](const CHostCommand& command) { return strName == command.m_pName; });
    return found == g_arCommands.end() ? nullptr : found;
}
