#include "host/datamanager/listing.h"

#include <map>

#include <nlohmann/json.hpp>

#include "host/datamanager/natural_order.h"
#include "host/datamanager/numbers.h"
#include "host/datamanager/project_database.h"
#include "host/datamanager/terminal_text.h"
#include "platform/windows/code_page.h"

namespace {

using CSampleKey = std::pair<std::string, std::string>;

/// The third column of the rows by the sample in the first two; of a sample's rows the first one counts.
std::map<CSampleKey, CDbCell> BySample(const CDbCursor& rows) {
    std::map<CSampleKey, CDbCell> mapCells;
    for (std::size_t i = 0; i < rows.RowCount(); ++i)
        mapCells.try_emplace({CellText(rows.Cell(i, 0)), CellText(rows.Cell(i, 1))}, rows.Cell(i, 2));
    return mapCells;
}

nlohmann::ordered_json SamplesJson(const CListedProject& project) {
    if (!project.m_strFault.empty()) return nullptr;
    nlohmann::ordered_json samples = nlohmann::ordered_json::array();
    for (const CListedSample& sample : project.m_arSamples) {
        nlohmann::ordered_json entry;
        entry["ZKBH"] = ToUtf8(sample.m_strZKBH);
        entry["QYBH"] = ToUtf8(sample.m_strQYBH);
        entry["SYFF"] = nullptr;
        if (sample.m_strSYFF) entry["SYFF"] = ToUtf8(*sample.m_strSYFF);
        entry["readings"] = sample.m_nReadings;
        samples.push_back(std::move(entry));
    }
    return samples;
}

} // namespace

std::vector<CListedSample> ReadSamples(CDbConnection& database, std::int32_t nGCSY) {
    const std::string strOfProject = " WHERE GCSY = " + std::to_string(nGCSY);
    const auto pMethods = database.Query("SELECT ZKBH, QYBH, SYFF FROM z_c_SanZhou" + strOfProject);
    const auto pReadings = database.Query("SELECT ZKBH, QYBH, COUNT(*) FROM z_c_SanZhouCSXM" + strOfProject +
                                          " GROUP BY ZKBH, QYBH");
    const auto pSamples = database.Query("SELECT ZKBH, QYBH FROM (SELECT ZKBH, QYBH FROM z_c_SanZhou" +
                                         strOfProject + " UNION SELECT ZKBH, QYBH FROM z_c_SanZhouCSXM" +
                                         strOfProject + " UNION SELECT ZKBH, QYBH FROM z_c_QuYang" +
                                         strOfProject + ") AS samples ORDER BY " + g_pNaturalOrder);
    const auto mapMethods = BySample(*pMethods);
    const auto mapReadings = BySample(*pReadings);
    std::vector<CListedSample> arSamples;
    for (std::size_t i = 0; i < pSamples->RowCount(); ++i) {
        CListedSample& sample = arSamples.emplace_back();
        sample.m_strZKBH = CellText(pSamples->Cell(i, 0));
        sample.m_strQYBH = CellText(pSamples->Cell(i, 1));
        const CSampleKey key = {sample.m_strZKBH, sample.m_strQYBH};
        if (const auto it = mapMethods.find(key);
            it != mapMethods.end() && !std::holds_alternative<std::monostate>(it->second))
            sample.m_strSYFF = CellText(it->second);
        if (const auto it = mapReadings.find(key); it != mapReadings.end())
            sample.m_nReadings = CellWhole(it->second);
    }
    return arSamples;
}

std::vector<CListedProject> ListProjects(const CInstallation& installation) {
    const std::int32_t nRunning = installation.ProjectIni().Number("Project", "GCSY", -1);
    std::vector<CListedProject> arProjects;
    for (const CProject& project : ReadProjects(installation)) {
        CListedProject& listed = arProjects.emplace_back();
        listed.m_project = project;
        listed.m_bRunning = nRunning >= 0 && project.m_nGCSY == nRunning;
        try {
            listed.m_arSamples = AtProjectDatabase(installation, project, [&](CDbConnection& database) {
                return ReadSamples(database, project.m_nGCSY);
            });
        } catch (const CFailure& failure) {
            listed.m_strFault = failure.what();
        }
    }
    return arProjects;
}

std::string ListText(const std::vector<CListedProject>& arProjects) {
    std::string strText;
    for (const CListedProject& project : arProjects) {
        if (!strText.empty()) strText += "\n";
        strText += ToUtf8(project.m_project.m_strGCBH) + " " + ToUtf8(project.m_project.m_strGCMC) +
                   " (GCSY " + std::to_string(project.m_project.m_nGCSY) + ", GCBZ " +
                   std::to_string(project.m_project.m_nGCBZ) + (project.m_bRunning ? ", running)\n" : ")\n");
        std::vector<std::vector<std::string>> arTable = {{"  ZKBH", "QYBH", "SYFF", "readings"}};
        for (const CListedSample& sample : project.m_arSamples)
            arTable.push_back({"  " + sample.m_strZKBH, sample.m_strQYBH, sample.m_strSYFF.value_or(""),
                               std::to_string(sample.m_nReadings)});
        if (project.m_strFault.empty()) strText += AlignedTable(arTable);
    }
    return strText;
}

std::string ListJson(const std::vector<CListedProject>& arProjects) {
    nlohmann::ordered_json projects = nlohmann::ordered_json::array();
    for (const CListedProject& project : arProjects) {
        nlohmann::ordered_json entry;
        entry["GCSY"] = project.m_project.m_nGCSY;
        entry["GCBH"] = ToUtf8(project.m_project.m_strGCBH);
        entry["GCMC"] = ToUtf8(project.m_project.m_strGCMC);
        entry["GCBZ"] = project.m_project.m_nGCBZ;
        entry["running"] = project.m_bRunning;
        entry["samples"] = SamplesJson(project);
        projects.push_back(std::move(entry));
    }
    nlohmann::ordered_json list;
    list["projects"] = std::move(projects);
    return list.dump() + "\n";
}
