#include "platform/ado/report.h"

#include <gtest/gtest.h>

#include <vector>

TEST(ReportLine, ReachesTheSinkSetLast) {
    std::vector<std::string> arFirst;
    std::vector<std::string> arSecond;
    SetReportSink([&](const std::string& strLine) { arFirst.push_back(strLine); });
    ReportLine("one");
    SetReportSink([&](const std::string& strLine) { arSecond.push_back(strLine); });
    ReportLine("two");
    SetReportSink(nullptr);
    ReportLine("three");
    EXPECT_EQ(arFirst, std::vector<std::string>{"one"});
    EXPECT_EQ(arSecond, std::vector<std::string>{"two"});
}
