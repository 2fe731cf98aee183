#pragma once

#include "tests/temp_folder.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <sstream>
#include <string>
#include <vector>

/// What another program finds in a file.
struct CAudit {
    std::string m_strFindings;   ///< a line for each; then a line for each type of entity, with its count;
                                 ///< then lines for what proxies show
    std::vector<double> m_arBox; ///< of curves, lowest and highest corner; none without any
};

inline CAudit Audit(const std::string& strBytes) {
    const CTempFolder folder;
    const std::string strCommand = "/usr/bin/python3 " TERVO_TEST_DATA "/dxf/audit.py " +
                                   folder.Write("drawing.dxf", strBytes) + " >" + folder.Path("audit") +
                                   " 2>&1";
    EXPECT_EQ(std::system(strCommand.c_str()), 0);
    CAudit audit;
    audit.m_strFindings = folder.Read("audit");
    const std::size_t nBox = audit.m_strFindings.find("box ");
    if (nBox == std::string::npos) return audit;
    std::istringstream numbers(audit.m_strFindings.substr(nBox + 4));
    for (double value = 0.0; numbers >> value;)
        audit.m_arBox.push_back(value);
    audit.m_strFindings.resize(nBox);
    return audit;
}
