#pragma once

#include <cstdint>
#include <filesystem>
#include <string>

#include "platform/windows/message_window.h"
#include "platform/windows/types.h"

/// From modules of the suite: one is going to use the project.
constexpr UINT g_nMessageUse = 2534;
/// From another call of this program: the project whose index is wParam is the running one now.
constexpr UINT g_nMessageTake = 0x8001;
/// From another call of this program: end.
constexpr UINT g_nMessageEnd = 0x8002;

constexpr std::int32_t g_nEditions = 5;

/// The window class that modules look for, by the installed edition (0 to 4); empty for any other number.
std::string ResidentClass(std::int32_t nEdition);

/// The resident data manager of an installation: answers the messages to its window class with its process id
/// and notes each in the log. What runs is told by the project ini alone, so a message changes nothing but
/// the log.
class CResident {
public:
    /// Begins to answer. CFailure when another process answers for the class, or no socket can be made.
    CResident(std::filesystem::path logFile, const std::string& strClass);

    /// Answers until it is told to end.
    void Serve();

private:
    LRESULT Handle(UINT nMessage, WPARAM wParam, LPARAM lParam);
    void Note(UINT nMessage, WPARAM wParam, LPARAM lParam) const;

    std::filesystem::path m_logFile;
    CMessageWindow m_window;
};
