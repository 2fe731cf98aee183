#include "tests/examples/demo_project.h"

#include <cstdlib>
#include <gtest/gtest.h>

CDemoProject::CDemoProject() {
    setenv("TERVO_BIN", TERVO_BIN, 1);
    OpenDemoProject(m_program);
}

CRun CDemoProject::Example(const std::string& strWords) const {
    return m_program.Shell("cd '" + Folder().Path() + "' && " TERVO_EXAMPLES "/" + strWords);
}

CRun CDemoProject::Script(const std::string& strName) const {
    CRun run =
        m_program.Shell("cd '" + Folder().Path() +
                        "' && " TERVO_BIN "/tvcad --root \"$ROOT\" -q -s " TERVO_EXAMPLES "/" + strName);
    EXPECT_EQ(run.m_nStatus, 0) << strName << ": " << run.m_strErrors;
    return run;
}

std::vector<std::string> CDemoProject::Pages(const std::string& strFile) const {
    const CRun run = m_program.Shell("pdftotext -layout '" + Folder().Path(strFile) + "' -");
    EXPECT_EQ(run.m_nStatus, 0) << run.m_strErrors;
    std::vector<std::string> arPages;
    std::size_t nBegin = 0;
    for (std::size_t nEnd = 0; (nEnd = run.m_strOut.find('\f', nBegin)) != std::string::npos;
         nBegin = nEnd + 1)
        arPages.push_back(run.m_strOut.substr(nBegin, nEnd - nBegin));
    return arPages;
}

CJson CDemoProject::Values(const std::string& strZKBH, const std::string& strQYBH,
                           const std::string& strNumber) const {
    const std::string strRows = m_program.Do("results --root \"$ROOT\" --number '" + strNumber + "' --json");
    for (const CJson& row : CJson::parse(strRows))
        if (row["ZKBH"] == strZKBH && row["QYBH"] == strQYBH) return row;
    return nullptr;
}
