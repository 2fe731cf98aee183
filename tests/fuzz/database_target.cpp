// A database file of whatever bytes: what programs do with a project's own is refused or done.

#include "analysis/reduction.h"
#include "data/project_check.h"
#include "data/project_context.h"
#include "host/datamanager/layout_check.h"
#include "host/datamanager/listing.h"
#include "host/datamanager/results.h"
#include "platform/ado/error.h"
#include "platform/ado/report.h"
#include "platform/windows/installation_root.h"
#include "platform/windows/message_box.h"
#include "platform/windows/profile.h"
#include "tests/fuzz/input_folder.h"

#include <cstdint>

namespace {

std::string Database() {
    return InputFolder().Path("project.db");
}

/// Project 1 of an installation is running, and nobody reads what is said.
bool MakeInstallation() {
    SetInstallationRoot(InputFolder().Path());
    g_strProjectIni = InputFolder().Path("Project.ini");
    WritePrivateProfileStringA("Project", "GCSY", "1", g_strProjectIni);
    WritePrivateProfileStringA("Project", "Database", "project.db", g_strProjectIni);
    CMessageBoxHost boxes;
    boxes.m_show = [](HWND, const std::wstring&, const std::wstring&, UINT) { return IDOK; };
    SetMessageBoxHost(boxes);
    SetReportSink([](const std::string&) {});
    return true;
}

/// As `tvdata` does for its lists.
void ReadLists() {
    try {
        const auto pDatabase = OpenDbConnection("Provider=SQLite;Data Source=" + Database());
        ReadSamples(*pDatabase, 1);
        ResultsText(ReadResults(*pDatabase, 1), ResultForm::Json);
        CheckLayout(*pDatabase, ProjectTables());
    } catch (const CDbError&) {
        return;
    }
}

/// As the module does for a sample's chart.
void ReadAndStore() {
    CBRENChart chart;
    chart.m_nGCSY = 1;
    chart.m_strGCBH = "GC1";
    chart.m_strZKBH = "1";
    chart.m_strQYBH = "1-1";
    chart.m_strSYFF = "不固结不排水剪";
    CheckProjectNumber(chart.m_nGCSY, chart.m_strGCBH);
    chart.ComputeChartData();
    chart.StoreAdoptedValues();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* pData, std::size_t nSize) {
    static const bool bMade = MakeInstallation();
    if (!bMade) return 0;
    std::filesystem::remove(Database());
    std::filesystem::remove(Database() + "-journal");
    InputFolder().Write("project.db", {reinterpret_cast<const char*>(pData), nSize});
    ReadLists();
    ReadAndStore();
    return 0;
}
