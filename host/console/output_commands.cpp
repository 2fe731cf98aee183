#include "host/console/dump.h"
#include "host/console/host_commands.h"
#include "host/console/output_file.h"
#include "host/console/plot_drawing.h"
#include "host/console/progress.h"
#include "platform/windows/code_page.h"

void CommandDump(CHost& host) {
    const std::string path = host.m_input.FileToSave("File: ", ".json");
    host.m_input.End();
    WriteOutputFile(path, DumpDrawing(host.Drawing(), CDrawings::NameOf(host.Document())));
}

void CommandPlot(CHost& host) {
    const std::string path = host.m_input.FileToSave("File: ", ".pdf .svg .png");
    host.m_input.End();
    if (!IsPlotFile(path)) RefuseAnswer("no .pdf, .svg or .png: " + path);
    bool bGoesOn = true;
    const auto goesOn = [&](std::size_t nDone, std::size_t nPages) {
        return bGoesOn = ShowProgress("Plotting", nDone, nPages);
    };
    std::string reason;
    const bool bPlotted = PlotDrawing(host.Drawing(), host.m_fonts, path, goesOn, &reason);
    if (!bGoesOn) throw CCommandCancelled{};
    if (!bPlotted) throw CRunFailure(EXIT_FILE_FAILED, ToUtf8(reason));
}
