#include "host/console/command_input.h"

#include "host/console/numbers.h"
#include "host/console/picks.h"
#include "host/console/points.h"

namespace {

constexpr const char* ESCAPE = "cancel";

std::string WithoutBlanksAround(const std::string& text) {
    const size_t first = text.find_first_not_of(" \t");
    if (first == std::string::npos) return {};
    return text.substr(first, text.find_last_not_of(" \t") - first + 1);
}

} // namespace

void CCommandInput::Begin(std::vector<CWord> arWords) {
    m_arWords.assign(std::make_move_iterator(arWords.begin()), std::make_move_iterator(arWords.end()));
    m_bCancelled = false;
}

void CCommandInput::End() const {
    if (m_arWords.empty()) return;
    throw CRunFailure(EXIT_NO_SUCH_ANSWER,
                      "more on the line than the command takes: " + m_arWords[0].m_strText);
}

std::optional<std::string> CCommandInput::TakeWord() {
    if (m_arWords.empty()) return std::nullopt;
    std::string word = std::move(m_arWords.front().m_strText);
    m_arWords.pop_front();
    return word;
}

std::string CCommandInput::TakeLine(const std::string& strPrompt) {
    const std::optional<std::string> line = m_answers.Next(strPrompt);
    if (!line) throw CRunFailure(m_answers.Fault()->m_status, m_answers.Fault()->m_strWhat);
    if (WithoutBlanksAround(*line) == ESCAPE) throw CCommandCancelled{};
    return *line;
}

std::string CCommandInput::WholeText(const std::string& strPrompt) {
    std::optional<std::string> word = TakeWord();
    return word ? std::move(*word) : TakeLine(strPrompt);
}

std::string CCommandInput::Text(const std::string& strPrompt) {
    std::string text = WithoutBlanksAround(WholeText(strPrompt));
    if (text.empty()) throw CRunFailure(EXIT_NO_SUCH_ANSWER, "an empty answer is none here");
    return text;
}

std::optional<std::string> CCommandInput::WordOnLine() {
    return TakeWord();
}

double CCommandInput::Number(const std::string& strPrompt) {
    const std::string text = Text(strPrompt);
    double value = 0.0;
    if (!ParseNumber(text, &value)) throw CRunFailure(EXIT_NO_SUCH_ANSWER, "not a number: " + text);
    return value;
}

AcGePoint3d CCommandInput::Point(const std::string& strPrompt) {
    const std::optional<AcGePoint3d> point = PointOrWord(strPrompt, {});
    return *point; // no answer is the empty word
}

std::optional<AcGePoint3d> CCommandInput::PointOrWord(const std::string& strPrompt,
                                                      const std::string& strWord) {
    const std::string text = Text(strPrompt);
    if (text == strWord) return std::nullopt;
    AcGePoint3d point;
    if (!ParsePoint(text, m_ptLast, &point)) throw CRunFailure(EXIT_NO_SUCH_ANSWER, "not a point: " + text);
    m_ptLast = point;
    return point;
}

AcDbObjectId CCommandInput::Entity(AcDbDatabase& drawing, const std::string& strPrompt) {
    const std::string pick = WithoutBlanksAround(WholeText(strPrompt));
    if (pick.empty()) return AcDbObjectId::kNull;
    std::string reason;
    const AcDbObjectId id = PickEntity(drawing, pick, m_ptLast, &reason);
    if (id.isNull()) throw CRunFailure(EXIT_NO_SUCH_ANSWER, reason);
    return id;
}

std::vector<AcDbObjectId> CCommandInput::Selection(AcDbDatabase& drawing, const std::string& strPrompt) {
    std::vector<AcDbObjectId> ids;
    std::string reason;
    if (const std::optional<std::string> word = TakeWord()) {
        if (!PickSeveral(drawing, *word, m_ptLast, &ids, &reason))
            throw CRunFailure(EXIT_NO_SUCH_ANSWER, reason);
        return ids;
    }
    while (true) {
        const AcDbObjectId id = Entity(drawing, strPrompt);
        if (id.isNull()) return ids;
        AddOnce(id, &ids);
    }
}

CPromptResult CCommandInput::AskPoint(const std::string& strPrompt, AcGePoint3d* pPoint) {
    std::string answer;
    try {
        if (std::optional<std::string> word = m_answers.HasFailed() ? std::nullopt : TakeWord()) {
            answer = std::move(*word);
            m_answers.ShowAnswered(strPrompt, answer);
        } else {
            answer = WithoutBlanksAround(TakeLine(strPrompt));
        }
    } catch (const CCommandCancelled&) {
        m_bCancelled = true;
        return CPromptResult::Cancel;
    } catch (const CRunFailure&) {
        return CPromptResult::Cancel;
    }
    if (answer.empty()) return CPromptResult::None;
    if (!ParsePoint(answer, m_ptLast, pPoint)) {
        m_answers.Fail(EXIT_NO_SUCH_ANSWER, "not a point: " + answer);
        return CPromptResult::Cancel;
    }
    m_ptLast = *pPoint;
    return CPromptResult::Value;
}
