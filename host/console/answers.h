#pragma once
// Where a headless run takes its answers from: the lines of a script. All texts here are UTF-8.

#include <optional>
#include <stdexcept>
#include <string>

/// The answer that is Escape.
inline constexpr const char* g_szEscape = "cancel";

/// Exit statuses of a scripted run.
enum CExitStatus {
    EXIT_DONE = 0,
    EXIT_BAD_USAGE = 2,
    EXIT_INPUT_RAN_OUT = 3,
    EXIT_FILE_FAILED = 4,
    EXIT_NO_SUCH_ANSWER = 5,
};

/// Ends a scripted run: the run reports `FILE:LINE: what` once and ends with the status. It travels only
/// inside the host, never through a module's frames: a prompt that a module asked answers "cancel" and the
/// run stops afterwards.
class CRunFailure : public std::runtime_error {
public:
    CRunFailure(CExitStatus status, const std::string& strWhat)
        : std::runtime_error(strWhat)
        , m_status(status) {}
    CExitStatus Status() const { return m_status; }

private:
    CExitStatus m_status;
};

/// Ends the run for an answer that is none here; what says why.
[[noreturn]] inline void RefuseAnswer(const std::string& strWhat) {
    throw CRunFailure(EXIT_NO_SUCH_ANSWER, strWhat);
}

/// The answers of a run, one line each, comments left out.
class CAnswers {
public:
    virtual ~CAnswers() = default;
    /// Prints the prompt, takes the next line, prints it as the answer read. nullopt when the input has run
    /// out, or when the run has failed already.
    virtual std::optional<std::string> Next(const std::string& strPrompt) = 0;
    /// Prints a line of output (messages, `show`), which -q does not leave out.
    virtual void Print(const std::string& strLine) = 0;
    /// Notes the run's failure at the line read last; the first one noted stays. After it Next gives nothing
    /// more.
    virtual void Fail(CExitStatus status, const std::string& strWhat) = 0;
};
