#include "host/datamanager/frame_choice.h"

#include <algorithm>
#include <array>
#include <filesystem>

#include "host/datamanager/database_failure.h"
#include "host/datamanager/project.h"
#include "host/datamanager/transaction.h"
#include "platform/tvtool/tvtool.h"
#include "platform/windows/code_page.h"
#include "platform/windows/path.h"

namespace {

/// The name as it stands in the folder of templates.
std::string NameInFolder(const CInstallation& installation, const std::string& strFile) {
    const std::string strFolder = (installation.Root() / "Templates").string();
    const std::vector<std::string> arNames = FileNames(strFolder);
    auto it = std::ranges::find(arNames, strFile);
    if (it == arNames.end())
        it = std::ranges::find_if(arNames,
                                  [&](const auto& strName) { return SameFileName(strName, strFile); });
    if (it == arNames.end() || !std::filesystem::is_regular_file(strFolder + "/" + ToUtf8(*it)))
        throw CFailure(ExitStatus::Refused, ToUtf8(strFile) + ": there is no such file in " + strFolder);
    return *it;
}

} // namespace

void StoreFrameChoice(CDbConnection& config, const std::string& strFile) {
    const std::array<CDbValue, 1> arFile = {strFile};
    if (config.Execute("UPDATE g_TervoTempletConfig SET FileName = ? WHERE GCBZ = -1 AND "
                       "Fun = '三轴剪试验曲线' AND Type = '图框'",
                       arFile) == 0)
        config.Execute("INSERT INTO g_TervoTempletConfig (FileName, Path, GCBZ, Fun, Type) "
                       "VALUES (?, '\\Templates', -1, '三轴剪试验曲线', '图框')",
                       arFile);
}

void ChooseFrame(const CInstallation& installation, const std::string& strFile) {
    const std::string strName = NameInFolder(installation, strFile);
    std::array<char, 260> path{};
    if (!TVToolGetConfigDbPath(path.data()))
        throw CFailure(ExitStatus::NoAccess, "the installation names no configuration database");
    const std::string strConnection = FileConnection(path.data());
    AtDatabase(strConnection, [&] {
        const auto pConfig = OpenDbConnection(strConnection);
        CDbTransaction transaction(*pConfig);
        StoreFrameChoice(*pConfig, strName);
        transaction.Commit();
    });
}
