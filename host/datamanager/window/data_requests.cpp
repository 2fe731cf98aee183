#include "host/datamanager/window/data_requests.h"

#include <QtCore/QProcess>

#include <cerrno>
#include <system_error>

#include "host/datamanager/new_installation.h"
#include "host/datamanager/project_database.h"
#include "host/datamanager/resident_calls.h"
#include "host/datamanager/results.h"
#include "host/datamanager/terminal_text.h"
#include "host/window_text.h"
#include "platform/windows/file_bytes.h"
#include "platform/windows/installation_root.h"

namespace {

/// Work on the database of the project of a number.
template <class Work>
auto AtProjectOf(const std::string& strGCBH, Work work) {
    const CInstallation installation;
    const CProject project = FindProject(installation, strGCBH);
    return AtProjectDatabase(installation, project,
                             [&](CDbConnection& database) { return work(database, project.m_nGCSY); });
}

/// A call's line on standard error without the program's name.
std::string Complaint(const QByteArray& errors) {
    const std::string strBegin = "tvdata: ";
    std::string strText = errors.trimmed().toStdString();
    if (strText.starts_with(strBegin)) strText.erase(0, strBegin.size());
    return strText.empty() ? "the program did not run to its end" : strText;
}

} // namespace

CInstallationList ListInstallation() {
    const CInstallation installation;
    return {installation.Root().string(), ListProjects(installation)};
}

CInstallationList GoToInstallation(const std::string& strRoot) {
    const std::string strBefore = InstallationRoot();
    SetInstallationRoot(strRoot);
    try {
        return ListInstallation();
    } catch (const std::exception&) {
        SetInstallationRoot(strBefore);
        throw;
    }
}

CInstallationList MakeAndGoToInstallation(const std::string& strRoot) {
    MakeInstallation(strRoot);
    return GoToInstallation(strRoot);
}

std::string MakeTypedProject(const CTypedProject& typed) {
    CProjectWish wish;
    wish.m_strGCBH = FromTerminal(typed.m_strGCBH);
    wish.m_strGCMC = FromTerminal(typed.m_strGCMC);
    wish.m_nGCBZ = typed.m_nGCBZ;
    wish.m_strConnect = FromTerminal(typed.m_strConnect);
    MakeProject(CInstallation(), wish);
    return wish.m_strGCBH;
}

std::string OpenAsRunning(const std::string& strProgram, const std::string& strGCBH) {
    QProcess process;
    process.start(QString::fromStdString(strProgram),
                  {u"open"_qs, u"--root="_qs + QString::fromStdString(InstallationRoot()),
                   u"--number="_qs + FromGbk(strGCBH)});
    process.waitForFinished(-1);
    if (process.exitStatus() != QProcess::NormalExit || process.exitCode() != 0 ||
        process.error() == QProcess::FailedToStart)
        throw CFailure(ExitStatus::NoAccess, Complaint(process.readAllStandardError()));
    return process.readAllStandardOutput().trimmed().toStdString();
}

bool CloseRunning() {
    CloseProject(CInstallation());
    return true;
}

std::vector<CRowTexts> ReadProjectResults(const std::string& strGCBH) {
    return AtProjectOf(
        strGCBH, [](CDbConnection& database, std::int32_t nGCSY) { return ReadResults(database, nGCSY); });
}

bool WriteResults(const std::string& strFile, const std::vector<CRowTexts>& arRows) {
    if (!WriteFileWhole(strFile, ResultsText(arRows, ResultForm::Csv)))
        throw CFailure(ExitStatus::NoAccess, strFile + ": " + std::generic_category().message(errno));
    return true;
}

CSampleReadings ReadSample(const std::string& strGCBH, const std::string& strZKBH,
                           const std::string& strQYBH) {
    return AtProjectOf(strGCBH, [&](CDbConnection& database, std::int32_t nGCSY) {
        return ReadSampleReadings(database, nGCSY, strZKBH, strQYBH);
    });
}
