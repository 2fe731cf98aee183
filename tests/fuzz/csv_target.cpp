// A file of whatever bytes to be imported: refused, and nothing is stored, or all its rows are.

#include "host/datamanager/import.h"
#include "host/datamanager/layout.h"
#include "host/datamanager/numbers.h"
#include "host/datamanager/schema.h"
#include "platform/ado/sqlite_provider.h"
#include "tests/fuzz/input_folder.h"

#include <cstdint>

namespace {

std::shared_ptr<CDbConnection> MakeDatabase() {
    auto pDatabase = CreateSqliteDatabase(InputFolder().Path("project.db"));
    LayOutTables(*pDatabase, ProjectTables());
    return pDatabase;
}

/// Takes all rows of a table away, and gives their number.
std::size_t TakeRows(CDbConnection& database, const char* pTable) {
    const auto pCount = database.Query(std::string("SELECT COUNT(*) FROM ") + pTable);
    database.Execute(std::string("DELETE FROM ") + pTable);
    return static_cast<std::size_t>(CellWhole(pCount->Cell(0, 0)));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* pData, std::size_t nSize) {
    static const auto pDatabase = MakeDatabase();
    const std::string strFile =
        InputFolder().Write("input.csv", {reinterpret_cast<const char*>(pData), nSize});
    CImportReport report([](const CImportRemark& remark) { RemarkLine(remark); });
    const CImportCounts counts = ImportFiles(*pDatabase, 1, {strFile}, false, &report);
    if (report.Refusals() > 0 && counts.m_nReadings + counts.m_nSamples + counts.m_nLayers > 0) std::abort();
    if (TakeRows(*pDatabase, "z_c_SanZhouCSXM") != counts.m_nReadings) std::abort();
    if (TakeRows(*pDatabase, "z_c_QuYang") != counts.m_nSamples) std::abort();
    if (TakeRows(*pDatabase, "z_c_SanZhou") != counts.m_nSamples) std::abort();
    if (TakeRows(*pDatabase, "z_g_TuCeng") != counts.m_nLayers) std::abort();
    return 0;
}
