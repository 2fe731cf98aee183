// Programs at the same work at once.

#include "tests/road/bren_project.h"

#include <gtest/gtest.h>

namespace {
constexpr int g_nSamplesAtOnce = 20;
constexpr int g_nImports = 15;
constexpr int g_nSavesAtOnce = 15;

class AtOnce : public testing::Test {
protected:
    /// A run of a script, for the shell.
    std::string Tvcad(const std::string& strName, const std::string& strScript) const {
        return TERVO_BIN "/tvcad --root \"$ROOT\" -q -s " + Folder().Write(strName, strScript);
    }
    const CTempFolder& Folder() const { return m_project.m_program.Folder(); }

    const CBrenProject m_project{SamplesOfBorehole(g_nSamplesAtOnce)};
};
} // namespace

TEST_F(AtOnce, ImportsAndStoresLoseNothingOfEachOther) {
    std::string strImports;
    for (int i = 1; i <= g_nImports; ++i) {
        const std::string strName = "layer" + std::to_string(i) + ".csv";
        Folder().Write(strName, "ZKBH,TCCDSD,TCHD,TCMC\nL" + std::to_string(i) + ",5,5,x\n");
        strImports +=
            "$T import --root \"$ROOT\" --number GC1 \"$ROOT/../" + strName + "\" >&2 || echo failed >&2;";
    }
    const CRun run = m_project.m_program.Shell("{ " + strImports + " } 2>\"$ROOT/../imports\" & " +
                                               Tvcad("store.scr", "BREN\ncheck 1063\nok\n0,0\n") +
                                               "; echo \"status $?\"; wait");
    EXPECT_TRUE(run.m_strOut.ends_with("status 0\n")) << run.m_strOut;
    EXPECT_EQ(run.m_strOut.find("not stored"), std::string::npos) << run.m_strOut;
    EXPECT_EQ(Folder().Read("imports").find("failed"), std::string::npos) << Folder().Read("imports");
    EXPECT_EQ(m_project.Sql("SELECT COUNT(*) FROM z_c_SanZhou WHERE UUC IS NOT NULL"),
              std::to_string(g_nSamplesAtOnce) + "\n");
    EXPECT_EQ(m_project.Sql("SELECT COUNT(*) FROM z_g_TuCeng WHERE ZKBH LIKE 'L%'"),
              std::to_string(g_nImports) + "\n");
}

TEST_F(AtOnce, SavesOfOnePathLeaveADrawingOfOneOfThem) {
    for (const char* pEnding : {".dwg", ".dxf"}) {
        const std::string strFile = Folder().Path("shared") + pEnding;
        const auto script = [&](const std::string& strText) {
            std::string strLines = "TEXT 0,0 5 " + strText + "\n";
            for (int i = 0; i < g_nSavesAtOnce; ++i)
                strLines += "SAVEAS " + strFile + "\n";
            return Tvcad(strText + ".scr", strLines);
        };
        const CRun run = m_project.m_program.Shell(script("first") + " & " + script("second") +
                                                   "; s=$?; wait $! && exit $s");
        EXPECT_EQ(run.m_nStatus, 0);
        EXPECT_EQ(run.m_strErrors, "");
        m_project.Run("OPEN " + strFile + "\n" + m_project.Dump());
        const CJson entities = m_project.Entities();
        ASSERT_EQ(entities.size(), 1U);
        EXPECT_TRUE(entities[0]["text"] == "first" || entities[0]["text"] == "second") << entities;
    }
    for (const auto& entry : std::filesystem::directory_iterator(Folder().Path()))
        EXPECT_FALSE(entry.path().filename().string().starts_with(".tervo-")) << entry.path();
}
