// GRIP and DRAG in real runs, on ordinary entities and on a custom one.

#include "tests/host/console/program_run.h"

#include <nlohmann/json.hpp>

using CJson = nlohmann::ordered_json;

namespace {

class GripCommands : public CProgramRun {
protected:
    CJson Read(const std::string& strName) const { return CJson::parse(ReadFile(m_folder / strName)); }
    /// The last entity after a script that ends well.
    CJson Last(const std::string& strScript) {
        const CProgramResult result = RunScript(strScript + "DUMP a.json\n", "-q");
        EXPECT_EQ(result.m_nStatus, 0) << result.m_strErr;
        m_strOut = result.m_strOut;
        return Read("a.json")["modelSpace"].back();
    }
    /// What is told of a script that a bad answer stops.
    std::string Refusal(const std::string& strScript) const {
        const CProgramResult result = RunScript(strScript + "DUMP a.json\n", "-q");
        EXPECT_EQ(result.m_nStatus, 5) << strScript;
        return result.m_strErr;
    }
    std::string m_strOut;
};

constexpr const char* g_szLine = "LINE 1,1 5,1\n";

} // namespace

TEST_F(GripCommands, GripMovesTheGripNamedToThePoint) {
    const CJson line = Last(std::string(g_szLine) + "GRIP L 1 7,4\n");
    EXPECT_EQ(line["start"], CJson::parse("[1.0,1.0,0.0]"));
    EXPECT_EQ(line["end"], CJson::parse("[7.0,4.0,0.0]"));
}

TEST_F(GripCommands, GripTakesARelativePointAsTheOffsetItself) {
    // From the point given last the end would go elsewhere, and by way of the grip it would lose digits.
    const CJson line = Last("LINE 1e9,0 0,0\nGRIP L 1 @0.1,0.2\n");
    EXPECT_EQ(line["start"], CJson::parse("[1e9,0.0,0.0]"));
    EXPECT_EQ(line["end"], CJson::parse("[0.1,0.2,0.0]"));
}

TEST_F(GripCommands, GripMovesSeveralByTheWayOfTheFirstNamed) {
    const CJson line = Last(std::string(g_szLine) + "GRIP L 1,0 6,3\n");
    EXPECT_EQ(line["start"], CJson::parse("[2.0,3.0,0.0]"));
    EXPECT_EQ(line["end"], CJson::parse("[6.0,3.0,0.0]"));
}

TEST_F(GripCommands, GripMovesPolylinesAndArcs) {
    EXPECT_EQ(Last("PLINE 0,0 4,0 4,4 end\nGRIP L 2,0 @1,1\n")["vertices"][2]["at"],
              CJson::parse("[5.0,5.0]"));
    const CJson arc = Last("ARC 0,0 10 0 90\nGRIP L 0 3,4\n");
    EXPECT_EQ(arc["center"], CJson::parse("[3.0,4.0,0.0]"));
    EXPECT_EQ(Last("ARC 0,0 10 0 90\nGRIP L 1 0,-8\n")["radius"], 10.0);
}

TEST_F(GripCommands, GripTakesItsAnswersFromLinesToo) {
    EXPECT_EQ(Last(std::string(g_szLine) + "GRIP\nL\n0\n0,0\n")["start"], CJson::parse("[0.0,0.0,0.0]"));
    EXPECT_EQ(Last(std::string(g_szLine) + "GRIP\n\n")["start"], CJson::parse("[1.0,1.0,0.0]"));
    EXPECT_EQ(Last(std::string(g_szLine) + "GRIP\nL\n0\ncancel\n")["start"], CJson::parse("[1.0,1.0,0.0]"));
}

TEST_F(GripCommands, GripIsUndoneAsOneCommand) {
    const std::string strScript = std::string(g_szLine) + "GRIP L 0,1 @5,0\nUNDO 1\n";
    EXPECT_EQ(Last(strScript)["start"], CJson::parse("[1.0,1.0,0.0]"));
    EXPECT_EQ(Last(strScript + "REDO 1\n")["start"], CJson::parse("[6.0,1.0,0.0]"));
}

TEST_F(GripCommands, GripHasTheEntityDrawnOnceAtItsEnd) {
    // It is found where it is now, and no more where it was.
    EXPECT_EQ(Last(std::string(g_szLine) + "GRIP L 2 @0,100\nLIST 3,101\n")["end"][1], 101.0);
    EXPECT_NE(Refusal(std::string(g_szLine) + "GRIP L 2 @0,100\nLIST 3,1\n").find("no entity there"),
              std::string::npos);
}

TEST_F(GripCommands, AnIndexThatIsNoneIsAnErrorThatNamesIt) {
    EXPECT_EQ(Refusal(std::string(g_szLine) + "GRIP L 3 0,0\n"),
              "script:2: no such grip: 3 (the last is 2)\n");
    for (const char* szIndex : {"-1", "0,9", "x", "0,", "1.5", "99999999999"}) {
        const std::string strScript = std::string(g_szLine) + "GRIP L " + szIndex + " 0,0\n";
        EXPECT_NE(Refusal(strScript).find("script:2: no such grip: "), std::string::npos) << szIndex;
    }
    EXPECT_NE(Refusal(std::string(g_szLine) + "DRAG L 3 0,0 d.json\n").find("no such grip: 3"),
              std::string::npos);
    EXPECT_FALSE(std::filesystem::exists(m_folder / "d.json"));
}

TEST_F(GripCommands, ABadPointAndTooManyWordsAreErrors) {
    EXPECT_EQ(Refusal(std::string(g_szLine) + "GRIP L 0 there\n"), "script:2: not a point: there\n");
    EXPECT_NE(Refusal(std::string(g_szLine) + "GRIP L 0 1,1 more\n").find("more on the line"),
              std::string::npos);
    EXPECT_FALSE(std::filesystem::exists(m_folder / "a.json"));
}

TEST_F(GripCommands, AnEntityWithoutGripsIsAnError) {
    const std::string strProxy = "SHEET 1,2\nUNLOADMODULE \"" SAMPLE_MODULE "\"\n";
    for (const char* szCommand : {"GRIP L 0 1,1\n", "DRAG L 0 1,1 d.json\n"})
        EXPECT_NE(Refusal(strProxy + szCommand).find(" has no grips\n"), std::string::npos) << szCommand;
}

TEST_F(GripCommands, AClassThatRefusesIsToldAndLeavesItsEntityAlone) {
    EXPECT_EQ(Last("SHEET 1,2,3\nGRIP L 0 @1,1\n")["fields"]["m_ptOrigin"], CJson::parse("[1.0,2.0,3.0]"));
    EXPECT_TRUE(m_strOut.find("cannot move a grip of #") != std::string::npos) << m_strOut;
    EXPECT_TRUE(m_strOut.ends_with(": eNotApplicable\n")) << m_strOut;
    Last("SHEET 1,2,3\nDRAG L 0 @1,1 d.json\n");
    EXPECT_TRUE(m_strOut.find("cannot drag #") != std::string::npos) << m_strOut;
    EXPECT_FALSE(std::filesystem::exists(m_folder / "d.json"));
}

TEST_F(GripCommands, DragWritesWhatIsDrawnAndLeavesTheDrawingAsItWas) {
    ASSERT_EQ(RunScript("PLINE 0,0 4,0 4,4 end\nDUMP before.json\nDRAG L 2,0 4,9 drag.json\nDUMP after.json\n"
                        "UNDO 9\nDUMP none.json\n",
                        "-q")
                  .m_strOut,
              "undone: 1\n")
        << "a drag is nothing to undo";
    EXPECT_EQ(Read("drag.json"), CJson::parse(R"([{"prim":"pline","color":256,"linetype":"ByLayer","marker":0,
        "vertices":[{"at":[0.0,5.0],"bulge":0.0,"startWidth":-1.0,"endWidth":-1.0},
                    {"at":[4.0,0.0],"bulge":0.0,"startWidth":-1.0,"endWidth":-1.0},
                    {"at":[4.0,9.0],"bulge":0.0,"startWidth":-1.0,"endWidth":-1.0}],"closed":false}])"));
    EXPECT_EQ(Read("after.json"), Read("before.json"));
    EXPECT_TRUE(Read("none.json")["modelSpace"].empty());
}

TEST_F(GripCommands, DragToAPathThatCannotBeWrittenIsAFileFailure) {
    const CProgramResult result = RunScript(std::string(g_szLine) + "DRAG L 0 0,0 missing/d.json\n");
    EXPECT_EQ(result.m_nStatus, 4);
    EXPECT_EQ(result.m_strErr, "script:2: missing/d.json cannot be written: No such file or directory\n");
}
