// Writes the corpus of the record targets, of drawing files and of the database anew: fuzz_make_corpus
// FOLDER. It is committed; a record that has changed needs new ones.

#include "chart/chart_entity.h"
#include "frame/frame_entity.h"
#include "host/datamanager/layout.h"
#include "host/files/dwg_record.h"
#include "platform/acad/host_application.h"
#include "platform/acad/result_buffer.h"
#include "platform/ado/sqlite_provider.h"
#include "tests/fuzz/dwg_input.h"
#include "tests/fuzz/record_input.h"
#include "tests/support/readings.h"
#include "tests/support/sample_drawing.h"

#include <filesystem>
#include <fstream>
#include <iostream>
#include <set>

namespace {

void WriteFile(const std::filesystem::path& path, const CBytes& bytes) {
    std::ofstream(path, std::ios::binary)
        .write(reinterpret_cast<const char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
}

class CCorpus {
public:
    explicit CCorpus(std::filesystem::path folder)
        : m_folder(std::move(folder)) {
        std::filesystem::create_directories(m_folder);
    }
    void Add(const std::string& strName, const AcDbObject& object, AcDb::FilerType type) {
        WriteFile(m_folder / strName, m_inputs.Encode({type, RecordOf(object, type)}));
    }
    AcDbDatabase& Drawing() { return m_inputs.Drawing(); }

private:
    std::filesystem::path m_folder;
    CRecordInputs m_inputs;
};

void Compute(CBRENChart& chart, const std::string& strSet) {
    chart.m_strSYFF = MethodOf(strSet);
    chart.m_strZKBH = "ZK1";
    chart.m_strSoilName = "粉质黏土";
    CReduction reduction(chart);
    for (const CTestReading& reading : ReadingsOf(strSet))
        reduction.AddReading(reading);
    reduction.Finish();
    chart.m_saCells.Add("固结不排水剪");
    chart.m_saCellsEff.Add("");
}

void AddCharts(CCorpus& corpus) {
    corpus.Add("empty", CBRENChart(), AcDb::kFileFiler);
    CBRENChart single, effective;
    Compute(single, "uu-ring-single");
    corpus.Add("single", single, AcDb::kCopyFiler);
    Compute(effective, "smith-ex3.4");
    effective.m_idTextStyle = corpus.Drawing().textstyle();
    effective.setLayer(corpus.Drawing().clayer());
    corpus.Add("computed", effective, AcDb::kUndoFiler);
    corpus.Add("computed-file", effective, AcDb::kFileFiler);
}

void AddFrames(CCorpus& corpus) {
    corpus.Add("empty", CBRENFrame(), AcDb::kFileFiler);
    CBRENFrame frame;
    frame.m_ptBase.set(10.0, 297.0, 0.0);
    frame.m_nGCSY = 1;
    frame.m_strGCMC = "地铁三号线勘察";
    frame.m_strZKBH = "ZK1";
    frame.m_sSYZ = std::string(99, 'x').c_str();
    frame.m_bRQ = frame.m_bSYZ = 1;
    frame.m_nYear = 2024;
    frame.m_idTextStyle = frame.m_idBannerStyle = corpus.Drawing().textstyle();
    corpus.Add("filled", frame, AcDb::kCopyFiler);
    const CResbufChain chain(acutBuildList(1001, L"ACAD", 1000, L"图框", 1040, 2.5, 1071, 7, RTNONE));
    frame.setXData(chain.Get());
    corpus.Add("with-data", frame, AcDb::kUndoFiler);
}

void AddDrawings(const std::filesystem::path& folder) {
    std::filesystem::create_directories(folder);
    WriteFile(folder / "empty.dwg", WriteDwgFile(DwgFilledBy([](AcDbDatabase&) {})));
    WriteFile(folder / "every-kind.dwg", WriteDwgFile(DwgFilledBy(AddOneOfEachKind)));
    CDwgFile sheet = DwgFilledBy(AddSheet);
    WriteFile(folder / "sheet.dwg", WriteDwgFile(sheet));
    for (CDwgClass& fileClass : sheet.m_arClasses)
        if (fileClass.m_bEntities) fileClass.m_strClassName += "OfAnother";
    WriteFile(folder / "unknown-classes.dwg", WriteDwgFile(sheet));
}

/// One object of each type.
void AddDrawingObjects(const std::filesystem::path& folder) {
    std::filesystem::create_directories(folder);
    std::set<std::uint16_t> types;
    const CDwgFile file = DwgOfEveryKind();
    for (const auto& [nHandle, content] : file.m_contents) {
        const std::uint16_t nType = ReadDwgRecord(content, nHandle).m_nType;
        if (types.insert(nType).second) WriteFile(folder / ("type-" + std::to_string(nType)), content);
    }
}

/// A project's database of one sample. Small pages leave few bytes without a meaning.
void AddDatabase(const std::filesystem::path& folder) {
    std::filesystem::create_directories(folder);
    const std::string strFile = folder / "project.db";
    std::filesystem::remove(strFile);
    const auto pDatabase = CreateSqliteDatabase(strFile);
    pDatabase->Execute("PRAGMA page_size = 512");
    pDatabase->Execute("VACUUM");
    LayOutTables(*pDatabase, ProjectTables());
    pDatabase->Execute("INSERT INTO x_GongCheng VALUES (1, 'GC1', '地铁三号线', 0, 0)");
    pDatabase->Execute(
        "INSERT INTO z_c_SanZhou (GCSY, ZKBH, QYBH, SYFF) VALUES (1, '1', '1-1', '不固结不排水剪')");
    pDatabase->Execute("INSERT INTO z_c_QuYang VALUES (1, '1', '1-1', 1, 0.2, 24, 0, 12, 28)");
    pDatabase->Execute("INSERT INTO z_g_TuCeng VALUES (1, '1', 15, 15, '粘土')");
    for (const char* pReading : {"1, 1, 100, 80, 39.1, 1, 0, 200", "2, 1, 200, 80, 39.1, 1, 0, 300"})
        pDatabase->Execute("INSERT INTO z_c_SanZhouCSXM VALUES (1, '1', '1-1', " + std::string(pReading) +
                           ", 500, 0, 0, 0, 2)");
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::cerr << "usage: fuzz_make_corpus FOLDER\n";
        return 2;
    }
    const std::filesystem::path folder = argv[1];
    CCorpus charts(folder / "chart"), frames(folder / "frame");
    acdbHostApplicationServices()->setWorkingDatabase(&frames.Drawing());
    AddCharts(charts);
    AddFrames(frames);
    acdbHostApplicationServices()->setWorkingDatabase(nullptr);
    const CModuleClasses classes;
    AddDrawings(folder / "dwg");
    AddDrawingObjects(folder / "dwg-object");
    AddDatabase(folder / "database");
    return 0;
}
