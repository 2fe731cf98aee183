#include "host/console/script_editor.h"

#include "host/plot/fonts.h"
#include "tests/host/console/program_run.h"

namespace {

class FindFile : public CProgramRun {
protected:
    FindFile() {
        std::filesystem::create_directories(m_folder / "root/Support");
        std::filesystem::create_directories(m_folder / "work");
    }
    std::string Found() const {
        WriteFile("script", "FIND\n");
        return RunProgram("-q -s script --root root --load '" SAMPLE_MODULE "'").m_strOut;
    }
    std::string Line(const char* szFile) const { return "\n" + (m_folder / szFile).string() + "\n"; }
};

} // namespace

TEST_F(FindFile, SeeksAsGivenThenInSupportThenBelowTheRootInAnyCase) {
    EXPECT_EQ(Found(), "\nnone\n");
    WriteFile("root/support-file.txt", "");
    EXPECT_EQ(Found(), Line("root/support-file.txt"));
    WriteFile("root/Support/Support-File.txt", "");
    EXPECT_EQ(Found(), Line("root/Support/Support-File.txt"));
    WriteFile("support-FILE.txt", "");
    EXPECT_EQ(Found(), Line("support-FILE.txt"));
}

TEST_F(FindFile, AFolderIsNoFile) {
    std::filesystem::create_directories(m_folder / "SUPPORT-file.TXT");
    EXPECT_EQ(Found(), "\nnone\n");
}

TEST(ScriptEditor, SeeksBesideTheDrawingBeforeTheRoot) {
    std::string folder = (std::filesystem::temp_directory_path() / "tvcad-test-XXXXXX").string();
    const std::filesystem::path base = mkdtemp(folder.data());
    std::filesystem::create_directories(base / "root");
    std::filesystem::create_directories(base / "drawings");
    for (const char* name : {"root/a.txt", "drawings/a.txt", "root/b.txt"})
        std::ofstream(base / name) << name;
    std::istringstream input;
    CTextOutput output;
    CScriptAnswers answers("script", input, output, false, true);
    CCommandInput commandInput(answers);
    CDrawings drawings;
    drawings.CurrentDocument()->database()->SetFilename(
        WideFromGbk((base / "drawings/c.dwg").string()).c_str());
    CModules modules;
    CFonts fonts([](const std::string&) {});
    CHost host{answers, commandInput, drawings, modules, fonts};
    CScriptEditor editor(output, host, (base / "root").string());
    EXPECT_EQ(editor.FindFile("A.TXT"), (base / "drawings/a.txt").string());
    EXPECT_EQ(editor.FindFile("b.txt"), (base / "root/b.txt").string());
    EXPECT_EQ(editor.FindFile("c.txt"), "");
    std::filesystem::remove_all(base);
}
