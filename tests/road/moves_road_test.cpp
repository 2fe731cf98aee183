// Charts and frames under the host's editing commands, in real runs with the module.

#include "tests/support/programs.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

namespace {
using CJson = nlohmann::json;

/// One drawing with a frame and a chart that watches it.
class Moves : public testing::Test {
protected:
    Moves() {
        m_program.Do("init \"$ROOT\""); // has the line types
        m_chart = CJson{{"m_strSYFF", Utf8(u8"固结不排水剪")},
                        {"m_ptBase", {-50, 500, 0}},
                        {"m_ptCurveOrigin", {0, 200, 0}},
                        {"m_ptMohrOrigin", {0, 0, 0}},
                        {"m_ptTableOrigin", {200, 300, 0}},
                        {"m_ptSummaryOrigin", {200, 100, 0}},
                        {"m_nMohrRows", 4},
                        {"m_dMohrStepX", 25},
                        {"m_dMohrStepY", 25},
                        {"m_arSigma3", {100}},
                        {"m_ptEnvStart", {0, 10, 0}},
                        {"m_ptEnvEnd", {50, 10, 0}},
                        {"m_ptEnvStartEff", {0, 20, 0}},
                        {"m_ptEnvEndEff", {50, 20, 0}}};
        // The first entity of a drawing has the same handle every time.
        WriteJson("frame.json", {{"class", "CBRENFrame"}});
        m_strFrame = Dump("ADDENTITY " + Path("frame.json") + "\n")[0]["handle"];
    }
    std::string Path(const std::string& strName) const { return m_program.Folder().Path(strName); }
    void WriteJson(const std::string& strName, const CJson& json) const {
        m_program.Folder().Write(strName, json.dump());
    }
    CJson ReadJson(const std::string& strName) const {
        return CJson::parse(m_program.Folder().Read(strName));
    }
    /// Model space after a script that ends well; what it printed is in m_strOut.
    CJson Dump(const std::string& strScript) {
        const CRun run = m_program.Tvcad(strScript + "DUMP " + Path("dump.json") + "\n");
        EXPECT_EQ(run.m_nStatus, 0) << run.m_strErrors;
        m_strOut = run.m_strOut;
        return ReadJson("dump.json")["modelSpace"];
    }
    /// The lines that make the frame and the chart, which is the last entity then.
    std::string Made() const {
        WriteJson("chart.json", {{"class", "CBRENChart"}, {"fields", m_chart}, {"watch", {m_strFrame}}});
        return "ADDENTITY " + Path("frame.json") + "\nADDENTITY " + Path("chart.json") + "\n";
    }
    /// The chart after what the script does with it.
    CJson Chart(const std::string& strThen) { return Dump(Made() + strThen)[1]["fields"]; }
    std::string GripFrame(const std::string& strTo) const {
        return "GRIP #" + m_strFrame + " 0 " + strTo + "\n";
    }
    /// What the last entity draws during a drag.
    CJson Drag(const std::string& strWhat) {
        Dump(Made() + "DUMP " + Path("before.json") + "\nDRAG " + strWhat + " " + Path("drag.json") + "\n");
        EXPECT_EQ(ReadJson("dump.json"), ReadJson("before.json"));
        return ReadJson("drag.json");
    }
    /// The chart as made, but where its points went.
    CJson Shifted(double dx, double dy) {
        CJson fields = Chart("");
        for (auto& item : fields.items()) {
            if (!item.key().starts_with("m_pt") || item.key() == "m_ptBase") continue;
            item.value()[0] = item.value()[0].get<double>() + dx;
            item.value()[1] = item.value()[1].get<double>() + dy;
        }
        return fields;
    }

    CProgram m_program;
    CJson m_chart;
    std::string m_strFrame, m_strOut;
};
} // namespace

TEST_F(Moves, AGripMovesTheMohrPanelOfAChartWithItsLines) {
    const CJson fields = Chart("GRIP L 1 @10,20\n");
    EXPECT_EQ(fields["m_ptMohrOrigin"], CJson({10.0, 20.0, 0.0}));
    EXPECT_EQ(fields["m_ptEnvEnd"], CJson({60.0, 30.0, 0.0}));
    EXPECT_EQ(fields["m_ptEnvStartEff"], CJson({10.0, 40.0, 0.0}));
    EXPECT_EQ(fields["m_ptCurveOrigin"], CJson({0.0, 200.0, 0.0}));
    EXPECT_EQ(fields["m_dGraphC"], 25.0) << "the line lies in the panel as before";
}

TEST_F(Moves, AnAbsolutePointIsCountedFromTheGripAtTheFootOfATable) {
    EXPECT_EQ(Dump(Made())[1]["grips"][2], CJson({200.0, 214.0, 0.0}));
    EXPECT_EQ(Chart("GRIP L 2 210,214\n")["m_ptTableOrigin"], CJson({210.0, 300.0, 0.0}));
}

TEST_F(Moves, TheGraphicalValuesFollowTheEndOfALine) {
    const CJson before = Chart("");
    EXPECT_EQ(before["m_dGraphC"], 25.0);
    EXPECT_EQ(before["m_dGraphPhi"], 0.0);
    const CJson after = Chart("GRIP L 5 @0,50\nGRIP L 6,7 @0,10\n");
    EXPECT_EQ(after["m_dGraphC"], 25.0);
    EXPECT_NEAR(after["m_dGraphPhi"].get<double>(), 45.0, 1e-5);
    EXPECT_EQ(after["m_dGraphCEff"], 75.0);
    EXPECT_EQ(after["m_dAdoptPhi"], 0.0);
    EXPECT_EQ(after["m_dCalcPhi"], 0.0);
}

TEST_F(Moves, AnUndoneGripPutsTheChartBackButForItsListsOfCircles) {
    CJson before = Chart("");
    const CJson undone = Chart("GRIP L 1,5 @10,20\nUNDO 1\n");
    before["m_arSigma3"] = {100.0, 100.0}; // read over in place, and this list is not emptied first
    EXPECT_EQ(undone, before);
}

TEST_F(Moves, ADragOfAChartShowsItsLinesOnlyWhereTheyWouldBe) {
    const CJson drawn = Drag("L 1 @0,5");
    ASSERT_EQ(drawn.size(), 2U);
    EXPECT_EQ(drawn[0]["vertices"][0]["at"], CJson({0.0, 15.0}));
    EXPECT_EQ(drawn[0]["vertices"][1]["at"], CJson({50.0, 15.0}));
    EXPECT_EQ(drawn[1]["vertices"][1]["at"], CJson({50.0, 25.0}));
    EXPECT_EQ(drawn[1]["linetype"], "Dashed2");
}

TEST_F(Moves, ADragLeavesTheVariablesOfTheDrawingAlone) {
    Dump(Made() + "SETVAR LTSCALE 3\nDRAG L 1 @0,5 " + Path("drag.json") + "\nSETVAR LTSCALE\n");
    EXPECT_TRUE(m_strOut.ends_with("3\n")) << m_strOut;
}

TEST_F(Moves, ADragOfAChartWithoutEnvelopeShowsNothing) {
    m_chart["m_bNoEnvelope"] = 1;
    EXPECT_EQ(Drag("L 4 @0,5"), CJson::array());
    const CJson fields = Chart("GRIP L 4 @0,5\n");
    EXPECT_EQ(fields["m_ptEnvStart"], CJson({0.0, 15.0, 0.0})) << "it can be moved all the same";
}

TEST_F(Moves, ADragOfAFrameShowsNothing) {
    EXPECT_EQ(Drag("#" + m_strFrame + " 0 @0,5"), CJson::array());
}

TEST_F(Moves, AChartHasAsManyGripsAsItsMethodLines) {
    m_chart["m_strSYFF"] = Utf8(u8"不固结不排水剪");
    const CRun run = m_program.Tvcad(Made() + "GRIP L 6 @0,5\n");
    EXPECT_EQ(run.m_nStatus, 5);
    EXPECT_NE(run.m_strErrors.find("no such grip: 6 (the last is 5)"), std::string::npos) << run.m_strErrors;
}

TEST_F(Moves, AMoveShiftsAllOfAChartButItsBase) {
    EXPECT_EQ(Chart("MOVE L 0,0 10,20\n"), Shifted(10.0, 20.0));
    const CJson entities = Dump(Made() + "COPY L 0,0 10,20\n");
    ASSERT_EQ(entities.size(), 3U);
    EXPECT_EQ(entities[2]["fields"], Shifted(10.0, 20.0));
}

TEST_F(Moves, AMoveLeavesTheEffectiveLineOfOtherMethodsBehind) {
    m_chart["m_strSYFF"] = Utf8(u8"固结排水剪");
    const CJson fields = Chart("MOVE L 0,0 10,20\n");
    EXPECT_EQ(fields["m_ptEnvEnd"], CJson({60.0, 30.0, 0.0}));
    EXPECT_EQ(fields["m_ptEnvEndEff"], CJson({50.0, 20.0, 0.0}));
}

TEST_F(Moves, ATurnAScaleAndAMirrorOfAChartAreRefusedAndTold) {
    const CJson before = Dump(Made());
    const std::string strChart = before[1]["handle"];
    const auto refused = [&](const std::string& strCommand, const std::string& strWhat) {
        EXPECT_EQ(Dump(Made() + strCommand + "\n"), before) << strCommand;
        EXPECT_EQ(m_strOut, "cannot " + strWhat + " #" + strChart + ": eNotApplicable\n");
    };
    refused("ROTATE L 0,0 90", "rotate");
    refused("ROTATE L 0,0 180", "rotate");
    refused("SCALE L 0,0 2", "scale");
    refused("MIRROR L 0,0 0,1 drop", "mirror");
    EXPECT_EQ(Dump(Made() + "MIRROR L 0,0 0,1 keep\n"), before) << "the copy is gone again";
    EXPECT_TRUE(m_strOut.starts_with("cannot mirror #")) << m_strOut;
}

TEST_F(Moves, AWholeTurnOfAChartIsCarriedOut) {
    EXPECT_NEAR(Chart("ROTATE L 0,0 360\n")["m_ptCurveOrigin"][1].get<double>(), 200.0, 1e-9);
    EXPECT_EQ(m_strOut, "");
}

TEST_F(Moves, AChartFollowsTheGripOfItsFrame) {
    EXPECT_EQ(Chart(GripFrame("@10,20")), Shifted(10.0, 20.0));
    EXPECT_EQ(Dump(Made() + GripFrame("@10,20"))[0]["fields"]["m_ptBase"], CJson({10.0, 20.0, 0.0}));
    EXPECT_EQ(Chart(GripFrame("@0,0")), Shifted(0.0, 0.0));
}

TEST_F(Moves, AnUndoTakesFrameAndChartBackOnceAndARedoForward) {
    CJson before = Dump(Made());
    before[0]["fields"]["m_vecGripOffset"] = {10.0, 20.0, 0.0}; // which no record holds
    before[1]["fields"]["m_arSigma3"] = {100.0, 100.0};         // one copy more with every reading over
    const CJson undone = Dump(Made() + GripFrame("@10,20") + "UNDO 1\n");
    EXPECT_EQ(undone[0], before[0]);
    EXPECT_EQ(undone[1]["fields"], before[1]["fields"]);
    CJson shifted = Shifted(10.0, 20.0);
    shifted["m_arSigma3"] = {100.0, 100.0, 100.0};
    EXPECT_EQ(Chart(GripFrame("@10,20") + "UNDO 1\nREDO 1\n"), shifted);
}

TEST_F(Moves, AMoveOfAFrameGivesItsChartTheOffsetOfTheLastGrip) {
    const std::string strMove = "MOVE #" + m_strFrame + " 0,0 3,0\n";
    EXPECT_EQ(Chart(strMove), Shifted(0.0, 0.0)) << "there was none yet";
    EXPECT_EQ(Chart(GripFrame("@10,20") + strMove), Shifted(20.0, 40.0));
}
