#pragma once

#include "tests/support/demo.h"

#include <nlohmann/json.hpp>

using CJson = nlohmann::json;

/// The demo project of examples/demo, running, and the examples at work in it.
class CDemoProject {
public:
    CDemoProject();

    /// Runs an example, words in shell syntax, in the test's folder, with the programs of the build.
    CRun Example(const std::string& strWords) const;
    /// Runs `tvcad` in the test's folder on a script of the examples that it comes to the end of.
    CRun Script(const std::string& strName) const;
    /// The text of each page of a PDF file of the test's folder.
    std::vector<std::string> Pages(const std::string& strFile) const;
    /// The stored values of a sample; null where there is none.
    CJson Values(const std::string& strZKBH, const std::string& strQYBH,
                 const std::string& strNumber = "DEMO-01") const;

    const CTempFolder& Folder() const { return m_program.Folder(); }
    const CProgram m_program;
};
