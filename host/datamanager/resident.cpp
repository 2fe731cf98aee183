#include "host/datamanager/resident.h"

#include <unistd.h>

#include <array>
#include <chrono>
#include <cstdio>
#include <ctime>
#include <fstream>
#include <thread>

#include "host/datamanager/failure.h"

std::string ResidentClass(std::int32_t nEdition) {
    if (nEdition < 0 || nEdition >= g_nEditions) return {};
    return "QMDBMANAGERE" + std::to_string(nEdition);
}

CResident::CResident(std::filesystem::path logFile, const std::string& strClass)
    : m_logFile(std::move(logFile)) {
    const auto handler = [this](UINT nMessage, WPARAM wParam, LPARAM lParam) {
        return Handle(nMessage, wParam, lParam);
    };
    // One that was told to end holds its place for a moment after it is no longer found.
    for (int nTry = 0; nTry < 400; ++nTry) {
        if (m_window.Create(strClass, handler)) return;
        std::this_thread::sleep_for(std::chrono::milliseconds(5));
    }
    throw CFailure(ExitStatus::NoAccess, "the window class " + strClass + " cannot be answered for");
}

void CResident::Serve() {
    m_window.Run();
}

LRESULT CResident::Handle(UINT nMessage, WPARAM wParam, LPARAM lParam) {
    Note(nMessage, wParam, lParam);
    if (nMessage == g_nMessageEnd) m_window.Quit();
    return getpid();
}

void CResident::Note(UINT nMessage, WPARAM wParam, LPARAM lParam) const {
    const std::time_t now = std::time(nullptr);
    std::tm local{};
    localtime_r(&now, &local);
    std::array<char, 128> szLine{};
    const std::size_t nTime = std::strftime(szLine.data(), szLine.size(), "%Y-%m-%dT%H:%M:%S", &local);
    std::snprintf(szLine.data() + nTime, szLine.size() - nTime, " %u %llu %lld\n", nMessage,
                  static_cast<unsigned long long>(wParam), static_cast<long long>(lParam));
    std::ofstream(m_logFile, std::ios::app | std::ios::binary) << szLine.data();
}
