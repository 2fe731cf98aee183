#pragma once

#include <cstdio>
#include <memory>
#include <string>
#include <vector>

#include "platform/ado/provider.h"
#include "tests/temp_folder.h"

/// Text of a source file's UTF-8 literal.
std::string Utf8(const char8_t* pszText);

/// What a run of the program gave.
struct CRun {
    int m_nStatus = -1;
    std::string m_strOut;
    std::string m_strErrors;
};

/// A folder for an installation and the program at work in it, by the shell as a user would.
class CProgram {
public:
    CProgram();
    CProgram(const CProgram&) = delete;
    CProgram& operator=(const CProgram&) = delete;
    ~CProgram();

    /// Runs `tvdata` with the words that follow (shell syntax; $ROOT is the installation's folder, $T the
    /// program).
    [[nodiscard]] CRun Tvdata(const std::string& strArguments) const { return Shell("$T " + strArguments); }
    /// Runs `tvcad` on a script (UTF-8) in this installation, without prompts and answers on its output.
    [[nodiscard]] CRun Tvcad(const std::string& strScript) const;
    [[nodiscard]] CRun Shell(const std::string& strCommand) const;
    /// The same, and it must succeed; gives what it wrote.
    std::string Do(const std::string& strArguments) const;

    [[nodiscard]] std::string Root() const { return m_folder.Path("root"); }
    [[nodiscard]] const CTempFolder& Folder() const { return m_folder; }
    /// A file of the installation; UTF-8 from the code page if bGbk.
    [[nodiscard]] std::string Read(const std::string& strName, bool bGbk = false) const;
    /// Runs a statement, UTF-8, on a database of the installation. Rows: fields joined by '|', each with a
    /// line end.
    std::string Sql(const std::string& strDatabase, const std::string& strSql) const;

private:
    CTempFolder m_folder;
};

/// `tvcad` at work on lines that a test says one by one, as at a terminal; prompts and answers stand in its
/// output.
class CTvcadSession {
public:
    explicit CTvcadSession(const CProgram& program);

    /// Lines of a script, UTF-8, each with its end.
    void Say(const std::string& strLines);
    /// Returns once the program has asked this since the last such wait, and waits for the answer.
    void AwaitPrompt(const std::string& strPrompt);
    /// Says nothing more, and gives what the run gave once the program has ended.
    CRun End();

private:
    using CPipe = std::unique_ptr<std::FILE, int (*)(std::FILE*)>;

    const CTempFolder& m_folder;
    CPipe m_pipe{nullptr, &pclose};
    std::size_t m_nAwaited = 0; ///< so much of the output has been waited for
};

/// The rows of a cursor in UTF-8: fields joined by '|', NULL as "-", each row with a line end.
std::string RowsText(const CDbCursor& rows);
