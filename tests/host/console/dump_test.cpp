#include "host/console/dump.h"

#include <nlohmann/json.hpp>

#include "tests/host/console/program_run.h"

namespace {

using CJsonValue = nlohmann::ordered_json;

class Dump : public CProgramRun {
protected:
    CJsonValue DumpAfter(const std::string& strScript) const {
        const CProgramResult result = RunScript(strScript + "\nDUMP a.json\nDUMP b.json\n");
        EXPECT_EQ(result.m_nStatus, 0) << result.m_strErr;
        EXPECT_EQ(ReadFile(m_folder / "a.json"), ReadFile(m_folder / "b.json"));
        return CJsonValue::parse(ReadFile(m_folder / "a.json"));
    }
    static std::vector<std::string> KeysOf(const CJsonValue& json) {
        std::vector<std::string> keys;
        for (const auto& item : json.items())
            keys.push_back(item.key());
        return keys;
    }
    using CKeys = std::vector<std::string>;
};

} // namespace

TEST_F(Dump, AnEmptyDrawingHasItsVariablesAndTables) {
    const CJsonValue json = DumpAfter("");
    EXPECT_EQ(KeysOf(json), (CKeys{"drawing", "sysvars", "textStyles", "linetypes", "blocks", "modelSpace"}));
    EXPECT_EQ(json["drawing"], "Drawing1");
    EXPECT_EQ(json["sysvars"].dump(),
              R"({"LTSCALE":1.0,"CELTYPE":"ByLayer","CLAYER":"0","TEXTSTYLE":"Standard","SDI":0})");
    ASSERT_EQ(json["textStyles"].size(), 1U);
    EXPECT_EQ(KeysOf(json["textStyles"][0]),
              (CKeys{"name", "font", "fileName", "bigFontFile", "bold", "italic", "charset", "pitchAndFamily",
                     "height", "xScale", "oblique"}));
    EXPECT_EQ(json["linetypes"][2].dump(), R"({"name":"Continuous","description":"","dashes":[]})");
    EXPECT_TRUE(json["blocks"].empty());
    EXPECT_TRUE(json["modelSpace"].empty());
}

TEST_F(Dump, APolylineAndATextHaveTheirMembersInOrder) {
    const CJsonValue json = DumpAfter("LINES");
    const CJsonValue& polyline = json["modelSpace"][0];
    EXPECT_EQ(KeysOf(polyline), (CKeys{"handle", "class", "dxfName", "layer", "color", "linetype", "xdata",
                                       "vertices", "closed"}));
    EXPECT_EQ(polyline["class"], "AcDbPolyline");
    EXPECT_EQ(polyline["vertices"].dump(),
              R"([{"at":[0.0,0.0],"bulge":0.0,"startWidth":-1.0,"endWidth":-1.0},)"
              R"({"at":[20.0,0.0],"bulge":0.0,"startWidth":-1.0,"endWidth":-1.0}])");
    EXPECT_EQ(polyline["closed"], false);
    const CJsonValue& text = json["modelSpace"][1];
    EXPECT_EQ(KeysOf(text), (CKeys{"handle", "class", "dxfName", "layer", "color", "linetype", "xdata",
                                   "position", "text", "height", "rotation", "widthFactor", "oblique",
                                   "style", "horizontalMode", "verticalMode", "alignment", "extents"}));
    EXPECT_EQ(text["text"], ToUtf8("固结"));
    EXPECT_EQ(text["style"], "Standard");
    EXPECT_EQ(text["color"], 256);
    EXPECT_EQ(text["linetype"], "ByLayer");
    EXPECT_EQ(text["extents"][0].dump(), "[0.0,200.0]");
    EXPECT_EQ(text["extents"][1][1], 205.0);
}

TEST_F(Dump, ABlockItsReferencesAndTheirAttributesHaveTheirMembersInOrder) {
    const CKeys common = {"handle", "class", "dxfName", "layer", "color", "linetype", "xdata"};
    const CKeys text = {"position", "text",  "height",         "rotation",     "widthFactor",
                        "oblique",  "style", "horizontalMode", "verticalMode", "alignment",
                        "extents",  "tag",   "fieldLength",    "constant"};
    CKeys attribute = common, reference = common;
    attribute.insert(attribute.end(), text.begin(), text.end());
    for (const char* const szKey : {"block", "position", "rotation", "scale", "attributes"})
        reference.emplace_back(szKey);
    const CJsonValue json = DumpAfter("FRAME\nINSERT FRAME 1,2");
    ASSERT_EQ(json["blocks"].size(), 1U);
    EXPECT_EQ(KeysOf(json["blocks"][0]), (CKeys{"name", "base", "entities"}));
    EXPECT_EQ(json["blocks"][0]["name"], "FRAME");
    EXPECT_EQ(KeysOf(json["blocks"][0]["entities"][1]), attribute);
    EXPECT_EQ(json["blocks"][0]["entities"][1]["class"], "AcDbAttributeDefinition");
    EXPECT_EQ(KeysOf(json["modelSpace"][0]), reference);
    EXPECT_EQ(KeysOf(json["modelSpace"][0]["attributes"][0]), attribute);
}

TEST_F(Dump, FieldsStandInDeclaredOrderWithTheirKinds) {
    const CJsonValue json = DumpAfter("SHEET 1,2,3");
    const CJsonValue& sheet = json["modelSpace"][0];
    EXPECT_EQ(KeysOf(sheet), (CKeys{"handle", "class", "dxfName", "layer", "color", "linetype", "xdata",
                                    "fields", "grips", "explode", "world"}));
    EXPECT_EQ(sheet["class"], "CSampleSheet");
    EXPECT_EQ(sheet["dxfName"], "SAMPLESHEET");
    EXPECT_EQ(
        sheet["fields"].dump(),
        ToUtf8(
            R"({"m_strName":"试样\"1\"","m_ptOrigin":[1.0,2.0,3.0],"m_nCount":-7,"m_flag":1,"m_dValue":0.1,)"
            R"("m_dNone":"nan","m_idStyle":"Standard","m_numbers":[1.0,"-inf"],"m_texts":["甲",""],)"
            R"("m_arLists":[[1.5],[]]})"));
    EXPECT_EQ(sheet["grips"].dump(), "[[1.0,2.0,3.0],[101.0,2.0,3.0]]");
}

TEST_F(Dump, ExplodeListsThePartsWithoutHandles) {
    const CJsonValue json = DumpAfter("SHEET 1,2,3");
    const CJsonValue& parts = json["modelSpace"][0]["explode"];
    ASSERT_EQ(parts.size(), 1U);
    EXPECT_EQ(KeysOf(parts[0])[0], "class");
    EXPECT_EQ(parts[0]["text"], ToUtf8("固结"));
}

TEST_F(Dump, ExplodeIsEmptyWhenItFails) {
    EXPECT_EQ(DumpAfter("BROKEN")["modelSpace"][0]["explode"].dump(), "[]");
}

TEST_F(Dump, WorldListsThePrimitivesWithTheTraitsInForce) {
    const CJsonValue json = DumpAfter("SHEET 0,0");
    const CJsonValue& world = json["modelSpace"][0]["world"];
    ASSERT_EQ(world.size(), 5U);
    EXPECT_EQ(world[0].dump(), R"({"prim":"polyline","color":256,"linetype":"ByLayer","marker":0,)"
                               R"("points":[[0.0,0.0,0.0],[100.0,0.0,0.0]]})");
    EXPECT_EQ(world[1].dump(), R"({"prim":"arc","color":1,"linetype":"","marker":4,"center":[0.0,0.0,0.0],)"
                               R"("radius":10.0,"normal":[0.0,0.0,1.0],"start":[1.0,0.0,0.0],"sweep":1.5})");
    EXPECT_EQ(world[2].dump(),
              ToUtf8(R"({"prim":"text","color":1,"linetype":"","marker":4,"position":[0.0,0.0,0.0],)"
                     R"("normal":[0.0,0.0,1.0],"direction":[1.0,0.0,0.0],"text":"固结","length":-1,)"
                     R"("height":2.5,"xScale":1.0,"oblique":0.0,"tracking":80.0,"font":"仿宋_GB2312"})"));
    EXPECT_EQ(world[3]["prim"], "pline");
    EXPECT_EQ(world[3]["vertices"][0].dump(),
              R"({"at":[0.0,50.0],"bulge":0.5,"startWidth":0.25,"endWidth":0.25})");
    EXPECT_EQ(world[4].dump(),
              R"({"prim":"spline","color":1,"linetype":"","marker":4,)"
              R"("fitPoints":[[0.0,60.0,0.0],[10.0,70.0,0.0]],"order":4,"fitTolerance":0.0})");
}

TEST_F(Dump, WhatExplodingAndDrawingChangedIsPutBack) {
    // The sheet's drawing sets LTSCALE to 5 and its explosion to 99, each with a style made current.
    const CJsonValue json = DumpAfter("SHEET 0,0\nSETVAR LTSCALE 7\nSETVAR TEXTSTYLE Standard");
    EXPECT_EQ(json["sysvars"]["LTSCALE"], 7.0);
    EXPECT_EQ(json["textStyles"].size(),
              2U); // Standard and DrawnStyle, which drawing at the end of SHEET made
    EXPECT_EQ(Quiet("SHEET 0,0\nSETVAR LTSCALE 7\nSETVAR TEXTSTYLE Standard\nDUMP a.json\nSETVAR LTSCALE\n"
                    "SETVAR TEXTSTYLE\n"),
              "\npoint 0 0 0\n7\nStandard\n");
    EXPECT_EQ(RunScript("SHEET 0,0\nDUMP a.json\nMEASURE ExplodedStyle 1 a\n").m_nStatus, 5);
}
