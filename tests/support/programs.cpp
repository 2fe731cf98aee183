#include "tests/support/programs.h"

#include <chrono>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <thread>

#include "platform/windows/code_page.h"
#include "platform/windows/installation_root.h"

namespace {
constexpr const char* g_pSessionOutput = "session.out";
constexpr const char* g_pSessionErrors = "session.err";

int ExitStatus(int nWaited) {
    return WIFEXITED(nWaited) ? WEXITSTATUS(nWaited) : -1;
}
} // namespace

std::string Utf8(const char8_t* pszText) {
    return reinterpret_cast<const char*>(pszText);
}

CProgram::CProgram() {
    // This process and the program must agree on installation and sockets.
    setenv("XDG_RUNTIME_DIR", m_folder.Path().c_str(), 1);
    setenv("ROOT", Root().c_str(), 1);
    setenv("T", TERVO_BIN "/tvdata", 1);
    unsetenv("TERVO_ROOT");
    SetInstallationRoot(Root());
}

CProgram::~CProgram() {
    if (std::filesystem::exists(Root() + "/tervo.ini")) {
        EXPECT_EQ(Tvdata("close --root \"$ROOT\"").m_nStatus, 0);
    }
    SetInstallationRoot("");
}

CRun CProgram::Shell(const std::string& strCommand) const {
    const std::string strRedirected = "{ " + strCommand + "; } >'" + m_folder.Path("stdout") + "' 2>'" +
                                      m_folder.Path("stderr") + "' </dev/null";
    const int nWaited = std::system(strRedirected.c_str()); // NOLINT: a shell is what is wanted
    CRun run;
    run.m_nStatus = ExitStatus(nWaited);
    run.m_strOut = m_folder.Read("stdout");
    run.m_strErrors = m_folder.Read("stderr");
    return run;
}

CRun CProgram::Tvcad(const std::string& strScript) const {
    return Shell(TERVO_BIN "/tvcad --root \"$ROOT\" -q -s '" + m_folder.Write("script", strScript) + "'");
}

std::string CProgram::Do(const std::string& strArguments) const {
    const CRun run = Tvdata(strArguments);
    EXPECT_EQ(run.m_nStatus, 0) << strArguments;
    EXPECT_EQ(run.m_strErrors, "") << strArguments;
    return run.m_strOut;
}

std::string CProgram::Read(const std::string& strName, bool bGbk) const {
    const std::string strBytes = m_folder.Read("root/" + strName);
    return bGbk ? ToUtf8(strBytes) : strBytes;
}

std::string CProgram::Sql(const std::string& strDatabase, const std::string& strSql) const {
    const auto pDatabase = OpenDbConnection("Provider=SQLite;Data Source=" + Root() + "/" + strDatabase);
    std::string strStatement;
    EXPECT_TRUE(Utf8ToGbk(strSql, &strStatement));
    return RowsText(*pDatabase->Query(strStatement));
}

CTvcadSession::CTvcadSession(const CProgram& program)
    : m_folder(program.Folder()) {
    const std::string strOut = m_folder.Write(g_pSessionOutput, ""); // nothing of an earlier session
    const std::string strCommand = TERVO_BIN "/tvcad --root \"$ROOT\" -s - >'" + strOut + "' 2>'" +
                                   m_folder.Path(g_pSessionErrors) + "'";
    m_pipe.reset(popen(strCommand.c_str(), "w")); // NOLINT: a shell is what is wanted
}

void CTvcadSession::Say(const std::string& strLines) {
    EXPECT_NE(std::fputs(strLines.c_str(), m_pipe.get()), EOF);
    EXPECT_EQ(std::fflush(m_pipe.get()), 0);
}

void CTvcadSession::AwaitPrompt(const std::string& strPrompt) {
    std::string strOut;
    for (int nTry = 0; nTry < 12000; ++nTry) {
        strOut = m_folder.Read(g_pSessionOutput);
        const std::size_t nAt = strOut.find(strPrompt, m_nAwaited);
        if (nAt != std::string::npos) {
            m_nAwaited = nAt + strPrompt.size();
            return;
        }
        std::this_thread::sleep_for(std::chrono::milliseconds(5));
    }
    ADD_FAILURE() << strPrompt << " was not asked: " << strOut;
}

CRun CTvcadSession::End() {
    CRun run;
    run.m_nStatus = ExitStatus(pclose(m_pipe.release()));
    run.m_strOut = m_folder.Read(g_pSessionOutput);
    run.m_strErrors = m_folder.Read(g_pSessionErrors);
    return run;
}

std::string RowsText(const CDbCursor& rows) {
    std::string strRows;
    for (std::size_t nRow = 0; nRow < rows.RowCount(); ++nRow)
        for (std::size_t i = 0; i < rows.Columns().size(); ++i) {
            const CDbCell& cell = rows.Cell(nRow, i);
            strRows += std::holds_alternative<std::monostate>(cell) ? "-" : ToUtf8(CellText(cell));
            strRows += i + 1 < rows.Columns().size() ? "|" : "\n";
        }
    return strRows;
}
