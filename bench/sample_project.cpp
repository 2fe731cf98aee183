#include "bench/sample_project.h"

#include "data/criteria.h"
#include "data/san_zhou_csxm_record.h"
#include "platform/windows/profile.h"

#include <benchmark/benchmark.h>

void FillSamples(CTestProject* pProject) {
    WritePrivateProfileStringA("TVTool", "ProjectIni", "Project.ini",
                               (pProject->Root() + "/tervo.ini").c_str());
    pProject->m_pDatabase->BeginTransaction();
    for (int nSample = 0; nSample < g_nSamples; ++nSample)
        for (int i = 0; i < g_nReadings; ++i) {
            const int nSpecimen = i / 20 + 1;
            pProject->AddReading(BoreholeOf(nSample).c_str(), SampleOf(nSample).c_str(), nSpecimen,
                                 i % 20 + 1, 100.0 * nSpecimen, 3.25 * i, 60.5 * (i % 20), 0);
        }
    pProject->Execute("CREATE INDEX i_z_c_SanZhouCSXM ON z_c_SanZhouCSXM (GCSY, ZKBH, QYBH)");
    pProject->m_pDatabase->CommitTransaction();
}

void ReadSamplesByRecordClass() {
    double dSum = 0.0;
    int nRows = 0;
    for (int nSample = 0; nSample < g_nSamples; ++nSample) {
        CSanZhouCSXMRecord record;
        const CString strCriterion =
            ReadingsCriterion(1, BoreholeOf(nSample).c_str(), SampleOf(nSample).c_str());
        if (!record.OpenRows(record.QueryFor(strCriterion), 0, 1))
            Fail("the record class cannot open its rows");
        for (int nMoved = record.MoveFirstRow(); nMoved == 0; nMoved = record.MoveNextRow(), ++nRows)
            dSum += record.m_fCLHDS;
        record.CloseRows();
    }
    if (nRows != g_nSamples * g_nReadings) Fail("the record class did not read every row");
    benchmark::DoNotOptimize(dSum);
}
