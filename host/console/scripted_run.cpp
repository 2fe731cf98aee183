#include "host/console/scripted_run.h"

#include "host/console/command_runner.h"
#include "host/console/dialog_presenter.h"
#include "host/console/drawing_session.h"
#include "host/console/message_boxes.h"
#include "host/console/script_documents.h"
#include "host/console/script_editor.h"
#include "host/console/texts.h"
#include "host/files/drawing_failure.h"
#include "host/files/registered_drawing_files.h"
#include "host/plot/fonts.h"
#include "host/plot/headless.h"
#include "platform/ado/report.h"
#include "platform/windows/code_page.h"
#include "platform/windows/installation_root.h"
#include "platform/windows/message_box.h"

#include <cerrno>
#include <cstring>
#include <fstream>
#include <iostream>

namespace {

constexpr const char* g_pStandardInput = "-";
constexpr const char* g_pNoModule = "none";

/// The fonts that measure and paint, registered as the text metrics while they live.
class CRegisteredFonts {
public:
    explicit CRegisteredFonts(CTextOutput& output)
        : m_fonts([&output](const std::string& strText) { output.WriteLine(ToUtf8(strText)); }) {
        SetTextMetrics(&m_fonts);
    }
    ~CRegisteredFonts() { SetTextMetrics(nullptr); }
    CRegisteredFonts(const CRegisteredFonts&) = delete;
    CRegisteredFonts& operator=(const CRegisteredFonts&) = delete;
    CFonts& Fonts() { return m_fonts; }

private:
    CFonts m_fonts;
};

/// Dialogs and message boxes, answered from the script while they live.
class CRegisteredDialogs {
public:
    explicit CRegisteredDialogs(CAnswers& answers)
        : m_presenter(answers) {
        SetDialogPresenter(&m_presenter);
        SetMessageBoxHost(ConsoleMessageBoxes(answers));
    }
    ~CRegisteredDialogs() {
        SetDialogPresenter(nullptr);
        SetMessageBoxHost({});
    }
    CRegisteredDialogs(const CRegisteredDialogs&) = delete;
    CRegisteredDialogs& operator=(const CRegisteredDialogs&) = delete;

private:
    CConsoleDialogPresenter m_presenter;
};

/// The database layer's lines, such as a store given up, go to the text window while this lives.
class CRegisteredReports {
public:
    explicit CRegisteredReports(CTextOutput& output) {
        SetReportSink([&output](const std::string& strLine) { output.WriteLine(ToUtf8(strLine)); });
    }
    ~CRegisteredReports() { SetReportSink({}); }
    CRegisteredReports(const CRegisteredReports&) = delete;
    CRegisteredReports& operator=(const CRegisteredReports&) = delete;
};

void LoadAtStart(CHost& host, const std::string& strModule) {
    if (strModule == g_pNoModule) return;
    std::string reason;
    const bool bDefault = strModule.empty();
    if (bDefault ? host.m_modules.LoadDefault(&reason) : host.m_modules.Load(strModule, &reason)) return;
    host.m_bModuleFailed = true;
    std::cerr << "tvcad: module " << (bDefault ? g_szDefaultModule : strModule) << " did not load: " << reason
              << std::endl;
}

/// Opens the drawing that the program was called with, if any. False, and the reason told, when it can't be.
bool OpenAtStart(CHost& host, const std::string& strDrawing) {
    if (strDrawing.empty()) return true;
    std::string strReason;
    try {
        OpenFirstDrawing(host, FindDrawingFile(strDrawing));
        return true;
    } catch (const CDrawingFailure& failure) {
        strReason = failure.what();
    } catch (const CRunFailure& failure) { // a name that the code page lacks
        strReason = failure.what();
    }
    std::cerr << "tvcad: " << strDrawing << " cannot be opened: " << strReason << std::endl;
    return false;
}

// What is told at the end, and the status that goes with it.
int Finish(const CHost& host) {
    if (const std::optional<CRunFault>& fault = host.m_answers.Fault()) {
        host.m_answers.Report(fault->m_nLine, fault->m_strWhat);
        return fault->m_status;
    }
    if (!host.m_bQuit) // QUIT discards them knowingly
        for (const AcApDocument* const pDocument : host.m_drawings.ChangedDocuments())
            std::cerr << "tvcad: " << CDrawings::NameOf(*pDocument) << " was changed and is not saved"
                      << std::endl;
    return host.m_bModuleFailed ? EXIT_FILE_FAILED : EXIT_DONE;
}

int RunToEnd(CHost& host, const CProgramOptions& options, CTextOutput& output) {
    LoadAtStart(host, options.m_strModule);
    if (!OpenAtStart(host, options.m_strDrawing)) return EXIT_FILE_FAILED;
    RunCommands(host);
    output.BeginLine();
    output.Flush();
    return Finish(host);
}

int RunFrom(std::istream& input, const CProgramOptions& options, const std::string& strRootGbk) {
    CTextOutput output;
    CScriptAnswers answers(options.m_strScript, input, output, options.m_strScript == g_pStandardInput,
                           options.m_bQuiet);
    StartHeadlessQt();
    CRegisteredFonts fonts(output);
    const CRegisteredDialogs dialogs(answers);
    const CRegisteredReports reports(output);
    const CRegisteredDrawingFiles files;
    CModules modules;
    int nStatus = EXIT_DONE;
    {
        CDrawings drawings;
        CCommandInput commandInput(answers);
        CHost host{answers, commandInput, drawings, modules, fonts.Fonts()};
        const CScriptEditor editor(output, host, strRootGbk);
        const CScriptDocuments documents(host);
        nStatus = RunToEnd(host, options, output);
        EndSession(host);
    }
    modules.UnloadAll(); // after the drawings: their entities' code is in the modules
    output.BeginLine();
    output.Flush();
    return nStatus;
}

} // namespace

int RunScript(const CProgramOptions& options) {
    SetInstallationRoot(options.m_strRoot);
    std::string strRootGbk, refused;
    if (!Utf8ToGbk(InstallationRoot(), &strRootGbk, &refused)) {
        std::cerr << "tvcad: the system code page lacks the character " << refused << " of the root "
                  << InstallationRoot() << std::endl;
        return EXIT_BAD_USAGE;
    }
    if (options.m_strScript == g_pStandardInput) return RunFrom(std::cin, options, strRootGbk);
    std::ifstream script(options.m_strScript, std::ios::binary);
    // A folder opens, but gives nothing.
    if (!script || (script.peek() == std::ifstream::traits_type::eof() && !script.eof())) {
        std::cerr << "tvcad: " << options.m_strScript << " cannot be read: " << std::strerror(errno)
                  << std::endl;
        return EXIT_FILE_FAILED;
    }
    script.clear();
    return RunFrom(script, options, strRootGbk);
}
