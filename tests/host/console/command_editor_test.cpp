#include "host/console/command_editor.h"

#include "host/console/script_answers.h"
#include "host/plot/fonts.h"
#include "host/plot/headless.h"
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

using ScriptPicks = CProgramRun;

TEST_F(ScriptPicks, AnEntityIsPickedByPointLastOrHandle) {
    EXPECT_EQ(RunDocuments("LINE 0,0 10,0\nPICK\n5,0.5\nPICK\nL\nPICK @1,1\n").m_nStatus, 5);
    EXPECT_EQ(RunDocuments("LINE 0,0 10,0\nPICK\n5,0.5\nPICK\n L \nPICK @-5,0\n").m_strOut,
              "\npicked 5100 AcDbLine 5 0.5\n\npicked 5100 AcDbLine 0 0\n\npicked 5100 AcDbLine 5 0\n");
    const std::string out = RunDocuments("LINE 0,0 10,0\nLIST L\n").m_strOut;
    const std::string handle = out.substr(0, out.find(' '));
    EXPECT_EQ(RunDocuments("LINE 0,0 10,0\nPICK " + handle + "\n").m_strOut, "\npicked 5100 AcDbLine 0 0\n");
}

TEST_F(ScriptPicks, AnEmptyLinePicksNothingAndCancelIsToldApart) {
    EXPECT_EQ(RunDocuments("PICK\n\nPICK\ncancel\nPICK \"\"\n").m_strOut,
              "\npicked -5001\n\npicked -5002\n\npicked -5001\n");
}

TEST_F(ScriptPicks, ABadPickCancelsThePromptAndEndsTheRun) {
    CProgramResult result = RunDocuments("PICK\n5,5\nSETVAR PLOTDPI\n");
    EXPECT_EQ(result.m_nStatus, 5);
    EXPECT_EQ(result.m_strOut, "\npicked -5002\n");
    EXPECT_EQ(result.m_strErr, "script:2: no entity there: 5,5\n");
    result = RunDocuments("LINE 0,0 1,0\nPICKSET\nL\nwhat\n\n");
    EXPECT_EQ(result.m_strOut, "\nselected -5002\n");
    EXPECT_EQ(result.m_strErr, "script:4: not an entity (#HANDLE, L or a point): what\n");
}

TEST_F(ScriptPicks, ASelectionIsAPickALineOrOneWord) {
    const std::string lines = "LINE 0,0 10,0\nLINE 0,20 10,20\n";
    EXPECT_EQ(RunDocuments(lines + "PICKSET\nL\n5,0\nL\n\n").m_strOut, "\nselected 5100 2\n");
    EXPECT_EQ(RunDocuments(lines + "PICKSET all\nPICKSET 5,0+5,20+L\nPICKSET L\n").m_strOut,
              "\nselected 5100 2\n\nselected 5100 2\n\nselected 5100 1\n");
    EXPECT_EQ(RunDocuments(lines + "PICKSET\n\nPICKSET\nL\ncancel\n").m_strOut,
              "\nselected -5001\n\nselected -5002\n");
    EXPECT_EQ(RunDocuments(lines + "PICKSET\nall\n").m_nStatus, 5); // a line is one pick
}

TEST(CommandEditor, SeeksBesideTheDrawingBeforeTheRoot) {
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
    StartHeadlessQt();
    CFonts fonts([](const std::string&) {});
    CHost host{answers, commandInput, drawings, modules, fonts};
    CCommandEditor editor(host, (base / "root").string());
    EXPECT_EQ(editor.FindFile("A.TXT"), (base / "drawings/a.txt").string());
    EXPECT_EQ(editor.FindFile("b.txt"), (base / "root/b.txt").string());
    EXPECT_EQ(editor.FindFile("c.txt"), "");
    std::filesystem::remove_all(base);
}
