#pragma once
// Runs the real tvcad on scripts in a folder of its own.

#include <gtest/gtest.h>

#include <sys/wait.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>

#include "platform/windows/code_page.h"

/// What a run gave.
struct CProgramResult {
    int m_nStatus = -1;
    std::string m_strOut, m_strErr;
};

class CProgramRun : public testing::Test {
protected:
    CProgramRun() {
        std::string folder = (std::filesystem::temp_directory_path() / "tvcad-test-XXXXXX").string();
        m_folder = mkdtemp(folder.data());
    }
    ~CProgramRun() override { std::filesystem::remove_all(m_folder); }
    CProgramRun(const CProgramRun&) = delete;
    CProgramRun& operator=(const CProgramRun&) = delete;

    static std::string ReadFile(const std::filesystem::path& path) {
        std::ifstream file(path, std::ios::binary);
        std::ostringstream text;
        text << file.rdbuf();
        return text.str();
    }
    void WriteFile(const std::string& strName, const std::string& strContent) const {
        std::ofstream(m_folder / strName, std::ios::binary) << strContent;
    }
    /// Runs `ENVIRONMENT tvcad ARGUMENTS` in the folder.
    CProgramResult RunProgram(const std::string& strArguments, const std::string& strEnvironment = {}) const {
        const std::string command = "cd '" + m_folder.string() + "' && env " + strEnvironment +
                                    " '" TERVO_BIN "/tvcad' " + strArguments + " >out 2>err";
        const int status = std::system(command.c_str()); // NOLINT(cert-env33-c)
        CProgramResult result;
        result.m_nStatus = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
        result.m_strOut = ReadFile(m_folder / "out");
        result.m_strErr = ReadFile(m_folder / "err");
        return result;
    }
    /// Runs a script (GBK, as literals are) with the sample module loaded.
    CProgramResult RunScript(const std::string& strScript, const std::string& strOptions = {}) const {
        WriteFile("script", ToUtf8(strScript));
        return RunProgram("-s script --load '" SAMPLE_MODULE "' " + strOptions);
    }
    /// The same with the module that works on documents.
    CProgramResult RunDocuments(const std::string& strScript, const std::string& strOptions = "-q") const {
        WriteFile("script", ToUtf8(strScript));
        return RunProgram("-s script --load '" DOCUMENT_MODULE "' " + strOptions);
    }
    /// What a script prints when prompts and answers are left out.
    std::string Quiet(const std::string& strScript) const { return RunScript(strScript, "-q").m_strOut; }

    std::filesystem::path m_folder;
};
