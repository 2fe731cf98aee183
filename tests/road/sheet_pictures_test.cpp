// What the pictures of a sheet hold: its texts as texts, its dashes, its fonts, and nothing of values that
// are no numbers.

#include "tests/road/bren_project.h"

#include <algorithm>
#include <fstream>
#include <gtest/gtest.h>
#include <regex>

namespace {
/// A project with the sheet of one set, plotted by a script.
class CPlottedSheet {
public:
    explicit CPlottedSheet(const std::string& strSet)
        : m_project(CMeasuredSamples{{"ZK1", "1-1", strSet}}) {}
    std::string File(const std::string& strName) const { return m_project.m_program.Folder().Path(strName); }
    std::string Read(const std::string& strName) const { return m_project.m_program.Folder().Read(strName); }
    std::string Plot(const std::string& strName) const { return "PLOT " + File(strName) + "\n"; }
    CRun Generate(const std::string& strThen) const {
        return m_project.Run("BREN\n" + Selection("ZK1", "1-1") + "0,0\n" + strThen);
    }
    /// What a program that reads a file prints.
    std::string OutputOf(const std::string& strProgram, const std::string& strName,
                         const std::string& strRest = "") const {
        const CRun run = m_project.m_program.Shell(strProgram + " '" + File(strName) + "' " + strRest);
        EXPECT_EQ(run.m_nStatus, 0) << run.m_strErrors;
        return run.m_strOut;
    }

    const CBrenProject m_project;
};

/// The first group of each match.
std::vector<std::string> Matches(const std::string& strText, const char* pPattern) {
    const std::regex pattern(pPattern);
    std::vector<std::string> matches;
    for (std::sregex_iterator i(strText.begin(), strText.end(), pattern), end; i != end; ++i)
        matches.push_back((*i)[1]);
    return matches;
}

/// The texts of the sheet's picture, its frame's included, without empty ones, sorted.
std::vector<std::string> TextsOf(const CBrenProject& project) {
    std::vector<std::string> texts;
    const auto add = [&texts](const CJson& parts) {
        for (const CJson& part : parts)
            texts.push_back(part.value("text", ""));
    };
    add(project.FrameEntities());
    add(project.Entities());
    for (const CJson& entity : project.Entities()) {
        add(entity.value("attributes", CJson::array()));
        add(entity.value("world", CJson::array()));
    }
    std::erase(texts, "");
    std::sort(texts.begin(), texts.end());
    return texts;
}

/// The UTF-8 characters of texts but blanks, sorted.
std::vector<std::string> CharactersOf(const std::vector<std::string>& texts) {
    std::vector<std::string> characters;
    for (const std::string& strText : texts)
        for (const std::string& strCharacter : Matches(strText, "([\x01-\x7F]|[\xC0-\xFF][\x80-\xBF]+)"))
            if (strCharacter.front() > ' ' || strCharacter.size() > 1) characters.push_back(strCharacter);
    std::sort(characters.begin(), characters.end());
    return characters;
}

class SheetTexts : public testing::TestWithParam<const char*> {};
} // namespace

TEST_P(SheetTexts, AreTextsInSvgAndPdf) {
    const CPlottedSheet sheet(GetParam());
    sheet.Generate(sheet.Plot("a.svg") + sheet.Plot("a.pdf") + sheet.m_project.Dump());
    const std::vector<std::string> texts = TextsOf(sheet.m_project);
    EXPECT_GT(texts.size(), 50U);
    std::vector<std::string> svg = Matches(sheet.Read("a.svg"), "<text [^>]*>([^<]*)</text>");
    std::sort(svg.begin(), svg.end());
    EXPECT_EQ(svg, texts);
    // A reader may part or join the words of neighbouring texts, but it finds each character.
    EXPECT_EQ(CharactersOf({sheet.OutputOf("pdftotext", "a.pdf", "-")}), CharactersOf(texts));
}

INSTANTIATE_TEST_SUITE_P(Methods, SheetTexts, testing::Values("smith-ex3.4", "mafra-ciu", "mafra-cid"),
                         [](const auto& set) {
                             std::string strName = set.param;
                             std::erase_if(strName, [](char c) { return c == '-' || c == '.'; });
                             return strName;
                         });

TEST(SheetPicture, IsInOurFontsAndNamesTheOneThatIsMissing) {
    const CPlottedSheet sheet("smith-ex3.4");
    std::ofstream(sheet.m_project.m_program.Root() + "/Settings.ini", std::ios::app)
        << "\n[QM_PMT_BTFont]\nFont_FontName=NoSuchFont\n";
    const CRun run = sheet.Generate(sheet.Plot("a.pdf") + sheet.Plot("a.png"));
    EXPECT_EQ(Matches(run.m_strOut + run.m_strErrors, "(Font [^\n]*)"),
              std::vector<std::string>{"Font NoSuchFont is not installed and was replaced"});
    // A line for each font, below two of headings.
    const std::vector<std::string> fonts = Matches(sheet.OutputOf("pdffonts", "a.pdf"), "\n([^-\n][^\n]*)");
    EXPECT_FALSE(fonts.empty());
    for (const std::string& strFont : fonts)
        EXPECT_TRUE(std::regex_search(strFont, std::regex("Identity-H +yes"))) << strFont; // embedded
}

TEST(SheetPicture, IsDashedByTheDrawingsScale) {
    const CPlottedSheet sheet("mafra-ciu");
    sheet.Generate(sheet.Plot("a.svg") + "REGEN\n" + sheet.Plot("b.svg") + "SETVAR LTSCALE 20\n" +
                   sheet.Plot("c.svg"));
    const auto dashes = [&](const char* pName) {
        return Matches(sheet.Read(pName), "stroke-dasharray=\"([^\"]*)\"");
    };
    // Four circles and their line; the first to be drawn only loads the line type.
    EXPECT_EQ(dashes("a.svg"), std::vector<std::string>(4, "2 1"));
    EXPECT_EQ(dashes("b.svg"), std::vector<std::string>(5, "2 1"));
    EXPECT_EQ(dashes("c.svg"), std::vector<std::string>(5, "4 2"));
}

TEST(SheetPicture, OfValuesThatAreNoNumbersLeavesThemOut) {
    const CPlottedSheet sheet("uu-clay-load-stroke");
    std::ofstream(sheet.File("chart.json")) << R"({"class": "CBRENChart", "fields": {
        "m_ptBase": ["nan", 0, 0], "m_ptCurveOrigin": [0, "nan", 0], "m_ptMohrOrigin": [300, 0, 0],
        "m_ptEnvStart": ["inf", 0, 0], "m_ptEnvEnd": [10, "-inf", 0], "m_dMohrStepX": "nan", "m_dCurveStepY": 0,
        "m_nCurveRows": 4, "m_nCurveCols": 4, "m_nMohrRows": 3, "m_nMohrCols": 5,
        "m_arTotal": ["nan", "inf", 1, 2, 3, 4], "m_arStrainSeries": [["nan", 0.1, 0.2]],
        "m_arStressSeries": [[1, "inf", 3]]}})";
    sheet.Generate("ADDENTITY " + sheet.File("chart.json") + "\n" + sheet.Plot("a.svg") +
                   sheet.Plot("a.pdf") + sheet.Plot("a.png") + sheet.m_project.Dump());
    EXPECT_EQ(sheet.m_project.Charts().at(1)["m_ptCurveOrigin"][1], "nan");
    const std::string strSvg = sheet.Read("a.svg");
    EXPECT_NE(strSvg.find(">nan<"), std::string::npos); // the first chart's table says it
    for (const std::string& strAttribute : Matches(strSvg, "=\"([^\"]*)\""))
        EXPECT_FALSE(std::regex_search(strAttribute, std::regex("nan|inf"))) << strAttribute;
    EXPECT_NE(sheet.OutputOf("pdfinfo", "a.pdf").find("Pages:           1"), std::string::npos);
    EXPECT_EQ(sheet.Read("a.png").substr(1, 3), "PNG");
}
