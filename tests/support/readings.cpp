#include "tests/support/readings.h"

#include "platform/acad/host_application.h"
#include "platform/windows/code_page.h"

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <fstream>
#include <stdexcept>

namespace {
std::vector<std::string> Cells(const std::string& strLine) {
    std::vector<std::string> cells(1);
    bool bQuoted = false;
    for (const char c : strLine) {
        if (c == '"')
            bQuoted = !bQuoted;
        else if (c == ',' && !bQuoted)
            cells.emplace_back();
        else if (c != '\r')
            cells.back() += c;
    }
    return cells;
}

double Single(const std::string& strText) {
    return strText.empty() ? 0.0 : static_cast<double>(std::stof(strText));
}

class CPrintHost final : public CEditorHost {
public:
    void Print(const std::string& strText) override { m_strText += strText; }
    CPromptResult AskPoint(const std::string&, const AcGePoint3d*, AcGePoint3d*) override {
        return CPromptResult::Cancel;
    }
    std::string FindFile(const std::string&) override { return {}; }
    std::string m_strText;
};
CPrintHost g_printHost;
} // namespace

std::vector<std::map<std::string, std::string>> CsvRows(const std::string& strPath) {
    std::ifstream file(strPath);
    std::string strLine;
    if (!std::getline(file, strLine)) throw std::runtime_error("no such file, or empty: " + strPath);
    const std::vector<std::string> names = Cells(strLine);
    std::vector<std::map<std::string, std::string>> rows;
    while (std::getline(file, strLine)) {
        const std::vector<std::string> cells = Cells(strLine);
        auto& row = rows.emplace_back();
        for (std::size_t i = 0; i < names.size() && i < cells.size(); i++)
            row[names[i]] = cells[i];
    }
    return rows;
}

std::string SetFolder(const std::string& strSet) {
    return std::string(TERVO_TEST_DATA) + "/readings/" + strSet;
}

std::vector<std::string> ReadingSets() {
    std::vector<std::string> sets;
    for (const auto& entry : std::filesystem::directory_iterator(std::string(TERVO_TEST_DATA) + "/readings"))
        if (entry.is_directory()) sets.push_back(entry.path().filename());
    if (sets.empty()) throw std::runtime_error("no reading sets");
    std::sort(sets.begin(), sets.end());
    return sets;
}

std::vector<CTestReading> ReadingsOf(const std::string& strSet) {
    std::vector<CTestReading> readings;
    for (auto& row : CsvRows(SetFolder(strSet) + "/readings.csv")) {
        CTestReading& r = readings.emplace_back();
        r.m_nSJBH = std::stoi(row["SJBH"]);
        r.m_dWY = Single(row["WY"]);
        r.m_dSYGD = Single(row["SYGD"]);
        r.m_dSYZJ = Single(row["SYZJ"]);
        r.m_dCLHXS = Single(row["CLHXS"]);
        r.m_dGJKXYL = Single(row["GJKXYL"]);
        r.m_dCLHDS = Single(row["CLHDS"]);
        r.m_dZXBX = Single(row["ZXBX"]);
        r.m_dJQPS = Single(row["JQPS"]);
        r.m_dKXYL = Single(row["KXYL"]);
        r.m_dGJPS = Single(row["GJPS"]);
        r.m_nJLLX = static_cast<Adesk::Int8>(std::stoi(row["JLLX"]));
    }
    return readings;
}

CString MethodOf(const std::string& strSet) {
    std::string strGbk;
    Utf8ToGbk(CsvRows(SetFolder(strSet) + "/samples.csv").at(0)["SYFF"], &strGbk);
    return strGbk;
}

std::string TestName(std::string strText) {
    for (char& c : strText)
        if (!std::isalnum(static_cast<unsigned char>(c))) c = '_';
    return strText;
}

CPrintedText::CPrintedText() {
    g_printHost.m_strText.clear();
    SetEditorHost(&g_printHost);
}

CPrintedText::~CPrintedText() {
    SetEditorHost(nullptr);
}

const std::string& CPrintedText::Text() const {
    return g_printHost.m_strText;
}
