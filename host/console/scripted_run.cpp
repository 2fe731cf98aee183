#include "host/console/scripted_run.h"

#include "host/console/command_runner.h"
#include "host/console/dialog_presenter.h"
#include "host/console/message_boxes.h"
#include "host/console/script_answers.h"
#include "host/console/session.h"
#include "host/plot/headless.h"
#include "platform/windows/message_box.h"

#include <cerrno>
#include <cstring>
#include <fstream>
#include <iostream>

namespace {

constexpr const char* g_pStandardInput = "-";

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

// What is told at the end, and the status that goes with it.
int Finish(const CHost& host) {
    if (const std::optional<CRunFault>& fault = host.m_answers.Fault()) {
        host.m_answers.Report(fault->m_strWhat);
        return fault->m_status;
    }
    if (!host.m_bQuit) // QUIT discards them knowingly
        for (const AcApDocument* const pDocument : host.m_drawings.ChangedDocuments())
            std::cerr << "tvcad: " << CDrawings::NameOf(*pDocument) << " was changed and is not saved"
                      << std::endl;
    return host.m_bModuleFailed ? EXIT_FILE_FAILED : EXIT_DONE;
}

int RunToEnd(CSession& session, const CProgramOptions& options, CTextOutput& output) {
    if (const std::optional<std::string> reason = session.LoadModule(options.m_strModule))
        std::cerr << "tvcad: " << *reason << std::endl;
    if (const std::optional<std::string> reason = session.OpenDrawing(options.m_strDrawing)) {
        std::cerr << "tvcad: " << *reason << std::endl;
        return EXIT_FILE_FAILED;
    }
    RunCommands(session.Host());
    output.BeginLine();
    output.Flush();
    return Finish(session.Host());
}

int RunFrom(std::istream& input, const CProgramOptions& options, const std::string& strRootGbk) {
    CTextOutput output;
    CScriptAnswers answers(options.m_strScript, input, output, options.m_strScript == g_pStandardInput,
                           options.m_bQuiet);
    StartHeadlessQt();
    int nStatus = EXIT_DONE;
    {
        const CRegisteredDialogs dialogs(answers);
        CSession session(answers, strRootGbk);
        nStatus = RunToEnd(session, options, output);
    }
    output.BeginLine(); // the end of drawings and modules may print
    output.Flush();
    return nStatus;
}

} // namespace

int RunScript(const CProgramOptions& options, const std::string& strRootGbk) {
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
