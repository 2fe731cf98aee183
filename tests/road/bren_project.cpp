#include "tests/road/bren_project.h"

#include <fstream>
#include <gtest/gtest.h>
#include <set>

namespace {
/// The rows of a set's file; with strStart in place of the first nColumns columns of each.
std::string RowsOfFile(const std::string& strSet, const char* pFile, const std::string& strStart,
                       int nColumns) {
    std::ifstream file(TERVO_TEST_DATA "/readings/" + strSet + "/" + pFile);
    std::string strRow, strRows;
    std::getline(file, strRow); // the header
    while (std::getline(file, strRow)) {
        for (int i = 0; i < nColumns; i++)
            strRow.erase(0, strRow.find(',') + 1);
        strRows.append(strStart).append(",").append(strRow).append("\n");
    }
    EXPECT_NE(strRows, "") << strSet;
    return strRows;
}
} // namespace

CImportRows RowsOf(const CSamples& samples) {
    CImportRows rows;
    std::set<std::string> boreholes;
    for (const CTestSample& sample : samples) {
        const std::string strKey = sample.m_strZKBH + "," + sample.m_strQYBH + ",";
        rows.m_strSamples += strKey + "1,0.2,24,0,12,28," + sample.m_strSYFF + "\n";
        rows.m_strReadings += strKey + "1,1,100,80,39.1,1,0,200,500,0,0,0,2\n";
        rows.m_strReadings += strKey + "2,1,200,80,39.1,1,0,300,500,0,0,0,2\n";
        if (boreholes.insert(sample.m_strZKBH).second)
            rows.m_strLayers += sample.m_strZKBH + ",15,15," + Utf8(u8"粘土") + "\n";
    }
    return rows;
}

CImportRows RowsOf(const CMeasuredSamples& samples) {
    CImportRows rows;
    std::set<std::string> boreholes;
    for (const CMeasuredSample& sample : samples) {
        const std::string strKey = sample.m_strZKBH + "," + sample.m_strQYBH;
        rows.m_strSamples += RowsOfFile(sample.m_strSet, "samples.csv", strKey, 2);
        rows.m_strReadings += RowsOfFile(sample.m_strSet, "readings.csv", strKey, 2);
        if (boreholes.insert(sample.m_strZKBH).second)
            rows.m_strLayers += RowsOfFile(sample.m_strSet, "layers.csv", sample.m_strZKBH, 1);
    }
    return rows;
}

void WriteImportFiles(const CTempFolder& folder, const CImportRows& rows) {
    folder.Write("samples.csv", "ZKBH,QYBH,QYSD,QYHD,QYHSL,QYLX,QYSY,QYYX,SYFF\n" + rows.m_strSamples);
    folder.Write("layers.csv", "ZKBH,TCCDSD,TCHD,TCMC\n" + rows.m_strLayers);
    folder.Write("readings.csv",
                 "ZKBH,QYBH,SJBH,SHJHXH,WY,SYGD,SYZJ,CLHXS,GJKXYL,CLHDS,ZXBX,JQPS,KXYL,GJPS,JLLX\n" +
                     rows.m_strReadings);
}

CBrenProject::CBrenProject(const CImportRows& rows, int nStandard, const std::string& strConnect) {
    const CTempFolder& folder = m_program.Folder();
    WriteImportFiles(folder, rows);
    m_program.Do("init \"$ROOT\"");
    m_program.Do("new --root \"$ROOT\" --number GC1 --name test --standard " + std::to_string(nStandard) +
                 " --connect \"" + strConnect + "\"");
    EXPECT_EQ(m_program
                  .Shell("cd '" + folder.Path() +
                         "' && $T import --root \"$ROOT\" --number GC1 samples.csv "
                         "layers.csv readings.csv")
                  .m_nStatus, // not what it says of an unknown method
              0);
    m_program.Do("open --root \"$ROOT\" --number GC1");
}

void CBrenProject::SetLockTimeout(int nMilliseconds) const {
    EXPECT_EQ(m_program
                  .Shell("sed -i \"s|^Connect=.*|Connect=Provider=SQLite;Data Source=" + DatabasePath() +
                         ";Lock Timeout=" + std::to_string(nMilliseconds) +
                         "|\" \"$ROOT/Project.ini\" && grep -q 'Lock Timeout' \"$ROOT/Project.ini\"")
                  .m_nStatus,
              0);
}

CRun CBrenProject::Run(const std::string& strScript) const {
    CRun run = m_program.Tvcad(strScript);
    EXPECT_EQ(run.m_nStatus, 0) << run.m_strErrors;
    return run;
}

CJson CBrenProject::Entities() const {
    return CJson::parse(m_program.Folder().Read("dump.json"))["modelSpace"];
}

CJson CBrenProject::FrameEntities() const {
    const CJson dump = CJson::parse(m_program.Folder().Read("dump.json"));
    CJson shown = CJson::array();
    for (const CJson& block : dump["blocks"])
        if (block["name"] == "BRMB")
            for (const CJson& entity : block["entities"])
                if (entity["class"] != "AcDbAttributeDefinition") shown.push_back(entity);
    return shown;
}

CJson CBrenProject::Charts() const {
    CJson charts = CJson::array();
    for (const CJson& entity : Entities())
        if (entity["class"] == "CBRENChart") charts.push_back(entity["fields"]);
    return charts;
}

std::string CBrenProject::Marks(const std::string& strKey) const {
    const std::string strIni = "\n" + m_program.Read("Marks.ini", true);
    const std::size_t nAt = strIni.find("\n" + strKey + "=");
    if (nAt == std::string::npos) return "(none)";
    const std::size_t nValue = nAt + strKey.size() + 2;
    return strIni.substr(nValue, strIni.find_first_of("\r\n", nValue) - nValue);
}

CJson CBrenProject::Results() const {
    return CJson::parse(m_program.Do("results --root \"$ROOT\" --number GC1 --json"));
}

std::string Selection(const std::string& strZKBH, const std::string& strSamples) {
    return "select 1010 " + strZKBH + "\nselect 1011 " + strSamples + "\nok\n";
}

std::string Classes(const CJson& entities) {
    std::string strClasses;
    for (const CJson& entity : entities) {
        std::string strClass = entity["class"];
        if (strClass.starts_with("AcDb")) strClass.erase(0, 4);
        strClasses += (strClasses.empty() ? "" : " ") + strClass;
    }
    return strClasses;
}

CSamples SamplesOfBorehole(int nCount) {
    CSamples samples;
    for (int i = 1; i <= nCount; ++i)
        samples.push_back({"1", "1-" + std::to_string(i)});
    return samples;
}
