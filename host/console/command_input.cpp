#include "host/console/command_input.h"

#include "host/console/numbers.h"
#include "host/console/picks.h"
#include "host/console/points.h"

namespace {

AcGePoint3d PointOrFailure(const std::string& strAnswer, const AcGePoint3d& last) {
    AcGePoint3d point;
    if (!ParsePoint(strAnswer, last, &point))
        throw CRunFailure(EXIT_NO_SUCH_ANSWER, "not a point: " + strAnswer);
    return point;
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

std::string CCommandInput::Line(const std::string& strPrompt) {
    const std::optional<std::string> line = m_answers.Next(strPrompt);
    if (!line) throw CRunFailure(m_answers.Fault()->m_status, m_answers.Fault()->m_strWhat);
    if (WithoutBlanksAround(*line) == g_szEscape) throw CCommandCancelled{};
    return *line;
}

std::string CCommandInput::WholeText(const std::string& strPrompt) {
    std::optional<std::string> word = TakeWord();
    return word ? std::move(*word) : Line(strPrompt);
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

AcGePoint3d CCommandInput::ToPoint(const std::string& strAnswer) {
    return m_ptLast = PointOrFailure(strAnswer, m_ptLast);
}

AcGePoint3d CCommandInput::Point(const std::string& strPrompt) {
    return ToPoint(Text(strPrompt));
}

AcGeVector3d CCommandInput::Offset(const std::string& strPrompt, const AcGePoint3d& base) {
    const std::string text = Text(strPrompt);
    // A relative answer is taken as it stands: by way of the point it would lose digits.
    const AcGePoint3d from = text.starts_with('@') ? AcGePoint3d::kOrigin : base;
    const AcGeVector3d offset = PointOrFailure(text, AcGePoint3d::kOrigin) - from;
    m_ptLast = base + offset;
    return offset;
}

std::optional<AcGePoint3d> CCommandInput::PointOrWord(const std::string& strPrompt,
                                                      const std::string& strWord) {
    const std::string text = Text(strPrompt);
    if (text == strWord) return std::nullopt;
    return ToPoint(text);
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

std::optional<std::string> CCommandInput::AnswerToModule(const std::string& strPrompt) {
    if (m_answers.HasFailed()) return std::nullopt;
    if (std::optional<std::string> word = TakeWord()) {
        m_answers.ShowAnswered(strPrompt, *word);
        return word;
    }
    try {
        return WithoutBlanksAround(Line(strPrompt));
    } catch (const CCommandCancelled&) {
        m_bCancelled = true;
    } catch (const CRunFailure&) {
        // noted already
    }
    return std::nullopt;
}

CPromptResult CCommandInput::RefuseToModule(const std::string& strReason) {
    m_answers.Fail(EXIT_NO_SUCH_ANSWER, strReason);
    return CPromptResult::Cancel;
}

CPromptResult CCommandInput::AskPoint(const std::string& strPrompt, AcGePoint3d* pPoint) {
    const std::optional<std::string> answer = AnswerToModule(strPrompt);
    if (!answer) return CPromptResult::Cancel;
    if (answer->empty()) return CPromptResult::None;
    if (!ParsePoint(*answer, m_ptLast, pPoint)) return RefuseToModule("not a point: " + *answer);
    m_ptLast = *pPoint;
    return CPromptResult::Value;
}

CPromptResult CCommandInput::AskEntity(AcDbDatabase& drawing, const std::string& strPrompt, AcDbObjectId* pId,
                                       AcGePoint3d* pPoint) {
    const std::optional<std::string> answer = AnswerToModule(strPrompt);
    if (!answer) return CPromptResult::Cancel;
    if (answer->empty()) return CPromptResult::None;
    std::string reason;
    *pId = PickEntity(drawing, *answer, m_ptLast, &reason);
    if (pId->isNull()) return RefuseToModule(reason);
    *pPoint = AcGePoint3d::kOrigin;
    ParsePoint(*answer, m_ptLast, pPoint);
    return CPromptResult::Value;
}

CPromptResult CCommandInput::AskSelection(AcDbDatabase& drawing, const std::string& strPrompt,
                                          std::vector<AcDbObjectId>* pIds) {
    const bool bOnLine = !m_arWords.empty();
    std::string reason;
    do {
        const std::optional<std::string> answer = AnswerToModule(strPrompt);
        if (!answer) return CPromptResult::Cancel;
        if (answer->empty()) break;
        if (bOnLine) {
            if (!PickSeveral(drawing, *answer, m_ptLast, pIds, &reason)) return RefuseToModule(reason);
        } else {
            const AcDbObjectId id = PickEntity(drawing, *answer, m_ptLast, &reason);
            if (id.isNull()) return RefuseToModule(reason);
            AddOnce(id, pIds);
        }
    } while (!bOnLine);
    return pIds->empty() ? CPromptResult::None : CPromptResult::Value;
}
