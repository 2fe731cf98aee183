#include "tests/road/bren_project.h"

#include <gtest/gtest.h>
#include <set>

CBrenProject::CBrenProject(const std::vector<CTestSample>& samples, int nStandard) {
    std::string strSamples = "ZKBH,QYBH,QYSD,QYHD,QYHSL,QYSY,QYYX,SYFF\n";
    std::string strLayers = "ZKBH,TCCDSD,TCHD,TCMC\n";
    std::string strReadings =
        "ZKBH,QYBH,SJBH,SHJHXH,WY,SYGD,SYZJ,CLHXS,GJKXYL,CLHDS,ZXBX,JQPS,KXYL,GJPS,JLLX\n";
    std::set<std::string> boreholes;
    for (const CTestSample& sample : samples) {
        const std::string strKey = sample.m_strZKBH + "," + sample.m_strQYBH + ",";
        strSamples += strKey + "1,0.2,24,12,28," + sample.m_strSYFF + "\n";
        strReadings += strKey + "1,1,100,80,39.1,1,0,200,500,0,0,0,2\n";
        strReadings += strKey + "2,1,200,80,39.1,1,0,300,500,0,0,0,2\n";
        if (boreholes.insert(sample.m_strZKBH).second)
            strLayers += sample.m_strZKBH + ",15,15," + Utf8(u8"粘土") + "\n";
    }
    const CTempFolder& folder = m_program.Folder();
    m_program.Do("init \"$ROOT\"");
    m_program.Do("new --root \"$ROOT\" --number GC1 --name test --standard " + std::to_string(nStandard));
    EXPECT_EQ(m_program
                  .Tvdata("import --root \"$ROOT\" --number GC1 '" + folder.Write("samples.csv", strSamples) +
                          "' '" + folder.Write("layers.csv", strLayers) + "' '" +
                          folder.Write("readings.csv", strReadings) + "'")
                  .m_nStatus,
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

CJson CBrenProject::Entities() const {
    return CJson::parse(m_program.Folder().Read("dump.json"))["modelSpace"];
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
