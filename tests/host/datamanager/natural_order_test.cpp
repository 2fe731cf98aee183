#include "host/datamanager/natural_order.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <random>
#include <sstream>
#include <string>
#include <tuple>
#include <vector>

#include "tests/support/programs.h"

namespace {

/// The three keys of a number: whether it begins with a digit, what it counts, its text filled up in front.
std::tuple<int, double, std::string> Key(const std::string& strNumber) {
    const bool bDigit = strNumber.front() >= '0' && strNumber.front() <= '9';
    return {bDigit ? -1 : 0, std::strtod(strNumber.c_str(), nullptr),
            std::string(255 - strNumber.size(), '0') + strNumber};
}

} // namespace

TEST(NaturalOrder, SortsResultsAndListAsAnEngineerCounts) {
    const CProgram program;
    program.Do("init \"$ROOT\"");
    program.Do("new --root \"$ROOT\" --number A --name x");
    const std::vector<std::string> arNames = {"9",    "10",  "A1", "ZK1", "ZK10", "1-2",
                                              "1-10", "ZK9", "B",  "2'",  "1"};
    std::vector<std::pair<std::string, std::string>> arPairs;
    for (const std::string& strHole : arNames)
        for (const std::string& strSample : arNames)
            arPairs.emplace_back(strHole, strSample);
    std::shuffle(arPairs.begin(), arPairs.end(), std::mt19937(5)); // NOLINT: the same order in every run
    std::string strFile = "ZKBH,QYBH,SYFF\n";
    for (const auto& [strHole, strSample] : arPairs)
        strFile.append(strHole).append(",").append(strSample).append(",\n");
    program.Do("import --root \"$ROOT\" --number A '" + program.Folder().Write("s.csv", strFile) + "'");
    std::sort(arPairs.begin(), arPairs.end(), [](const auto& a, const auto& b) {
        return std::tuple(Key(a.first), Key(a.second)) < std::tuple(Key(b.first), Key(b.second));
    });
    std::string strExpected = "ZKBH,QYBH,SYFF,SYRQ,UUC,UUF,CUC,CUF,CUCE,CUFE,CDC,CDF\n";
    for (const auto& [strHole, strSample] : arPairs)
        strExpected.append(strHole).append(",").append(strSample).append(",,,,,,,,,,\n");
    EXPECT_EQ(program.Do("results --root \"$ROOT\" --number A --csv"), strExpected);

    std::istringstream list(program.Do("list --root \"$ROOT\""));
    std::string strLine;
    for (int i = 0; i < 2; ++i)
        std::getline(list, strLine);
    for (const auto& [strHole, strSample] : arPairs) {
        std::string strListedHole;
        std::string strListedSample;
        std::getline(list, strLine);
        std::istringstream(strLine) >> strListedHole >> strListedSample;
        EXPECT_EQ(strListedHole, strHole);
        EXPECT_EQ(strListedSample, strSample);
    }
}
