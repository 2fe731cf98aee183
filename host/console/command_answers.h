#pragma once
// Where commands take their answers from: the lines of a script, or the user at a window. All texts here are
// UTF-8.

#include "host/console/answers.h"
#include "platform/acad/geometry.h"

#include <functional>
#include <string_view>

/// What an answer is, for those who give it by other means than typing.
enum class CAnswerKind {
    Text,
    Point,
    Entity,
    FileToOpen,
    FileToSave,
    SaveChanges, ///< yes, no or cancel
};

/// What a running command asks for.
struct CQuestion {
    std::string m_strPrompt;
    CAnswerKind m_kind = CAnswerKind::Text;
    /// Why an answer, without the blanks around it, is none here; empty for a good one. Whoever can ask again
    /// does so. May be empty itself.
    std::function<std::string(const std::string& strAnswer)> m_fnRefusal = {};
    std::optional<AcGePoint3d> m_ptFrom = {}; ///< the point given before, from which a band is drawn
    std::string m_strEndings = {};            ///< of files, each with its dot, parted by blanks
};

/// How a run failed.
struct CRunFault {
    CExitStatus m_status;
    std::string m_strWhat;
};

class CCommandAnswers : public CAnswers {
public:
    /// The answer to a question; see Next.
    virtual std::optional<std::string> Ask(const CQuestion& question) = 0;
    /// The next line for the command prompt; nullopt at the end of the run, which is no failure.
    virtual std::optional<std::string> NextCommandLine() = 0;
    /// Shows an answer that stood on the command's line, as if it had been read at this prompt.
    virtual void ShowAnswered(const std::string& strPrompt, const std::string& strAnswer) = 0;
    virtual void Write(std::string_view text) = 0; ///< prints text as it stands
    /// Tells of something that went wrong at the line read last.
    virtual void Report(const std::string& strWhat) = 0;
    virtual void Flush() {}
    /// After a failure: true when it has been told and the run goes on with the next command.
    virtual bool GoesOnAfterFailure() { return false; }

    std::optional<std::string> Next(const std::string& strPrompt) final { return Ask({strPrompt}); }
    void Fail(CExitStatus status, const std::string& strWhat) final;
    bool HasFailed() const { return m_fault.has_value(); }
    const std::optional<CRunFault>& Fault() const { return m_fault; }

protected:
    /// What a program typed at the current document's command line, shown unless it is not to be.
    std::optional<std::string> TakeTyped(const std::string& strPrompt);
    void ForgetFault() { m_fault.reset(); }

private:
    std::optional<CRunFault> m_fault;
};
