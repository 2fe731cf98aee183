#include "platform/acad/linetype_file.h"

#include "platform/acad/db_database.h"
#include "tests/platform/acad/fake_editor_host.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <random>
#include <unistd.h>

namespace {

const char g_strSample[] = ";; line types\r\n"
                           "*DASHED,Dashed __ __ __\r\n"
                           "A,.5,-.25\r\n"
                           "\r\n"
                           "*Dashed2 , 虚线 _ _ _\r\n"
                           "; between heading and pattern\r\n"
                           " a , 0.25, -.125 ,+0\r\n"
                           "*GAS,Gas\n"
                           "A,.5,-.2,[\"GAS\",STANDARD,S=.1,R=0.0,X=-0.1,Y=-.05],-.25\n"
                           "*BROKEN,x\nA,.5,abc\n"
                           "*DOTS,x\nA,0,0\n"
                           "*CUT,x\n";

/// A folder with the sample as acad.lin, taken away again.
class LoadLineTypeFile : public testing::Test {
protected:
    void SetUp() override {
        m_folder = std::filesystem::temp_directory_path() / ("acad_lin_" + std::to_string(getpid()));
        std::filesystem::create_directories(m_folder);
        std::ofstream(m_folder / "acad.lin", std::ios::binary) << g_strSample;
        m_host.m_mapFiles["acad.lin"] = (m_folder / "acad.lin").string();
        m_host.m_mapFiles["gone.lin"] = (m_folder / "gone.lin").string();
    }
    void TearDown() override { std::filesystem::remove_all(m_folder); }

    std::filesystem::path m_folder;
    CFakeEditorHost m_host;
    AcDbDatabase m_database;
};

} // namespace

TEST(FindLinetype, ReadsNameDescriptionAndDashes) {
    const auto dashed = FindLinetype(g_strSample, L"DASHED2");
    ASSERT_TRUE(dashed);
    EXPECT_EQ(dashed->m_strName, L"Dashed2");
    EXPECT_EQ(dashed->m_strDescription, L"虚线 _ _ _");
    EXPECT_EQ(dashed->m_arDashes, (std::vector<double>{0.25, -0.125, 0.0}));
    EXPECT_EQ(FindLinetype(g_strSample, L"dashed")->m_arDashes, (std::vector<double>{0.5, -0.25}));
}

TEST(FindLinetype, TellsUtf8FromTheCodePage) {
    const std::string utf8 = "*Dashed2,\xE8\x99\x9A\xE7\xBA\xBF\nA,1,-1\n";
    EXPECT_EQ(FindLinetype(utf8, L"Dashed2")->m_strDescription, L"虚线");
    EXPECT_EQ(FindLinetype("\xEF\xBB\xBF" + utf8, L"Dashed2")->m_strDescription, L"虚线");
    const std::string gbkLikeUtf8 = "*Dashed2,\xC4\xBF\nA,1,-1\n"; // a GBK pair that is a two-byte form, too
    EXPECT_EQ(FindLinetype(gbkLikeUtf8, L"Dashed2")->m_strDescription, L"目");
}

TEST(FindLinetype, LeavesOutShapes) {
    EXPECT_EQ(FindLinetype(g_strSample, L"GAS")->m_arDashes, (std::vector<double>{0.5, -0.2, -0.25}));
}

TEST(FindLinetype, GivesNothingForWhatIsNoPattern) {
    EXPECT_FALSE(FindLinetype(g_strSample, L"BROKEN"));
    EXPECT_FALSE(FindLinetype(g_strSample, L"DOTS"));
    EXPECT_FALSE(FindLinetype(g_strSample, L"CUT"));
    EXPECT_FALSE(FindLinetype(g_strSample, L"NONE"));
    EXPECT_FALSE(FindLinetype("", L"NONE"));
    EXPECT_FALSE(FindLinetype("*X,\nA,1e400\n", L"X"));
    EXPECT_FALSE(FindLinetype("*X,\nA,nan,1\n", L"X"));
    EXPECT_FALSE(FindLinetype("*X,\nB,1,-1\n", L"X"));
    EXPECT_FALSE(FindLinetype("*X,\nA,1,[\"open\n", L"Y"));
}

TEST(FindLinetype, SurvivesGarbage) {
    std::mt19937 random(7);
    for (int round = 0; round < 2000; ++round) {
        std::string bytes = g_strSample;
        for (int change = 0; change < 8; ++change)
            bytes[random() % bytes.size()] = static_cast<char>(random());
        bytes.resize(random() % (bytes.size() + 1));
        const auto found = FindLinetype(bytes, L"Dashed2");
        EXPECT_TRUE(!found || !found->m_arDashes.empty());
    }
}

TEST_F(LoadLineTypeFile, AddsTheLineTypeToTheDrawing) {
    ASSERT_EQ(m_database.loadLineTypeFile(L"Dashed2", L"acad.lin"), Acad::eOk);
    const CDbOpen<AcDbLinetypeTable> table(m_database.linetypeTableId());
    AcDbLinetypeTableRecord* pRecord = nullptr;
    ASSERT_EQ(table->getAt(L"DASHED2", pRecord, AcDb::kForRead), Acad::eOk);
    EXPECT_EQ(pRecord->Dashes().size(), 3u);
    EXPECT_EQ(pRecord->Comments(), L"虚线 _ _ _");
    pRecord->close();
}

TEST_F(LoadLineTypeFile, SaysWhyItDoesNot) {
    EXPECT_EQ(m_database.loadLineTypeFile(L"Dashed2", L"none.lin"), Acad::eFileNotFound);
    EXPECT_EQ(m_database.loadLineTypeFile(L"Dashed2", L"gone.lin"), Acad::eFileNotFound);
    EXPECT_EQ(m_database.loadLineTypeFile(L"NoSuch", L"acad.lin"), Acad::eUndefinedLineType);
    EXPECT_EQ(m_database.loadLineTypeFile(L"BROKEN", L"acad.lin"), Acad::eUndefinedLineType);
    EXPECT_EQ(m_database.loadLineTypeFile(L"continuous", L"acad.lin"), Acad::eDuplicateKey);
    EXPECT_EQ(m_database.loadLineTypeFile(L"", L"acad.lin"), Acad::eInvalidInput);
    EXPECT_EQ(m_database.loadLineTypeFile(L"Dashed2", nullptr), Acad::eInvalidInput);
    EXPECT_EQ(m_database.loadLineTypeFile(L"Dashed2", L"acad.lin"), Acad::eOk);
    EXPECT_EQ(m_database.loadLineTypeFile(L"DASHED2", L"acad.lin"), Acad::eDuplicateKey);
}
