#pragma once
// A project for runs of BREN, whose tables a test may spoil.

#include "tests/support/programs.h"

#include <nlohmann/json.hpp>

using CJson = nlohmann::json;

inline const std::string g_strUU = Utf8(u8"不固结不排水剪");
inline const std::string g_strCU = Utf8(u8"固结不排水剪");
inline const std::string g_strCD = Utf8(u8"固结排水剪");

/// What the dialog prints for a selection whose rows are all there.
inline const std::string g_strReading = Utf8(u8"\n读取z_c_QuYang表数据...\n读取z_g_TuCengSet表数据...");
inline const std::string g_strSampleRead = Utf8(u8"\n读取z_c_QuYang表数据成功!");
inline const std::string g_strLayerRead = Utf8(u8"\n读取z_g_TuCengSet表数据成功!\n");
inline const std::string g_strAllRead = g_strReading + g_strSampleRead + g_strLayerRead;

inline const std::string g_strFaultyData = Utf8(u8"[Tervo] 三轴剪切试验初始数据错误!\n");
inline const std::string g_strPointPrompt = Utf8(u8"请指定三轴剪切曲线BREN_的左下插入点:");

/// A sample with two specimens, a reading of each.
struct CTestSample {
    std::string m_strZKBH, m_strQYBH;
    std::string m_strSYFF = g_strUU;
};
using CSamples = std::vector<CTestSample>;
inline const CSamples g_arOneSample{CTestSample{"1", "1-1"}};

/// A measured sample under a number of the test's own: the one of a set below tests/data/readings.
struct CMeasuredSample {
    std::string m_strZKBH, m_strQYBH, m_strSet;
};
using CMeasuredSamples = std::vector<CMeasuredSample>;

/// What is imported into a project: CSV, UTF-8, without the header lines.
struct CImportRows {
    std::string m_strSamples, m_strLayers, m_strReadings;
};
/// The rows of samples, each borehole in one layer.
CImportRows RowsOf(const CSamples& samples);

/// So many samples of borehole 1, numbered 1-1, 1-2, ...
CSamples SamplesOfBorehole(int nCount);
CImportRows RowsOf(const CMeasuredSamples& samples);
/// Writes samples.csv, layers.csv and readings.csv of the rows.
void WriteImportFiles(const CTempFolder& folder, const CImportRows& rows);

/// Project GC1, GCSY 1, running.
class CBrenProject {
public:
    /// In a database of its own, or in the one that strConnect names.
    template <class Sample>
    explicit CBrenProject(const std::vector<Sample>& samples, int nStandard = 0,
                          const std::string& strConnect = "")
        : CBrenProject(RowsOf(samples), nStandard, strConnect) {}
    CBrenProject(const CImportRows& rows, int nStandard, const std::string& strConnect = "");

    /// Runs a statement on the project's database; see CProgram::Sql.
    std::string Sql(const std::string& strSql) const { return m_program.Sql(m_strDatabase, strSql); }
    /// Replaces the time that a lock of the database is waited for, in milliseconds.
    void SetLockTimeout(int nMilliseconds) const;
    std::string DatabasePath() const { return m_program.Root() + "/" + m_strDatabase; }

    /// Runs `tvcad` on a script that it comes to the end of.
    CRun Run(const std::string& strScript) const;
    /// A script line that writes the drawing to the file that Entities then reads.
    std::string Dump() const { return "DUMP " + m_program.Folder().Path("dump.json") + "\n"; }
    /// Model space as it was dumped last.
    CJson Entities() const;
    /// What it shows of the block of frames.
    CJson FrameEntities() const;
    /// Its charts' fields.
    CJson Charts() const;
    /// A key of the marks, "(none)" where there is none.
    std::string Marks(const std::string& strKey) const;
    /// The rows that `tvdata results` gives.
    CJson Results() const;

    const CProgram m_program;

private:
    const std::string m_strDatabase = "Projects/GC1/project.db";
};

/// The dialog's lines that choose samples, parted by blanks, of one borehole.
std::string Selection(const std::string& strZKBH, const std::string& strSamples);

/// The classes of entities, parted by blanks, without the prefix that they share.
std::string Classes(const CJson& entities);
