// MOVE, COPY, ROTATE, SCALE, MIRROR, EXPLODE, UNDO and REDO in real runs.

#include "tests/host/console/program_run.h"

#include <nlohmann/json.hpp>

using CJson = nlohmann::ordered_json;

class EditingCommands : public CProgramRun {
protected:
    /// The entities after a script that ends well.
    CJson Entities(const std::string& strScript) {
        const CProgramResult result = RunScript(strScript + "DUMP a.json\n", "-q");
        EXPECT_EQ(result.m_nStatus, 0) << result.m_strErr;
        m_strOut = result.m_strOut;
        return CJson::parse(ReadFile(m_folder / "a.json"))["modelSpace"];
    }
    /// Start and end of each line.
    CJson Lines(const std::string& strScript) {
        CJson lines = CJson::array();
        for (const CJson& entity : Entities(strScript))
            lines.push_back({entity["start"][0], entity["start"][1], entity["end"][0], entity["end"][1]});
        return lines;
    }
    std::string m_strOut;
};

TEST_F(EditingCommands, MoveShiftsASelectionFromBaseToPoint) {
    EXPECT_EQ(Lines("LINE 0,0 1,0\nLINE 0,5 1,5\nMOVE all 1,1 @2,3\n"),
              CJson::parse("[[2.0,3.0,3.0,3.0],[2.0,8.0,3.0,8.0]]"));
}

TEST_F(EditingCommands, CopyLeavesTheOriginalAndMakesAnotherBehindIt) {
    EXPECT_EQ(Lines("LINE 0,0 1,0\nCOPY L 0,0 0,4\n"), CJson::parse("[[0.0,0.0,1.0,0.0],[0.0,4.0,1.0,4.0]]"));
}

TEST_F(EditingCommands, ScaleAndRotateWorkAboutTheirBase) {
    EXPECT_EQ(Lines("LINE 1,1 2,1\nSCALE L 1,1 4\n"), CJson::parse("[[1.0,1.0,5.0,1.0]]"));
    const CJson turned = Lines("LINE 1,1 2,1\nROTATE L 1,1 90\n");
    EXPECT_NEAR(turned[0][2].get<double>(), 1.0, 1e-12);
    EXPECT_NEAR(turned[0][3].get<double>(), 2.0, 1e-12);
    EXPECT_EQ(RunScript("LINE 1,1 2,1\nSCALE L 1,1 0\n").m_nStatus, 5);
}

TEST_F(EditingCommands, MirrorKeepsOrDropsTheOriginal) {
    EXPECT_EQ(Lines("LINE 1,0 2,0\nMIRROR L 0,0 0,1 keep\n"),
              CJson::parse("[[1.0,0.0,2.0,0.0],[-1.0,0.0,-2.0,0.0]]"));
    EXPECT_EQ(Lines("LINE 1,0 2,0\nMIRROR L 0,0 0,1 drop\n"), CJson::parse("[[-1.0,0.0,-2.0,0.0]]"));
    EXPECT_EQ(RunScript("LINE 1,0 2,0\nMIRROR L 0,0 0,1 perhaps\n").m_nStatus, 5);
    EXPECT_EQ(RunScript("LINE 1,0 2,0\nMIRROR L 0,0 0,0 keep\n").m_nStatus, 5);
}

TEST_F(EditingCommands, UndoGoesBackByCommandsThatChangedSomethingAndRedoForward) {
    const std::string strMade = "LINE 0,0 1,0\nMOVE L 0,0 0,1\nREGEN\nMOVE L 0,0 0,1\nDUMP b.json\n";
    EXPECT_EQ(Lines(strMade + "UNDO 1\n"), CJson::parse("[[0.0,1.0,1.0,1.0]]"));
    EXPECT_EQ(Lines(strMade + "UNDO 2\n"), CJson::parse("[[0.0,0.0,1.0,0.0]]"));
    EXPECT_EQ(Lines(strMade + "UNDO 3\n"), CJson::array());
    EXPECT_EQ(Lines(strMade + "UNDO 2\nREDO 1\n"), CJson::parse("[[0.0,1.0,1.0,1.0]]"));
    EXPECT_EQ(Lines(strMade + "UNDO 9\nREDO 2\nREDO\n1\nREDO 1\n"), CJson::parse("[[0.0,2.0,1.0,2.0]]"));
    EXPECT_EQ(m_strOut, "undone: 3\nredone: 2\nredone: 1\nredone: 0\n");
    EXPECT_EQ(Lines(strMade + "UNDO 3\nREDO 9\n"), CJson::parse("[[0.0,2.0,1.0,2.0]]"));
    EXPECT_EQ(m_strOut, "undone: 3\nredone: 3\n");
    EXPECT_EQ(Lines(strMade + "UNDO 2\nMOVE L 0,0 5,0\nREDO 1\n"), CJson::parse("[[5.0,0.0,6.0,0.0]]"));
    EXPECT_EQ(RunScript("UNDO 0\n").m_nStatus, 5);
    EXPECT_EQ(RunScript("UNDO 1.5\n").m_nStatus, 5);
    EXPECT_EQ(RunScript("REDO 0\n").m_nStatus, 5);
}

TEST_F(EditingCommands, UndoBringsErasedEntitiesAndVariablesBack) {
    EXPECT_EQ(Lines("LINE 0,0 1,0\nERASE all\nUNDO 1\n"), CJson::parse("[[0.0,0.0,1.0,0.0]]"));
    EXPECT_EQ(Quiet("SETVAR LTSCALE 5\nUNDO 1\nSETVAR LTSCALE\n"), "undone: 1\n1\n");
}

TEST_F(EditingCommands, CopyOfABlockReferenceHasAttributesOfItsOwn) {
    const CJson entities = Entities("FRAME\nINSERT FRAME 0,0\nCOPY L 0,0 100,0\nMOVE L 0,0 0,7\n");
    ASSERT_EQ(entities.size(), 2U);
    EXPECT_EQ(entities[0]["attributes"][0]["position"], CJson::array({10.0, 5.0, 0.0}));
    EXPECT_EQ(entities[1]["attributes"][0]["position"], CJson::array({110.0, 12.0, 0.0}));
    EXPECT_NE(entities[0]["attributes"][0]["handle"], entities[1]["attributes"][0]["handle"]);
}

TEST_F(EditingCommands, ExplodePutsThePartsInPlaceOfTheEntity) {
    const std::string strFrame = "FRAME\nINSERT FRAME 100,50\nEXPLODE L\n";
    const CJson parts = Entities(strFrame);
    ASSERT_EQ(parts.size(), 2U);
    EXPECT_EQ(parts[0]["class"], "AcDbPolyline");
    EXPECT_EQ(parts[0]["vertices"][1]["at"], CJson::array({120.0, 50.0}));
    EXPECT_EQ(parts[1]["class"], "AcDbText");
    EXPECT_EQ(parts[1]["text"], ToUtf8("未填"));
    EXPECT_EQ(parts[1]["position"], CJson::array({110.0, 55.0, 0.0}));
    const CJson back = Entities(strFrame + "UNDO 1\n");
    ASSERT_EQ(back.size(), 1U);
    EXPECT_EQ(back[0]["attributes"].size(), 1U);
}

TEST_F(EditingCommands, ExplodeTellsOfAnEntityThatHasNoParts) {
    EXPECT_EQ(Lines("LINE 0,0 1,0\nEXPLODE all\n"), CJson::parse("[[0.0,0.0,1.0,0.0]]"));
    EXPECT_TRUE(m_strOut.starts_with("cannot explode #")) << m_strOut;
    EXPECT_TRUE(m_strOut.ends_with(": eNotApplicable\n")) << m_strOut;
}

TEST_F(EditingCommands, ExplodeOfACustomEntityGivesWhatItsClassMakes) {
    const CJson parts = Entities("SHEET 1,2,3\nEXPLODE L\n");
    ASSERT_EQ(parts.size(), 1U);
    EXPECT_EQ(parts[0]["text"], ToUtf8("固结"));
}
