// SAVECHARTS: a drawing of charts into the project's output tree, under the name that its charts give it.

#include "host/console/drawing_order.h"
#include "host/console/drawing_saving.h"
#include "host/console/host_commands.h"
#include "host/console/texts.h"
#include "platform/acad/field_table.h"
#include "platform/tvtool/tvtool.h"
#include "platform/windows/code_page.h"
#include "platform/windows/installation_root.h"
#include "platform/windows/path.h"
#include "platform/windows/profile.h"

#include <algorithm>
#include <array>
#include <filesystem>

namespace fs = std::filesystem;

namespace {

/// What a chart says of itself, UTF-8.
struct CStoredChart {
    std::string m_strPick, m_strGCBH, m_strZKBH, m_strQYBH;
};

/// Empty for an entity without such a text.
std::string TextField(const AcDbEntity& entity, const char* pName) {
    const CFieldTable* const pFields = CFieldTable::Of(entity);
    const int row = pFields ? pFields->Find(pName) : -1;
    if (row < 0) return {};
    const CFieldValue value = pFields->Get(entity, row);
    const auto* const pText = std::get_if<std::string>(&value);
    return pText ? ToUtf8(*pText) : std::string();
}

std::vector<CStoredChart> ChartsOf(AcDbDatabase& drawing) {
    std::vector<CStoredChart> charts;
    for (const AcDbObjectId& id : ModelSpaceEntities(drawing)) {
        const CDbOpen<AcDbEntity> pEntity(id);
        if (!pEntity || std::wstring_view(pEntity->isA()->name()) != L"CBRENChart") continue;
        charts.push_back({"#" + id.handle().Hex(), TextField(*pEntity.Get(), "m_strGCBH"),
                          TextField(*pEntity.Get(), "m_strZKBH"), TextField(*pEntity.Get(), "m_strQYBH")});
    }
    return charts;
}

/// Its number, of which the folder of its drawings is named.
std::string RunningProject() {
    std::array<char, MAX_PATH> szIni{};
    std::array<char, 1024> szGCBH{};
    TVToolGetProjectIni(szIni.data());
    if (static_cast<int>(GetPrivateProfileIntA("Project", "GCSY", -1, szIni.data())) < 0)
        RefuseAnswer("no project is running");
    GetPrivateProfileStringA("Project", "GCBH", "", szGCBH.data(), szGCBH.size(), szIni.data());
    std::string strGCBH = ToUtf8(szGCBH.data());
    if (!CanStandInFileName(strGCBH) || strGCBH.back() == '.')
        RefuseAnswer("project \"" + strGCBH + "\" cannot name a folder");
    return strGCBH;
}

void CheckCharts(const std::vector<CStoredChart>& charts, const std::string& strProject) {
    if (charts.empty()) RefuseAnswer("the drawing has no chart");
    for (const CStoredChart& chart : charts) {
        if (chart.m_strGCBH != strProject)
            RefuseAnswer("chart " + chart.m_strPick + " is of project \"" + chart.m_strGCBH +
                         "\", not of \"" + strProject + "\"");
        for (const std::string& strNumber : {chart.m_strZKBH, chart.m_strQYBH})
            if (!CanStandInFileName(strNumber))
                RefuseAnswer("chart " + chart.m_strPick + ": \"" + strNumber +
                             "\" cannot stand in a file name");
    }
}

/// A sample that has several charts is named once.
std::string TitleOf(const std::vector<CStoredChart>& charts) {
    const std::string& strZKBH = charts.front().m_strZKBH;
    std::vector<std::string> samples;
    for (const CStoredChart& chart : charts) {
        if (chart.m_strZKBH != strZKBH) return ToUtf8("BR全部-全部试样");
        if (!std::ranges::count(samples, chart.m_strQYBH)) samples.push_back(chart.m_strQYBH);
    }
    std::string strTitle = "BR" + strZKBH;
    for (std::size_t i = 0; i < samples.size(); ++i)
        strTitle += (i ? "~" : "-") + samples[i];
    return strTitle;
}

/// The path in the spelling that the file system has.
std::string Resolved(const std::string& strPath) {
    std::string utf8;
    ResolvePath({}, GbkAnswer(strPath), &utf8);
    return utf8;
}

/// Links may lead to the output tree, but none out of it: who may write in it would have files of others
/// written for him.
void CheckWithin(const std::string& strTree, const std::string& strPath) {
    std::error_code error;
    const fs::path tree = fs::weakly_canonical(strTree, error), path = fs::weakly_canonical(strPath, error);
    if (error || std::ranges::mismatch(tree, path).in1 != tree.end())
        RefuseAnswer(strPath + " lies outside of " + strTree);
}

/// The path of the drawing of that title; its folder is made if need be. A file or folder that differs by
/// case is it, too.
std::string FileOf(const std::string& strProject, const std::string& strTitle) {
    const std::string strTree = Resolved(InstallationRoot() + "/Output");
    const std::string strFolder = Resolved(strTree + "/" + strProject + "/" + ToUtf8("室内曲线"));
    CheckWithin(strTree, strFolder);
    std::error_code error;
    fs::create_directories(strFolder, error);
    if (error) throw CRunFailure(EXIT_FILE_FAILED, strFolder + " cannot be made: " + error.message());
    std::string strFile = Resolved(strFolder + "/" + strTitle + ".dwg");
    CheckWithin(strTree, strFile);
    return strFile;
}

} // namespace

void CommandSaveCharts(CHost& host) {
    AcApDocument& document = host.Document();
    host.m_input.End();
    const std::string strProject = RunningProject();
    const std::vector<CStoredChart> charts = ChartsOf(*document.database());
    CheckCharts(charts, strProject);
    SaveDrawingAs(host, document, FileOf(strProject, TitleOf(charts)), false);
    host.Print("saved " + CDrawings::NameOf(document));
}
