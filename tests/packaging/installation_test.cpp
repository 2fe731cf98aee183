// What `cmake --install` puts in place, at work in a place that it was moved to.

#include "tests/support/programs.h"

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <sstream>

namespace fs = std::filesystem;

namespace {

/// An installation in a folder with a blank in its name, moved since it was made.
class Installation : public testing::Test {
protected:
    void SetUp() override {
        const std::string strFirst = m_machine.Folder().Path("first place");
        const CRun run =
            m_machine.Shell("cmake --install " TERVO_BUILD " --strip --prefix '" + strFirst + "'");
        ASSERT_EQ(run.m_nStatus, 0) << run.m_strErrors;
        fs::rename(strFirst, m_place);
    }

    /// Runs a command with the installed programs on PATH, and nothing else of this environment but what
    /// its sockets need.
    [[nodiscard]] CRun Run(const std::string& strCommand) const {
        return m_machine.Shell(
            "env -i HOME=\"$XDG_RUNTIME_DIR\" XDG_RUNTIME_DIR=\"$XDG_RUNTIME_DIR\" PATH='" +
            (m_place / "bin").string() + "':/usr/bin:/bin " + strCommand);
    }
    [[nodiscard]] std::string Demo() const { return m_machine.Folder().Path("demo place"); }

    CProgram m_machine;
    fs::path m_place = m_machine.Folder().Path("the suite");
};

std::string ReadFile(const fs::path& path) {
    std::ostringstream text;
    text << std::ifstream(path, std::ios::binary).rdbuf();
    return text.str();
}

/// What stands behind `KEY=` in a desktop entry.
std::string Value(const std::string& strEntry, const std::string& strKey) {
    const std::size_t nKey = strEntry.find("\n" + strKey + "=");
    if (nKey == std::string::npos) return {};
    const std::size_t nValue = nKey + strKey.size() + 2;
    return strEntry.substr(nValue, strEntry.find('\n', nValue) - nValue);
}

/// The targets of a page's links that lead to files.
std::vector<std::string> Links(const std::string& strPage) {
    static const std::string s_strOpening = "](";
    std::vector<std::string> arLinks;
    for (std::size_t nAt = strPage.find(s_strOpening); nAt != std::string::npos;
         nAt = strPage.find(s_strOpening, nAt)) {
        nAt += s_strOpening.size();
        const std::string strLink = strPage.substr(nAt, strPage.find_first_of("#)", nAt) - nAt);
        if (!strLink.empty() && strLink.find("://") == std::string::npos) arLinks.push_back(strLink);
    }
    return arLinks;
}

} // namespace

TEST_F(Installation, DrawsTheDemoWhereverItIsMoved) {
    const CRun run =
        Run("'" + (m_place / "share/doc/tervo/examples/draw-demo").string() + "' '" + Demo() + "'");
    EXPECT_EQ(run.m_nStatus, 0) << run.m_strOut;
    EXPECT_EQ(run.m_strErrors, "");
    EXPECT_NE(run.m_strOut.find("59.77  14.63  29.62  35.54"), std::string::npos) << run.m_strOut;
    for (const char* const pSheet : {"BRZK1-1-1.pdf", "BRZK1-1-2.dwg", "BRZK2-2-2.png"})
        EXPECT_TRUE(fs::exists(fs::path(Demo()) / "Output/DEMO-01" / pSheet)) << pSheet;
}

TEST_F(Installation, TakesItsLibrariesFromItsOwnPlace) {
    const std::string strLibrary =
        "libtervo-platform.so => " + (m_place / "bin/../lib/tervo/libtervo-platform.so").string() + " ";
    for (const char* const pProgram : {"tvcad", "tvdata"}) {
        const CRun run = Run("ldd '" + (m_place / "bin" / pProgram).string() + "'");
        EXPECT_NE(run.m_strOut.find(strLibrary), std::string::npos) << run.m_strOut;
    }
}

TEST_F(Installation, FindsLibrariesAndModuleThroughALink) {
    const std::string strLink = m_machine.Folder().Path("link to tvcad");
    fs::create_symlink(m_place / "bin/tvcad", strLink);
    const CRun run = Run("sh -c \"echo COMMANDS | '" + strLink + "' -q -s -\"");
    EXPECT_EQ(run.m_nStatus, 0) << run.m_strErrors;
    EXPECT_NE(run.m_strOut.find("BREN BREN"), std::string::npos) << run.m_strOut;
}

TEST_F(Installation, NamesNoFolderThatItWasBuiltIn) {
#ifdef TERVO_SANITIZED
    GTEST_SKIP() << "the sanitizers name source files in what they tell";
#endif
    const CRun run = m_machine.Shell("grep -rlF " TERVO_SOURCE " '" + m_place.string() + "'");
    EXPECT_EQ(run.m_nStatus, 1) << run.m_strErrors;
    EXPECT_EQ(run.m_strOut, "");
}

TEST_F(Installation, ShowsItsProgramsOnTheDesktop) {
    for (const char* const pProgram : {"tvcad", "tvdata"}) {
        const fs::path file = m_place / "share/applications" / (std::string(pProgram) + ".desktop");
        const CRun run = m_machine.Shell("desktop-file-validate '" + file.string() + "'");
        EXPECT_EQ(run.m_nStatus, 0) << run.m_strErrors;
        EXPECT_EQ(run.m_strOut, "");
        const std::string strEntry = ReadFile(file);
        const std::string strCommand = Value(strEntry, "Exec");
        EXPECT_TRUE(fs::exists(m_place / "bin" / strCommand.substr(0, strCommand.find(' '))));
        EXPECT_TRUE(
            fs::exists(m_place / "share/icons/hicolor/scalable/apps" / (Value(strEntry, "Icon") + ".svg")));
    }
}

TEST_F(Installation, HasPagesWhoseLinksLeadToFiles) {
    int nLinks = 0;
    for (const auto& entry : fs::recursive_directory_iterator(m_place / "share/doc/tervo")) {
        if (entry.path().extension() != ".md") continue;
        for (const std::string& strLink : Links(ReadFile(entry.path()))) {
            ++nLinks;
            EXPECT_TRUE(fs::exists(entry.path().parent_path() / strLink)) << entry.path() << ": " << strLink;
        }
    }
    EXPECT_GT(nLinks, 0);
}
