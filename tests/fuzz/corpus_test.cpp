#include "chart/chart_entity.h"
#include "frame/frame_entity.h"
#include "host/files/dwg_drawing_reader.h"
#include "tests/fuzz/dwg_input.h"
#include "tests/fuzz/record_input.h"
#include "tests/road/bren_project.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <set>

namespace {

CInput Contents(const std::filesystem::path& path) {
    std::ifstream stream(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
}

/// Reads every file of a folder of the corpus as its class; the number of them.
template <class T>
int ReadAll(const std::string& strFolder) {
    const CRecordInputs inputs;
    int nFiles = 0;
    for (const auto& entry : std::filesystem::directory_iterator(FUZZ_CORPUS "/" + strFolder)) {
        const CInput bytes = Contents(entry.path());
        const CRecordInput input = inputs.Decode(bytes);
        EXPECT_EQ(inputs.Encode(input), bytes) << entry.path();
        T object;
        CRecordReader reader(input.m_type, input.m_record);
        EXPECT_EQ(object.dwgIn(&reader), Acad::eOk) << entry.path();
        EXPECT_TRUE(reader.IsAtEnd()) << entry.path() << ": not a whole record";
        ++nFiles;
    }
    return nFiles;
}

} // namespace

TEST(FuzzCorpus, IsOfWholeRecords) {
    EXPECT_GE(ReadAll<CBRENChart>("chart"), 4);
    EXPECT_GE(ReadAll<CBRENFrame>("frame"), 3);
}

TEST(FuzzCorpus, IsOfDrawingsThatAreRead) {
    const CModuleClasses classes;
    for (const char* pName : {"empty", "every-kind", "sheet"})
        EXPECT_TRUE(DrawingOfDwg(ReadDwgFile(Contents(FUZZ_CORPUS "/dwg/" + std::string(pName) + ".dwg"))));
}

TEST(FuzzCorpus, IsOfObjectsOfADrawingOfEveryKind) {
    const CModuleClasses classes;
    const CDwgContents contents = DwgOfEveryKind().m_contents;
    std::set<CBytes> all;
    for (const auto& [nHandle, content] : contents)
        all.insert(content);
    int nFiles = 0;
    for (const auto& entry : std::filesystem::directory_iterator(FUZZ_CORPUS "/dwg-object")) {
        EXPECT_TRUE(all.contains(Contents(entry.path()))) << entry.path();
        ++nFiles;
    }
    EXPECT_GE(nFiles, 30);
}

TEST(FuzzCorpus, IsOfScriptsThatRunToTheirEnd) {
    const CBrenProject project(g_arOneSample);
    const std::string strStart =
        "cd \"$ROOT/..\" && " TERVO_BIN "/tvcad --root \"$ROOT\" -q -s " FUZZ_CORPUS "/script/";
    for (const auto& entry : std::filesystem::directory_iterator(FUZZ_CORPUS "/script")) {
        const CRun run = project.m_program.Shell(strStart + entry.path().filename().string());
        EXPECT_EQ(run.m_nStatus, 0) << run.m_strErrors;
    }
}

TEST(FuzzCorpus, IsOfFilesThatAreImportedAndOneThatIsRefused) {
    const CBrenProject project(g_arOneSample);
    const auto import = [&](const std::string& strFile) {
        return project.m_program.Tvdata("import --root \"$ROOT\" --number GC1 " FUZZ_CORPUS "/csv/" + strFile)
            .m_nStatus;
    };
    for (const char* pFile : {"readings", "samples", "layers"})
        EXPECT_EQ(import(pFile), 0) << pFile;
    EXPECT_EQ(import("refused"), 1);
}

TEST(FuzzCorpus, IsOfADatabaseOfASample) {
    const CBrenProject project(g_arOneSample);
    std::filesystem::copy_file(FUZZ_CORPUS "/database/project.db", project.DatabasePath(),
                               std::filesystem::copy_options::overwrite_existing);
    const CJson rows = project.Results();
    ASSERT_EQ(rows.size(), 1U);
    EXPECT_EQ(rows[0]["QYBH"], "1-1");
    project.Run("BREN\n" + Selection("1", "1-1") + "0,0\n" + project.Dump());
    EXPECT_EQ(project.Charts().size(), 1U);
}

TEST(FuzzRecordInput, IsMadeOfWhateverBytes) {
    const CRecordInputs inputs;
    EXPECT_TRUE(inputs.Decode({}).m_record.m_arBytes.empty());
    const CInput bytes = {200, 3, 255, 0}; // three references, and the record is over
    const CRecordInput input = inputs.Decode(bytes);
    EXPECT_EQ(input.m_record.m_arIds.size(), 3U);
    EXPECT_TRUE(input.m_record.m_arIds[1].m_id.isNull());
    EXPECT_TRUE(input.m_record.m_arBytes.empty());
}
