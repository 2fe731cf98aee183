#include "host/datamanager/line_types.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <map>
#include <sstream>
#include <vector>

namespace {

std::map<std::string, std::vector<double>> Patterns() {
    std::istringstream file(LineTypeFile());
    std::map<std::string, std::vector<double>> mapPatterns;
    std::string strName;
    for (std::string strLine; std::getline(file, strLine);) {
        if (strLine.starts_with('*')) strName = strLine.substr(1, strLine.find(',') - 1);
        if (!strLine.starts_with("A,")) continue;
        std::istringstream lengths(strLine.substr(2));
        for (std::string strLength; std::getline(lengths, strLength, ',');)
            mapPatterns[strName].push_back(std::strtod(strLength.c_str(), nullptr));
    }
    return mapPatterns;
}

} // namespace

TEST(LineTypeFile, HoldsTheUsualNames) {
    const auto mapPatterns = Patterns();
    for (const char* pszName :
         {"Dashed", "Dashed2", "Dashdot", "Hidden", "Center", "Dot", "Phantom", "Border"})
        EXPECT_TRUE(mapPatterns.contains(pszName)) << pszName;
}

TEST(LineTypeFile, BeginsEachPatternWithADashOrDotAndEndsItWithAGap) {
    for (const auto& [strName, arLengths] : Patterns()) {
        ASSERT_EQ(arLengths.size() % 2, 0U) << strName;
        for (std::size_t i = 0; i < arLengths.size(); i += 2) {
            EXPECT_GE(arLengths[i], 0.0) << strName;
            EXPECT_LT(arLengths[i + 1], 0.0) << strName;
        }
    }
}

TEST(LineTypeFile, GivesDashesOfTwoMillimetresAtTheSheetsScale) {
    EXPECT_EQ(Patterns().at("Dashed2"), (std::vector<double>{0.2, -0.1}));
}
