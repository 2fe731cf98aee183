// LINE, PLINE, ARC, TEXT and INSERT in real runs.

#include "tests/host/console/program_run.h"

#include <nlohmann/json.hpp>

#include <numbers>

using CJson = nlohmann::ordered_json;

class MakingCommands : public CProgramRun {
protected:
    /// The entities after a script that ends well.
    CJson Entities(const std::string& strScript) {
        const CProgramResult result = RunScript(strScript + "DUMP a.json\n");
        EXPECT_EQ(result.m_nStatus, 0) << result.m_strErr;
        return CJson::parse(ReadFile(m_folder / "a.json"))["modelSpace"];
    }
};

TEST_F(MakingCommands, LineLeadsFromPointToPoint) {
    const CJson entities = Entities("LINE 1,2 @3,4\nLINE\n0,0,5\n1,1\n");
    ASSERT_EQ(entities.size(), 2U);
    EXPECT_EQ(entities[0]["class"], "AcDbLine");
    EXPECT_EQ(entities[0]["dxfName"], "LINE");
    EXPECT_EQ(entities[0]["start"], CJson::array({1.0, 2.0, 0.0}));
    EXPECT_EQ(entities[0]["end"], CJson::array({4.0, 6.0, 0.0}));
    EXPECT_EQ(entities[1]["start"], CJson::array({0.0, 0.0, 5.0}));
}

TEST_F(MakingCommands, PlineTakesPointsUntilEnd) {
    const CJson entities = Entities("PLINE 0,0 10,0 @0,5 end\nPLINE\n1,1\nend\n");
    ASSERT_EQ(entities.size(), 2U);
    EXPECT_EQ(entities[0]["vertices"].size(), 3U);
    EXPECT_EQ(entities[0]["vertices"][2]["at"], CJson::array({10.0, 5.0}));
    EXPECT_EQ(entities[0]["closed"], false);
    EXPECT_EQ(entities[1]["vertices"].size(), 1U);
    EXPECT_EQ(RunScript("PLINE end\n").m_nStatus, 5);
}

TEST_F(MakingCommands, ArcTakesItsAnglesInDegrees) {
    const CJson entities = Entities("ARC 5,5 2.5 90 180\n");
    ASSERT_EQ(entities.size(), 1U);
    EXPECT_EQ(entities[0]["class"], "AcDbArc");
    EXPECT_EQ(entities[0]["radius"], 2.5);
    EXPECT_EQ(entities[0]["startAngle"], 90.0 * std::numbers::pi / 180.0);
    EXPECT_EQ(entities[0]["normal"], CJson::array({0.0, 0.0, 1.0}));
    EXPECT_EQ(RunScript("ARC 5,5 0 90 180\n").m_nStatus, 5);
}

TEST_F(MakingCommands, TextStandsInTheCurrentStyle) {
    const CJson entities = Entities("TEXT 1,2 2.5 \"轴向应变 (%)\"\n");
    ASSERT_EQ(entities.size(), 1U);
    EXPECT_EQ(entities[0]["text"], ToUtf8("轴向应变 (%)"));
    EXPECT_EQ(entities[0]["style"], "Standard");
    EXPECT_EQ(entities[0]["height"], 2.5);
}

TEST_F(MakingCommands, RefuseWhatIsNoPointAndWordsTooMany) {
    EXPECT_EQ(RunScript("LINE 1,2 there\n").m_strErr, "script:1: not a point: there\n");
    EXPECT_EQ(RunScript("LINE 1,2 3,4 5,6\n").m_nStatus, 5);
    EXPECT_EQ(RunScript("LINE 1,2\n").m_nStatus, 3);
    EXPECT_EQ(RunScript("LINE 1,2\ncancel\nLIST L\n").m_strErr, "script:3: no entity there: L\n");
}

TEST_F(MakingCommands, InsertShowsABlockAtAPointWithItsAttributes) {
    const CJson entities = Entities("FRAME\nINSERT frame 100,50\n");
    ASSERT_EQ(entities.size(), 1U);
    const CJson& reference = entities[0];
    EXPECT_EQ(reference["class"], "AcDbBlockReference");
    EXPECT_EQ(reference["dxfName"], "INSERT");
    EXPECT_EQ(reference["block"], "FRAME");
    EXPECT_EQ(reference["position"], CJson::array({100.0, 50.0, 0.0}));
    EXPECT_EQ(reference["rotation"], 0.0);
    EXPECT_EQ(reference["scale"], CJson::array({1.0, 1.0, 1.0}));
    ASSERT_EQ(reference["attributes"].size(), 1U);
    const CJson& attribute = reference["attributes"][0];
    EXPECT_EQ(attribute["class"], "AcDbAttribute");
    EXPECT_EQ(attribute["text"], ToUtf8("未填"));
    EXPECT_EQ(attribute["position"], CJson::array({110.0, 55.0, 0.0}));
    EXPECT_EQ(attribute["tag"], ToUtf8("图号"));
    EXPECT_EQ(attribute["fieldLength"], 25);
    EXPECT_EQ(attribute["constant"], false);
}

TEST_F(MakingCommands, InsertRefusesABlockThatIsNotThereAndModelSpace) {
    EXPECT_EQ(RunScript("INSERT FRAME 0,0\n").m_strErr, "script:1: no such block: FRAME\n");
    EXPECT_EQ(RunScript("INSERT *Model_Space 0,0\n").m_nStatus, 5);
    EXPECT_EQ(RunScript("FRAME\nINSERT FRAME 0,0 1\n").m_nStatus, 5);
}

TEST_F(MakingCommands, AnInsertedBlockIsPickedByWhatItShows) {
    EXPECT_EQ(RunScript("FRAME\nINSERT FRAME 100,50\nLIST 110,50.5\nLIST 111,56\n").m_nStatus, 0);
    EXPECT_EQ(RunScript("FRAME\nINSERT FRAME 100,50\nLIST 10,0\n").m_nStatus, 5);
}
