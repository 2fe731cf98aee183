// A script of whatever bytes, run to its end or its first failure, in an installation with a sample. Its
// files have names without a slash, so that it can name none outside of the target's folder.

#include "host/console/command_runner.h"
#include "host/console/dialog_presenter.h"
#include "host/console/message_boxes.h"
#include "host/console/script_answers.h"
#include "host/console/session.h"
#include "host/datamanager/import.h"
#include "host/datamanager/new_installation.h"
#include "host/datamanager/new_project.h"
#include "host/datamanager/project.h"
#include "host/datamanager/resident.h"
#include "host/datamanager/resident_calls.h"
#include "host/plot/headless.h"
#include "platform/windows/code_page.h"
#include "platform/windows/installation_root.h"
#include "platform/windows/message_box.h"
#include "platform/windows/window_message.h"
#include "tests/fuzz/input_folder.h"

#include <algorithm>
#include <csignal>
#include <cstdint>
#include <sstream>

#include <dlfcn.h>
#include <sys/prctl.h>
#include <unistd.h>

namespace {

constexpr const char* g_pReadings =
    "ZKBH,QYBH,SJBH,SHJHXH,WY,SYGD,SYZJ,CLHXS,GJKXYL,CLHDS,ZXBX,JQPS,KXYL,GJPS,JLLX\n"
    "1,1-1,1,1,100,80,39.1,1,0,200,500,0,0,0,2\n"
    "1,1-1,2,1,200,80,39.1,1,0,300,500,0,0,0,2\n";
constexpr const char* g_pSamples = "ZKBH,QYBH,SYFF,QYSD,QYHD,QYHSL,QYLX,QYSY,QYYX\n"
                                   "1,1-1,不固结不排水剪,1,0.2,24,0,12,28\n";

/// An installation with one sample in its project, its data manager beside this process, and the folder that
/// scripts run in.
class CScriptFolder {
public:
    CScriptFolder() {
        setenv("XDG_RUNTIME_DIR", InputFolder().Path().c_str(), 1);
        SetInstallationRoot(Root());
        MakeInstallation(Root());
        const CInstallation installation;
        MakeProject(installation, {"GC1", "test", 0, ""});
        const CProject project = FindProject(installation, "GC1");
        Import(*OpenProjectDatabase(installation, project), project.m_nGCSY);
        StartDataManager(installation, project);
        std::filesystem::copy(Root(), Kept(), std::filesystem::copy_options::recursive);
        StartHeadlessQt();
        // It stays between two runs: the sanitizers keep what they know of each loading.
        if (!dlopen(FUZZ_MODULE, RTLD_NOW)) std::abort();
    }

    static std::string Root() { return InputFolder().Path("root"); }

    /// Everything is as it was at first, and the working folder empty.
    static void Restore() {
        namespace fs = std::filesystem;
        fs::current_path(InputFolder().Path());
        fs::remove_all(InputFolder().Path("work"));
        fs::remove_all(Root() + "/Output");
        for (const char* pFile : {"Project.ini", "Settings.ini", "Marks.ini", "Projects/GC1/project.db"})
            fs::copy_file(Kept() + "/" + pFile, Root() + "/" + pFile, fs::copy_options::overwrite_existing);
        fs::create_directory(InputFolder().Path("work"));
        fs::current_path(InputFolder().Path("work"));
    }

private:
    static std::string Kept() { return InputFolder().Path("kept"); }

    static void Import(CDbConnection& database, std::int32_t nGCSY) {
        const std::string strSamples = InputFolder().Write("samples.csv", ToUtf8(g_pSamples));
        const std::string strReadings = InputFolder().Write("readings.csv", g_pReadings);
        CImportReport report([](const CImportRemark&) {});
        if (ImportFiles(database, nGCSY, {strSamples, strReadings}, false, &report).m_nReadings != 2)
            std::abort();
    }
    /// In a process that ends with this one.
    static void StartDataManager(const CInstallation& installation, const CProject& project) {
        if (fork() == 0) {
            prctl(PR_SET_PDEATHSIG, SIGKILL);
            if (!std::freopen("/dev/null", "w", stdout)) _exit(1);
            OpenProject(installation, project, true);
            _exit(0);
        }
        constexpr int nPatience = 10000;
        for (int i = 0; !FindWindowA(ResidentClass(4).c_str(), nullptr); ++i) {
            if (i == nPatience) std::abort();
            usleep(1000);
        }
    }
};

void Run(const std::string& strScript, std::FILE* pOut) {
    std::istringstream input(strScript);
    CTextOutput output(pOut);
    CScriptAnswers answers("script", input, output, false, true);
    CConsoleDialogPresenter presenter(answers);
    SetDialogPresenter(&presenter);
    SetMessageBoxHost(ConsoleMessageBoxes(answers));
    {
        CSession session(answers, CScriptFolder::Root());
        if (session.LoadModule(FUZZ_MODULE)) std::abort();
        RunCommands(session.Host());
    }
    SetDialogPresenter(nullptr);
    SetMessageBoxHost({});
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* pData, std::size_t nSize) {
    static const CScriptFolder folder;
    static std::FILE* const pOut = std::fopen("/dev/null", "w");
    CScriptFolder::Restore();
    std::string strScript(reinterpret_cast<const char*>(pData), nSize);
    std::ranges::replace_if(
        strScript, [](char c) { return c == '/' || c == '\\'; }, '_');
    Run(strScript, pOut);
    return 0;
}
