// One session of an engineer, from a dragged line to the stored sheet, as one script with its transcript.

#include "tests/road/bren_project.h"

#include <gtest/gtest.h>

namespace {
std::string From(const std::string& strText, const std::string& strEnd) {
    const std::size_t nAt = strText.find(strEnd);
    return nAt == std::string::npos ? "not found: " + strEnd : strText.substr(nAt);
}
} // namespace

TEST(AdoptionStory, ADraggedLineIsStoredShownAndFoundAgain) {
    const CBrenProject project(CMeasuredSamples{{"1", "1-1", "smith-exc4.4"}});
    const CTempFolder& folder = project.m_program.Folder();
    const std::string strFirst = folder.Path("first.json"), strStored = folder.Path("stored.json");
    project.Run("BREN\n" + Selection("1", "1-1") + "0,0\n" + project.Dump());
    std::string strChart;
    for (const CJson& entity : project.Entities())
        if (entity["class"] == "CBRENChart") strChart = "#" + entity["handle"].get<std::string>();

    const CRun run = project.m_program.Shell(
        TERVO_BIN "/tvcad --root \"$ROOT\" -s '" +
        folder.Write("story.scr", "BREN\n" + Selection("1", "1-1") +
                                      "0,0\n; the end of the line, 5 mm up\nGRIP " + strChart +
                                      " 5 @0,5\nDUMP " + strFirst + "\nNEW\nyes\n" + strChart +
                                      "\ncheck 1060\nok\nCLOSE\nDUMP " + strStored +
                                      "\nSAVECHARTS\nBROPEN\nshow\nselect 1056 " + Utf8(u8"试样1-1-1") +
                                      "\nok\nDOCUMENTS\n" + project.Dump()) +
        "'");
    EXPECT_EQ(run.m_nStatus, 0) << run.m_strErrors;
    const std::string strFile =
        project.m_program.Root() + "/Output/GC1/" + Utf8(u8"室内曲线") + "/BR1-1-1.dwg";
    EXPECT_EQ(From(run.m_strOut, "Command: GRIP"),
              "Command: GRIP " + strChart + " 5 @0,5\nCommand: DUMP " + strFirst + "\nCommand: NEW\n" +
                  Utf8(u8"[Tervo] 三轴剪切图中有关数据已改变,是否入库?\n") + "yes/no> yes\n\n" +
                  Utf8(u8"请选择三轴剪切试样曲线:") + strChart +
                  "\ndialog 14> check 1060\ndialog 14> ok\n\n" + Utf8(u8"三轴剪切数据存储成功!\n") +
                  "Command: CLOSE\nCommand: DUMP " + strStored + "\nCommand: SAVECHARTS\nsaved " + strFile +
                  "\nCommand: BROPEN\ndialog 1005> show\n" +
                  Utf8(u8"dialog 1005 \"查看三轴剪切试验成果图\"\n"
                       u8"65535 label enabled \"钻孔编号(&Z)\" \"\"\n1055 list enabled \"\" 1\n  > \"1\"\n"
                       u8"65535 label enabled \"成果图(&T)\" \"\"\n1056 multilist enabled \"\" 1\n"
                       u8"    \"试样1-1-1\"\n1 button enabled \"确定\" \"\"\n2 button enabled \"取消\" \"\"\n"
                       u8"dialog 1005> select 1056 试样1-1-1\ndialog 1005> ok\n") +
                  "Command: zoom e\nCommand: DOCUMENTS\n1   " + strFile + "\n2 * " + strFile +
                  "\nCommand: DUMP " + folder.Path("dump.json") + "\n");

    const auto chartOf = [&](const char* pFile) {
        const CJson dump = CJson::parse(folder.Read(pFile));
        CJson fields;
        for (const CJson& entity : dump["modelSpace"])
            if (entity["class"] == "CBRENChart") fields = entity["fields"];
        return fields;
    };
    const CJson dragged = chartOf("first.json"), stored = chartOf("stored.json"),
                opened = chartOf("dump.json");
    const CJson row = project.Results().at(0);
    EXPECT_GT(dragged["m_dGraphPhi"].get<double>(), dragged["m_dCalcPhi"].get<double>() + 0.1);
    EXPECT_NEAR(row["CDC"].get<double>(), dragged["m_dGraphC"].get<double>(), 0.01);
    EXPECT_NEAR(row["CDF"].get<double>(), dragged["m_dGraphPhi"].get<double>(), 0.01);
    for (const CJson& chart : {stored, opened}) {
        EXPECT_EQ(chart["m_dAdoptC"], row["CDC"]);
        EXPECT_EQ(chart["m_dAdoptPhi"], row["CDF"]);
        EXPECT_NEAR(chart["m_dGraphC"].get<double>(), row["CDC"].get<double>(), 1e-4);
        EXPECT_NEAR(chart["m_dGraphPhi"].get<double>(), row["CDF"].get<double>(), 1e-4);
    }
}
