#include "host/console/dump.h"
#include "host/console/host_commands.h"
#include "host/console/plot_pages.h"
#include "host/console/whole_file.h"
#include "platform/windows/code_page.h"

#include <filesystem>

void CommandDump(CHost& host) {
    const std::string path = host.m_input.Text("File: ");
    host.m_input.End();
    std::string reason;
    if (!WriteWholeFile(path, DumpDrawing(host.Drawing(), host.m_drawings.Name()), &reason))
        throw CRunFailure(EXIT_FILE_FAILED, path + " cannot be written: " + reason);
}

void CommandPlot(CHost& host) {
    const std::string path = host.m_input.Text("File: ");
    host.m_input.End();
    std::string reason;
    if (!PlotDrawing(host.Drawing(), host.m_fonts, path, &reason))
        throw CRunFailure(EXIT_FILE_FAILED, path + " cannot be plotted: " + ToUtf8(reason));
}
