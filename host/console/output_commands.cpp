#include "host/console/dump.h"
#include "host/console/host_commands.h"
#include "host/console/output_file.h"
#include "host/console/plot_drawing.h"
#include "host/console/progress.h"
#include "platform/windows/code_page.h"

#include <algorithm>
#include <array>
#include <filesystem>

namespace {

bool IsPlotFormat(const std::string& strPath) {
    std::string ending = std::filesystem::path(strPath).extension().string();
    std::transform(ending.begin(), ending.end(), ending.begin(),
                   [](unsigned char c) { return std::tolower(c); });
    constexpr std::array<const char*, 3> endings = {".pdf", ".svg", ".png"};
    return std::find(endings.begin(), endings.end(), ending) != endings.end();
}

} // namespace

void CommandDump(CHost& host) {
    const std::string path = host.m_input.FileToSave("File: ", ".json");
    host.m_input.End();
    WriteOutputFile(path, DumpDrawing(host.Drawing(), CDrawings::NameOf(host.Document())));
}

void CommandPlot(CHost& host) {
    const std::string path = host.m_input.FileToSave("File: ", ".pdf .svg .png");
    host.m_input.End();
    if (!IsPlotFormat(path)) throw CRunFailure(EXIT_NO_SUCH_ANSWER, "no .pdf, .svg or .png: " + path);
    bool bGoesOn = true;
    const auto goesOn = [&](std::size_t nDone, std::size_t nPages) {
        return bGoesOn = ShowProgress("Plotting", nDone, nPages);
    };
    std::string reason;
    const bool bPlotted = PlotDrawing(host.Drawing(), host.m_fonts, path, goesOn, &reason);
    if (!bGoesOn) throw CCommandCancelled{};
    if (!bPlotted) throw CRunFailure(EXIT_FILE_FAILED, ToUtf8(reason));
}
