#include "host/datamanager/resident_calls.h"

#include <unistd.h>

#include <chrono>
#include <memory>
#include <optional>
#include <thread>

#include "host/datamanager/background.h"
#include "host/datamanager/failure.h"
#include "host/datamanager/resident.h"
#include "host/datamanager/terminal_text.h"
#include "platform/windows/code_page.h"
#include "platform/windows/window_message.h"

namespace {

/// Readers find no project while the keys change, rather than a mixture of two.
void WriteRunningProject(const CInstallation& installation, const CProject& project) {
    const CIniFile file = installation.ProjectIni();
    file.SetNumber("Project", "GCSY", -1);
    file.SetText("Project", "GCBH", project.m_strGCBH);
    file.SetText("Project", "GCMC", project.m_strGCMC);
    file.SetNumber("Project", "GCBZ", project.m_nGCBZ);
    file.SetText("Project", "Database",
                 project.m_strConnect.empty() ? ProjectDatabase(project.m_strGCBH) : "");
    file.SetText("Project", "Connect", project.m_strConnect);
    file.SetNumber("Project", "GCSY", project.m_nGCSY);
}

/// Sends a message to the resident one of that class. Its answer is its process id; nothing when none runs.
std::optional<std::intptr_t> Ask(const std::string& strClass, UINT nMessage, WPARAM wParam) {
    const HWND hWindow = FindWindowA(strClass.c_str(), nullptr);
    if (!hWindow) return std::nullopt;
    const LRESULT nAnswer = SendMessageA(hWindow, nMessage, wParam, 0);
    return nAnswer > 0 ? std::optional(nAnswer) : std::nullopt;
}

bool IsThere(const std::string& strClass) {
    return FindWindowA(strClass.c_str(), nullptr) != nullptr;
}

[[noreturn]] void FailHung() {
    throw CFailure(ExitStatus::NoAccess, "the resident data manager does not answer");
}

/// Ends the resident one of that class and waits until it is gone.
void End(const std::string& strClass) {
    if (!Ask(strClass, g_nMessageEnd, 0)) {
        if (IsThere(strClass)) FailHung();
        return;
    }
    const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(10);
    while (IsThere(strClass)) {
        if (std::chrono::steady_clock::now() > end)
            throw CFailure(ExitStatus::NoAccess, "the resident data manager does not end");
        std::this_thread::sleep_for(std::chrono::milliseconds(5));
    }
}

/// Ends those that answer for another edition's class than the one that holds now.
void EndOthers(const std::string& strClass) {
    for (std::int32_t nEdition = 0; nEdition < g_nEditions; ++nEdition)
        if (ResidentClass(nEdition) != strClass) End(ResidentClass(nEdition));
}

std::string CurrentClass(const CInstallation& installation) {
    const std::int32_t nEdition = installation.ProjectIni().Number("GLOBAL", "LOCALVER", 4);
    std::string strClass = ResidentClass(nEdition);
    if (strClass.empty())
        throw CFailure(ExitStatus::Refused,
                       "LOCALVER " + std::to_string(nEdition) + " names no edition (0 to 4)");
    return strClass;
}

void PrintProcess(std::intptr_t nProcess) {
    Print(std::to_string(nProcess) + "\n");
}

/// Finds or starts the resident one. A result is the foreground one, which is still to be served.
std::unique_ptr<CResident> HaveResident(const CInstallation& installation, const CProject& project,
                                        const std::string& strClass, bool bForeground) {
    EndOthers(strClass);
    if (const auto nProcess = Ask(strClass, g_nMessageTake, static_cast<WPARAM>(project.m_nGCSY))) {
        PrintProcess(*nProcess);
        return nullptr;
    }
    if (IsThere(strClass)) FailHung();
    if (bForeground) {
        auto pResident = std::make_unique<CResident>(installation.LogFile(), strClass);
        PrintProcess(getpid());
        return pResident;
    }
    PrintProcess(RunInBackground([&](const std::function<void()>& fnReady) {
        CResident resident(installation.LogFile(), strClass);
        fnReady();
        resident.Serve();
    }));
    return nullptr;
}

} // namespace

void OpenProject(const CInstallation& installation, const CProject& project, bool bForeground) {
    const std::string strClass = CurrentClass(installation);
    std::unique_ptr<CResident> pResident;
    {
        const CInstallationLock lock(installation);
        OpenProjectDatabase(installation, project);
        WriteRunningProject(installation, project);
        try {
            pResident = HaveResident(installation, project, strClass, bForeground);
        } catch (const CFailure&) {
            installation.ProjectIni().SetNumber("Project", "GCSY", -1);
            throw;
        }
    }
    if (pResident) pResident->Serve();
}

void CloseProject(const CInstallation& installation) {
    const CInstallationLock lock(installation);
    installation.ProjectIni().SetNumber("Project", "GCSY", -1);
    EndOthers("");
}
