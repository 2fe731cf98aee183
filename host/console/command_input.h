#pragma once

#include "host/console/command_answers.h"
#include "host/console/words.h"
#include "platform/acad/db_database.h"
#include "platform/acad/host_application.h"

#include <deque>
#include <vector>

/// Thrown by a prompt of a host command that the user answered with Escape; ends the command, not the run.
struct CCommandCancelled {};

/// What a running command reads: first the words that stood behind its name, then lines. The host's own
/// commands are given each answer or an exception (CRunFailure, CCommandCancelled); a module is given a
/// result.
class CCommandInput {
public:
    explicit CCommandInput(CCommandAnswers& answers)
        : m_answers(answers) {}

    /// Begins a command with the words behind its name.
    void Begin(std::vector<CWord> arWords);
    /// Throws when words are left that the command didn't take.
    void End() const;
    bool WasCancelled() const { return m_bCancelled; } ///< a module's prompt was answered with Escape

    // Prompts of the host's commands.
    std::string Text(const std::string& strPrompt);      ///< without blanks around it, not empty
    std::string WholeText(const std::string& strPrompt); ///< as it stands, may be empty
    std::string Line(const CQuestion& question);         ///< the same, from a line whatever words there are
    // Paths, as Text gives them. The endings, each with its dot, are those proposed to a user.
    std::string FileToOpen(const std::string& strPrompt, const std::string& strEndings);
    std::string FileToSave(const std::string& strPrompt, const std::string& strEndings);
    std::optional<std::string> WordOnLine(); ///< an optional answer: none when the line has no more words
    double Number(const std::string& strPrompt);
    /// The same above 0; a refusal calls it strWhat: "a radius".
    double PositiveNumber(const std::string& strPrompt, const std::string& strWhat);
    double Angle(const std::string& strPrompt); ///< answered in degrees, given in radians
    AcGePoint3d Point(const std::string& strPrompt);
    /// How far a point lies from base; `@dx,dy` is the offset itself.
    AcGeVector3d Offset(const std::string& strPrompt, const AcGePoint3d& base);
    /// None when the answer is the word instead.
    std::optional<AcGePoint3d> PointOrWord(const std::string& strPrompt, const std::string& strWord);
    AcDbObjectId Entity(AcDbDatabase& drawing, const std::string& strPrompt); ///< null when nothing is picked
    std::vector<AcDbObjectId> Selection(AcDbDatabase& drawing, const std::string& strPrompt);

    // Prompts of a module; a bad answer fails the run and cancels the prompt.
    CPromptResult AskPoint(const std::string& strPrompt, const AcGePoint3d* pBase, AcGePoint3d* pPoint);
    CPromptResult AskEntity(AcDbDatabase& drawing, const std::string& strPrompt, AcDbObjectId* pId,
                            AcGePoint3d* pPoint);
    CPromptResult AskSelection(AcDbDatabase& drawing, const std::string& strPrompt,
                               std::vector<AcDbObjectId>* pIds);

    void ForgetLastPoint() { m_ptLast = AcGePoint3d::kOrigin; }
    AcGePoint3d LastPoint() const { return m_ptLast; } ///< relative points count from it

private:
    friend class CNestedInput;
    std::optional<std::string> TakeWord();
    std::string WordOrLine(const CQuestion& question);
    std::string GoodAnswer(const CQuestion& question);
    CQuestion PointQuestion(const std::string& strPrompt) const;
    CQuestion EntityQuestion(AcDbDatabase& drawing, const std::string& strPrompt) const;
    AcGePoint3d ToPoint(const std::string& strAnswer);
    void SetLastPoint(const AcGePoint3d& point);
    std::optional<std::string> AnswerToModule(const CQuestion& question);
    CPromptResult RefuseToModule(const std::string& strReason);

    CCommandAnswers& m_answers;
    std::deque<CWord> m_arWords;
    AcGePoint3d m_ptLast;
    std::optional<AcGePoint3d> m_ptGiven; // the last one of this command
    bool m_bCancelled = false;
};

/// Sets what is left of a command's line aside while another command runs from within it.
class CNestedInput {
public:
    explicit CNestedInput(CCommandInput& input)
        : m_input(input)
        , m_arWords(std::move(input.m_arWords))
        , m_bCancelled(input.m_bCancelled) {}
    ~CNestedInput() {
        m_input.m_arWords = std::move(m_arWords);
        m_input.m_bCancelled = m_bCancelled;
    }
    CNestedInput(const CNestedInput&) = delete;
    CNestedInput& operator=(const CNestedInput&) = delete;

private:
    CCommandInput& m_input;
    std::deque<CWord> m_arWords;
    bool m_bCancelled;
};
