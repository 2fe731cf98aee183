// ADDENTITY in real runs.

#include <nlohmann/json.hpp>

#include "tests/host/console/program_run.h"

namespace {

class AddEntity : public CProgramRun {
protected:
    CProgramResult Add(const std::string& strJson, const std::string& strAfter = {}) const {
        WriteFile("entity.json", ToUtf8(strJson));
        return RunScript("ADDENTITY entity.json\n" + strAfter, "-q");
    }
    /// The line on standard error of an addition that is refused.
    std::string Refusal(const std::string& strJson, int nStatus = 5) const {
        const CProgramResult result = Add(strJson, "DUMP after.json\n");
        EXPECT_EQ(result.m_nStatus, nStatus) << strJson;
        EXPECT_FALSE(std::filesystem::exists(m_folder / "after.json"));
        return result.m_strErr;
    }
    nlohmann::ordered_json Entity(size_t index) const {
        return nlohmann::ordered_json::parse(ReadFile(m_folder / "a.json"))["modelSpace"][index];
    }
};

} // namespace

TEST_F(AddEntity, SetsTheFieldsThatAreNamedAndLeavesTheOthers) {
    const CProgramResult result = Add(R"({"class":"CSampleSheet","fields":{
        "m_strName":"乙","m_ptOrigin":[1,2.5,-3],"m_nCount":12,"m_flag":0,"m_dValue":"-inf",
        "m_idStyle":"Standard","m_numbers":[1,"nan"],"m_texts":["丙",""],"m_arLists":[[],[2]]}})",
                                      "DUMP a.json\n");
    EXPECT_EQ(result.m_nStatus, 0) << result.m_strErr;
    EXPECT_EQ(Entity(0)["class"], "CSampleSheet");
    EXPECT_EQ(Entity(0)["fields"].dump(),
              ToUtf8(R"({"m_strName":"乙","m_ptOrigin":[1.0,2.5,-3.0],"m_nCount":12,"m_flag":0,)"
                     R"("m_dValue":"-inf","m_dNone":"nan","m_idStyle":"Standard","m_numbers":[1.0,"nan"],)"
                     R"("m_texts":["丙",""],"m_arLists":[[],[2.0]]})"));
}

TEST_F(AddEntity, TakesBackWhatADumpShows) {
    ASSERT_EQ(RunScript("SHEET 1,2,3\nDUMP a.json\n").m_nStatus, 0);
    const nlohmann::ordered_json fields = Entity(0)["fields"];
    WriteFile("entity.json", R"({"class":"CSampleSheet","fields":)" + fields.dump() + "}");
    ASSERT_EQ(RunScript("ADDENTITY entity.json\nDUMP a.json\n").m_nStatus, 0);
    EXPECT_EQ(Entity(0)["fields"], fields);
}

TEST_F(AddEntity, MakesAnEntityOfThePlatformToo) {
    EXPECT_EQ(Add(R"({"class":"AcDbLine"})", "DUMP a.json\n").m_nStatus, 0);
    EXPECT_EQ(Entity(0)["end"].dump(), "[0.0,0.0,0.0]");
}

TEST_F(AddEntity, WatchesTheEntitiesNamed) {
    ASSERT_EQ(RunScript("LINE 0,0 1,1\nDUMP a.json\n").m_nStatus, 0);
    const std::string handle = Entity(0)["handle"];
    WriteFile("entity.json", R"({"class":"CSampleSheet","watch":[")" + handle + "\"]}");
    const CProgramResult result =
        RunScript("LINE 0,0 1,1\nADDENTITY entity.json\nTELL\nMOVE #" + handle + " 0,0 1,0\n", "-q");
    EXPECT_EQ(result.m_nStatus, 0) << result.m_strErr;
    EXPECT_NE(result.m_strOut.find(" heard of " + handle + "\n"), std::string::npos) << result.m_strOut;
}

TEST_F(AddEntity, RefusesWhatItCannotMakeAndAddsNothing) {
    EXPECT_EQ(Refusal(R"({"class":"CNone"})"), "script:1: no such class: CNone\n");
    EXPECT_EQ(Refusal(R"({"class":"AcDbEntity"})"), "script:1: no entity can be made of class AcDbEntity\n");
    EXPECT_EQ(Refusal(R"({"class":"AcDbLayerTableRecord"})"),
              "script:1: no entity can be made of class AcDbLayerTableRecord\n");
    EXPECT_EQ(Refusal(R"({"fields":{}})"), "script:1: \"class\" is the name of a class\n");
    EXPECT_EQ(Refusal(R"({"class":"AcDbLine","color":3})"), "script:1: entity.json: no such member: color\n");
    EXPECT_EQ(Refusal(R"({"class":"AcDbLine","fields":{"m_nCount":1}})"),
              "script:1: the class has no field m_nCount\n");
    EXPECT_EQ(Refusal(R"({"class":"CSampleSheet","watch":["FF"]})"), "script:1: no entity there: #FF\n");
    EXPECT_EQ(Refusal(R"({"class":"CSampleSheet","watch":[17]})"),
              "script:1: a watched entity is told by its handle, a text\n");
}

TEST_F(AddEntity, RefusesAValueThatTheFieldCannotHold) {
    EXPECT_EQ(Refusal(R"({"class":"CSampleSheet","fields":{"m_nCount":"3"}})"),
              "script:1: \"3\" is no whole number of 32 bits\n");
    EXPECT_EQ(Refusal(R"({"class":"CSampleSheet","fields":{"m_nCount":32768}})"),
              "script:1: field m_nCount cannot hold 32768\n");
}

TEST_F(AddEntity, TellsOfAFileThatCannotBeRead) {
    EXPECT_EQ(Refusal("{\"class\"", 4), "script:1: entity.json is no JSON object\n");
    EXPECT_EQ(Refusal("[]", 4), "script:1: entity.json is no JSON object\n");
    const CProgramResult result = RunScript("ADDENTITY none.json\n");
    EXPECT_EQ(result.m_nStatus, 4);
    EXPECT_EQ(result.m_strErr, "script:1: none.json cannot be read\n");
}
