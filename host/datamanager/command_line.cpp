#include "host/datamanager/command_line.h"

#include <CLI/CLI.hpp>

#include <cstdio>
#include <string>
#include <vector>

#include "host/datamanager/current_failure.h"
#include "host/datamanager/failure.h"
#include "host/datamanager/frame_choice.h"
#include "host/datamanager/import.h"
#include "host/datamanager/installation.h"
#include "host/datamanager/listing.h"
#include "host/datamanager/new_installation.h"
#include "host/datamanager/new_project.h"
#include "host/datamanager/project_database.h"
#include "host/datamanager/resident_calls.h"
#include "host/datamanager/results.h"
#include "host/datamanager/terminal_text.h"
#include "platform/ado/report.h"
#include "platform/windows/code_page.h"
#include "platform/windows/installation_root.h"
#include "platform/windows/runtime_dir.h"

namespace {

/// What the command line gave, UTF-8.
struct COptions {
    std::string m_strRoot;
    std::string m_strNumber;
    std::string m_strName;
    std::string m_strConnect;
    std::string m_strTemplate;
    std::int16_t m_nStandard = 0;
    std::vector<std::string> m_arFiles;
    bool m_bReplace = false;
    bool m_bForeground = false;
    bool m_bJson = false;
    bool m_bCsv = false;
};

CInstallation OpenInstallation(const COptions& options) {
    SetInstallationRoot(options.m_strRoot);
    return CInstallation();
}

ExitStatus Init(const COptions& options) {
    MakeInstallation(options.m_strRoot);
    return ExitStatus::Done;
}

ExitStatus New(const COptions& options) {
    CProjectWish wish;
    wish.m_strGCBH = FromTerminal(options.m_strNumber);
    wish.m_strGCMC = FromTerminal(options.m_strName);
    wish.m_nGCBZ = options.m_nStandard;
    wish.m_strConnect = FromTerminal(options.m_strConnect);
    Print(std::to_string(MakeProject(OpenInstallation(options), wish)) + "\n");
    return ExitStatus::Done;
}

ExitStatus Import(const COptions& options) {
    const CInstallation installation = OpenInstallation(options);
    const CProject project = FindProject(installation, FromTerminal(options.m_strNumber));
    CImportReport report([](const CImportRemark& remark) {
        const std::string strLine = RemarkLine(remark) + "\n"; // may hold a zero byte of the file
        std::fwrite(strLine.data(), 1, strLine.size(), stderr);
    });
    const CImportCounts counts = AtProjectDatabase(installation, project, [&](CDbConnection& database) {
        return ImportFiles(database, project.m_nGCSY, options.m_arFiles, options.m_bReplace, &report);
    });
    if (report.Refusals() > 0) return ExitStatus::Refused;
    Print(CountsText(counts));
    return ExitStatus::Done;
}

ExitStatus Open(const COptions& options) {
    const CInstallation installation = OpenInstallation(options);
    const CProject project = FindProject(installation, FromTerminal(options.m_strNumber));
    OpenProject(installation, project, options.m_bForeground);
    return ExitStatus::Done;
}

ExitStatus Close(const COptions& options) {
    CloseProject(OpenInstallation(options));
    return ExitStatus::Done;
}

ExitStatus List(const COptions& options) {
    const std::vector<CListedProject> arProjects = ListProjects(OpenInstallation(options));
    Print(options.m_bJson ? ListJson(arProjects) : ListText(arProjects));
    auto status = ExitStatus::Done;
    for (const CListedProject& project : arProjects) {
        if (project.m_strFault.empty()) continue;
        std::fprintf(stderr, "tvdata: %s: %s\n", ToUtf8(project.m_project.m_strGCBH).c_str(),
                     project.m_strFault.c_str());
        status = ExitStatus::NoAccess;
    }
    return status;
}

ExitStatus Template(const COptions& options) {
    ChooseFrame(OpenInstallation(options), FromTerminal(options.m_strTemplate));
    return ExitStatus::Done;
}

ExitStatus Results(const COptions& options) {
    const CInstallation installation = OpenInstallation(options);
    const CProject project = FindProject(installation, FromTerminal(options.m_strNumber));
    const auto form = options.m_bCsv    ? ResultForm::Csv
                      : options.m_bJson ? ResultForm::Json
                                        : ResultForm::Aligned;
    const auto arRows = AtProjectDatabase(installation, project, [&](CDbConnection& database) {
        return ReadResults(database, project.m_nGCSY);
    });
    Print(ResultsText(arRows, form));
    return ExitStatus::Done;
}

int Run(ExitStatus (*pfnCall)(const COptions&), const COptions& options) {
    try {
        SetReportSink(
            [](const std::string& strLine) { std::fprintf(stderr, "%s\n", ToUtf8(strLine).c_str()); });
        return static_cast<int>(pfnCall(options));
    } catch (const std::exception&) {
        const CFailure failure = CurrentFailure();
        std::fprintf(stderr, "tvdata: %s\n", failure.what());
        return static_cast<int>(failure.Status());
    }
}

constexpr const char* g_pSurroundings =
    R"(Without a subcommand it opens its window; where there is no display it prints this.

Exit status:
  0  done
  1  refused: what was asked for cannot be done with these data
  2  bad usage
  4  a file or database cannot be read or written

Environment:
  TERVO_ROOT                                 the installation, unless --root names it
  XDG_DATA_HOME (~/.local/share)             without either: the installation is its folder tervo
  XDG_RUNTIME_DIR                            holds the socket of the resident data manager
  TMPDIR (/tmp)                              holds it in a folder of the user's own where that is unset
  DISPLAY, WAYLAND_DISPLAY, QT_QPA_PLATFORM  where the window opens
)";

using CCall = ExitStatus (*)(const COptions&);

/// The program's command line: one subcommand a call.
class CCommandLine {
public:
    CCommandLine() {
        m_app.name("tvdata");
        m_app.set_version_flag("--version", "tvdata " TERVO_VERSION);
        m_app.require_subcommand(0, 1);
        AddMaking();
        AddUsing();
        AddShowing();
        m_app.footer(g_pSurroundings); // last: subcommands made later would end with it too
    }

    int Run(int nArguments, char** ppArguments) {
        try {
            m_app.parse(nArguments, ppArguments);
        } catch (const CLI::ParseError& error) {
            return m_app.exit(error) == 0 ? static_cast<int>(ExitStatus::Done)
                                          : static_cast<int>(ExitStatus::Usage);
        }
        if (m_pCall) return ::Run(m_pCall, m_options);
        std::fputs(m_app.help().c_str(), stdout);
        return static_cast<int>(ExitStatus::Usage);
    }

private:
    CLI::App* Add(const char* pszName, const char* pszMeaning, CCall pfnCall) {
        CLI::App* pCommand = m_app.add_subcommand(pszName, pszMeaning);
        pCommand->callback([this, pfnCall] { m_pCall = pfnCall; });
        return pCommand;
    }
    void AddRoot(CLI::App* pCommand) {
        pCommand->add_option("--root", m_options.m_strRoot, "The installation's folder (else TERVO_ROOT)")
            ->type_name("DIR");
    }
    void AddNumber(CLI::App* pCommand) {
        pCommand->add_option("--number", m_options.m_strNumber, "The project's number")
            ->required()
            ->type_name("GCBH");
    }

    void AddMaking() {
        CLI::App* pInit = Add("init", "Makes an installation: ini files, databases, frame templates", Init);
        pInit->add_option("ROOT", m_options.m_strRoot, "The installation's folder")
            ->required()
            ->type_name("");
        CLI::App* pNew = Add("new", "Makes a project and prints its index", New);
        AddRoot(pNew);
        AddNumber(pNew);
        pNew->add_option("--name", m_options.m_strName, "The project's name")->required()->type_name("GCMC");
        pNew->add_option("--standard", m_options.m_nStandard, "The code of the standard, 0 unless given")
            ->type_name("N");
        pNew->add_option("--connect", m_options.m_strConnect,
                         "Connection text of the project's database, SQLite's own unless given")
            ->type_name("TEXT");
        CLI::App* pImport = Add("import", "Brings in readings, samples and layers", Import);
        AddRoot(pImport);
        AddNumber(pImport);
        pImport->add_flag("--replace", m_options.m_bReplace, "Overwrite rows that are stored already");
        pImport->add_option("FILE", m_options.m_arFiles, "CSV files; their columns tell what they hold")
            ->required()
            ->type_name("");
    }

    void AddUsing() {
        CLI::App* pOpen =
            Add("open", "Makes a project the running one and stays resident as data manager", Open);
        AddRoot(pOpen);
        AddNumber(pOpen);
        pOpen->add_flag("--foreground", m_options.m_bForeground, "Stay in the foreground until close");
        AddRoot(Add("close", "Ends the resident data manager; no project runs then", Close));
        CLI::App* pTemplate = Add("template", "Makes a drawing the frame of the sheets", Template);
        AddRoot(pTemplate);
        pTemplate->add_option("FILE", m_options.m_strTemplate, "A name in the folder Templates")
            ->required()
            ->type_name("");
    }

    void AddShowing() {
        CLI::App* pList = Add("list", "Lists projects and samples", List);
        AddRoot(pList);
        pList->add_flag("--json", m_options.m_bJson, "As JSON");
        CLI::App* pResults = Add("results", "Shows the stored strength values", Results);
        AddRoot(pResults);
        AddNumber(pResults);
        CLI::Option* pCsv = pResults->add_flag("--csv", m_options.m_bCsv, "As CSV");
        pResults->add_flag("--json", m_options.m_bJson, "As JSON")->excludes(pCsv);
    }

    CLI::App m_app{"Data manager: projects, readings, samples and stored strength values"};
    COptions m_options;
    CCall m_pCall = nullptr;
};

} // namespace

int RunCommandLine(int nArguments, char** ppArguments) {
    EnsureRuntimeDir();
    CCommandLine commandLine;
    return commandLine.Run(nArguments, ppArguments);
}
