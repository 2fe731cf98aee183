// The manual pages say what the programs' own help says, and are written without a fault.

#include "tests/support/programs.h"

#include <fstream>
#include <gtest/gtest.h>
#include <set>
#include <sstream>

namespace {

using CWords = std::set<std::string>;

std::string Page(const std::string& strName) {
    std::ostringstream text;
    text << std::ifstream(TERVO_SOURCE "/packaging/man/" + strName + ".1").rdbuf();
    return text.str();
}

std::string Output(const std::string& strCommand) {
    const CProgram program;
    const CRun run = program.Shell("cd " TERVO_SOURCE "/packaging/man && " + strCommand);
    EXPECT_EQ(run.m_nStatus, 0) << strCommand << "\n" << run.m_strErrors;
    return run.m_strOut + run.m_strErrors;
}

std::string Help(const std::string& strCall) {
    return Output(TERVO_BIN "/" + strCall + " --help");
}

/// The text from the line that strOpening begins to the next line that one of arClosing begins; empty
/// without such an opening.
std::string Part(const std::string& strText, const std::string& strOpening,
                 const std::vector<std::string>& arClosing) {
    const std::size_t nFrom = strText.find("\n" + strOpening);
    if (nFrom == std::string::npos) return {};
    std::size_t nTo = strText.size();
    for (const std::string& strClosing : arClosing)
        nTo = std::min(nTo, strText.find("\n" + strClosing, nFrom + 1));
    return strText.substr(nFrom + 1, nTo - nFrom);
}

std::string Section(const std::string& strPage, const std::string& strTitle) {
    return Part(strPage, ".Sh " + strTitle + "\n", {".Sh "});
}

/// The options `--WORD` in what a program tells, each with its hyphens; `--help` is every command's.
CWords OptionsOfHelp(const std::string& strHelp) {
    CWords options;
    for (std::size_t nAt = strHelp.find("--"); nAt != std::string::npos; nAt = strHelp.find("--", nAt + 2))
        options.insert(
            strHelp.substr(nAt, strHelp.find_first_not_of("abcdefghijklmnopqrstuvwxyz", nAt + 2) - nAt));
    options.erase("--help");
    return options;
}

/// The same of a page, where `Fl -WORD` stands for it.
CWords OptionsOfPage(const std::string& strPart) {
    CWords options;
    std::istringstream words(strPart);
    for (std::string strBefore, strWord; words >> strWord; strBefore = strWord)
        if (strWord.starts_with('-') && (strBefore == "Fl" || strBefore == ".Fl"))
            options.insert("-" + strWord);
    options.erase("--help");
    return options;
}

/// What lines name that begin with strBeginning: their first word, or several with commas between them.
CWords NamesOfLines(const std::string& strText, const std::string& strBeginning) {
    CWords names;
    std::istringstream lines(strText);
    for (std::string strLine; std::getline(lines, strLine);) {
        if (!strLine.starts_with(strBeginning)) continue;
        std::istringstream words(strLine.substr(strBeginning.size()));
        bool bMore = true;
        for (std::string strWord; bMore && words >> strWord;) {
            bMore = strWord.ends_with(',') || (words >> std::ws).peek() == ',';
            if (strWord.ends_with(',')) strWord.pop_back();
            if (!strWord.empty()) names.insert(strWord);
        }
    }
    return names;
}

} // namespace

class ManualPage : public testing::TestWithParam<const char*> {};

INSTANTIATE_TEST_SUITE_P(Programs, ManualPage, testing::Values("tvcad", "tvdata"),
                         [](const auto& program) { return std::string(program.param); });

TEST_P(ManualPage, IsFormattedWithoutWarnings) {
    const std::string strFile = std::string(GetParam()) + ".1";
    EXPECT_EQ(Output("mandoc -T lint -W warning " + strFile), "");
    EXPECT_EQ(Output("groff -ww -mandoc -Tutf8 -z " + strFile), "");
}

TEST_P(ManualPage, HasTheExitStatusesAndVariablesOfTheHelp) {
    const std::string strHelp = Help(GetParam()), strPage = Page(GetParam());
    EXPECT_EQ(NamesOfLines(Section(strPage, "EXIT STATUS"), ".It "),
              NamesOfLines(Part(strHelp, "Exit status", {"\n"}), "  "));
    EXPECT_EQ(NamesOfLines(Section(strPage, "ENVIRONMENT"), ".It Ev "),
              NamesOfLines(Part(strHelp, "Environment:", {"\n"}), "  "));
}

TEST(ManualPageOfTvcad, HasTheOptionsOfTheHelp) {
    EXPECT_EQ(OptionsOfPage(Section(Page("tvcad"), "OPTIONS")),
              OptionsOfHelp(Part(Help("tvcad"), "Options:", {"\n"})));
}

TEST(ManualPageOfTvcad, HasTheCommandsOfTheHostAndOfTheModule) {
    const std::string strPage = Page("tvcad");
    EXPECT_EQ(NamesOfLines(Section(strPage, "COMMANDS OF THE HOST"), ".It Ic "),
              NamesOfLines(Part(Help("tvcad"), "Commands", {"\n"}), "  "));
    const std::string strOfModule = Output("echo COMMANDS | " TERVO_BIN "/tvcad -q -s -");
    EXPECT_EQ(NamesOfLines(Section(strPage, "COMMANDS OF THE CHART MODULE"), ".It Ic "),
              NamesOfLines(strOfModule, "BREN "));
}

TEST(ManualPageOfTvdata, HasTheCommandsOfTheHelpEachWithItsOptions) {
    const std::string strPage = Page("tvdata");
    const CWords commands = NamesOfLines(Part(Help("tvdata"), "Subcommands:", {"\n"}), "  ");
    EXPECT_EQ(NamesOfLines(strPage, ".Ss "), commands);
    for (const std::string& strCommand : commands)
        EXPECT_EQ(OptionsOfPage(Part(strPage, ".Ss " + strCommand + "\n", {".Ss ", ".Sh "})),
                  OptionsOfHelp(Part(Help("tvdata " + strCommand), "Options:", {"\n"})))
            << strCommand;
}
