#include "host/datamanager/command_line.h"

#include <CLI/CLI.hpp>

#include <cstdio>
#include <filesystem>
#include <string>
#include <vector>

#include "host/datamanager/database_failure.h"
#include "host/datamanager/failure.h"
#include "host/datamanager/frame_choice.h"
#include "host/datamanager/import.h"
#include "host/datamanager/installation.h"
#include "host/datamanager/listing.h"
#include "host/datamanager/new_installation.h"
#include "host/datamanager/new_project.h"
#include "host/datamanager/project.h"
#include "host/datamanager/resident_calls.h"
#include "host/datamanager/results.h"
#include "host/datamanager/terminal_text.h"
#include "platform/ado/error.h"
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
    const auto pDatabase = OpenProjectDatabase(installation, project);
    CImportReport report(stderr);
    const CImportCounts counts = AtDatabase(ProjectConnection(installation, project), [&] {
        return ImportFiles(*pDatabase, project.m_nGCSY, options.m_arFiles, options.m_bReplace, &report);
    });
    if (report.Refusals() > 0) return ExitStatus::Refused;
    Print("readings: " + std::to_string(counts.m_nReadings) + "\nsamples: " +
          std::to_string(counts.m_nSamples) + "\nlayers: " + std::to_string(counts.m_nLayers) + "\n");
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
    const auto pDatabase = OpenProjectDatabase(installation, project);
    Print(AtDatabase(ProjectConnection(installation, project),
                     [&] { return ResultsText(*pDatabase, project.m_nGCSY, form); }));
    return ExitStatus::Done;
}

/// Tells a failure on standard error.
int Tell(ExitStatus status, const std::string& strWhat) {
    std::fprintf(stderr, "tvdata: %s\n", strWhat.c_str());
    return static_cast<int>(status);
}

int Run(ExitStatus (*pfnCall)(const COptions&), const COptions& options) {
    try {
        SetReportSink(
            [](const std::string& strLine) { std::fprintf(stderr, "%s\n", ToUtf8(strLine).c_str()); });
        return static_cast<int>(pfnCall(options));
    } catch (const CFailure& failure) {
        return Tell(failure.Status(), failure.what());
    } catch (const CDbError& error) {
        return Tell(ExitStatus::NoAccess, ToUtf8(error.what()));
    } catch (const std::filesystem::filesystem_error& error) {
        return Tell(ExitStatus::NoAccess, error.path1().string() + ": " + error.code().message());
    } catch (const std::exception& error) {
        return Tell(ExitStatus::NoAccess, error.what());
    }
}

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
        pCommand->add_option("--root", m_options.m_strRoot, "The installation's folder (else TERVO_ROOT)");
    }
    void AddNumber(CLI::App* pCommand) {
        pCommand->add_option("--number", m_options.m_strNumber, "The project's number")->required();
    }

    void AddMaking() {
        CLI::App* pInit = Add("init", "Makes an installation", Init);
        pInit->add_option("ROOT", m_options.m_strRoot, "The installation's folder")->required();
        CLI::App* pNew = Add("new", "Makes a project and prints its index", New);
        AddRoot(pNew);
        AddNumber(pNew);
        pNew->add_option("--name", m_options.m_strName, "The project's name")->required();
        pNew->add_option("--standard", m_options.m_nStandard, "The code of the standard, 0 unless given");
        pNew->add_option("--connect", m_options.m_strConnect, "Connection text of the project's database");
        CLI::App* pImport = Add("import", "Brings in readings, samples and layers", Import);
        AddRoot(pImport);
        AddNumber(pImport);
        pImport->add_flag("--replace", m_options.m_bReplace, "Overwrite rows that are stored already");
        pImport->add_option("FILE", m_options.m_arFiles, "CSV files")->required();
    }

    void AddUsing() {
        CLI::App* pOpen = Add("open", "Opens a project and stays as its data manager", Open);
        AddRoot(pOpen);
        AddNumber(pOpen);
        pOpen->add_flag("--foreground", m_options.m_bForeground, "Do not go to the background");
        AddRoot(Add("close", "Ends the resident data manager", Close));
        CLI::App* pTemplate = Add("template", "Makes a file the frame template", Template);
        AddRoot(pTemplate);
        pTemplate->add_option("FILE", m_options.m_strTemplate, "A name in the folder Templates")->required();
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
