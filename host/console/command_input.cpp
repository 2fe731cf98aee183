#include "host/console/command_input.h"

#include "host/console/numbers.h"
#include "host/console/picks.h"
#include "host/console/points.h"

#include <numbers>

namespace {

constexpr const char* g_pEmptyAnswer = "an empty answer is none here";

std::string TextRefusal(const std::string& strAnswer) {
    return strAnswer.empty() ? g_pEmptyAnswer : "";
}

std::string NumberRefusal(const std::string& strAnswer) {
    double value = 0.0;
    if (strAnswer.empty()) return g_pEmptyAnswer;
    return ParseNumber(strAnswer, &value) ? "" : "not a number: " + strAnswer;
}

std::string PointRefusal(const std::string& strAnswer) {
    AcGePoint3d point;
    if (strAnswer.empty()) return g_pEmptyAnswer;
    return ParsePoint(strAnswer, AcGePoint3d::kOrigin, &point) ? "" : "not a point: " + strAnswer;
}

} // namespace

void CCommandInput::Begin(std::vector<CWord> arWords) {
    m_arWords.assign(std::make_move_iterator(arWords.begin()), std::make_move_iterator(arWords.end()));
    m_bCancelled = false;
    m_ptGiven.reset();
}

void CCommandInput::End() const {
    if (m_arWords.empty()) return;
    RefuseAnswer("more on the line than the command takes: " + m_arWords[0].m_strText);
}

std::optional<std::string> CCommandInput::TakeWord() {
    if (m_arWords.empty()) return std::nullopt;
    std::string word = std::move(m_arWords.front().m_strText);
    m_arWords.pop_front();
    return word;
}

std::string CCommandInput::Line(const CQuestion& question) {
    const std::optional<std::string> line = m_answers.Ask(question);
    if (!line) throw CRunFailure(m_answers.Fault()->m_status, m_answers.Fault()->m_strWhat);
    if (WithoutBlanksAround(*line) == g_szEscape) throw CCommandCancelled{};
    return *line;
}

std::string CCommandInput::WordOrLine(const CQuestion& question) {
    std::optional<std::string> word = TakeWord();
    return word ? std::move(*word) : Line(question);
}

std::string CCommandInput::GoodAnswer(const CQuestion& question) {
    std::string answer = WithoutBlanksAround(WordOrLine(question));
    const std::string strReason = question.m_fnRefusal(answer);
    if (!strReason.empty()) RefuseAnswer(strReason);
    return answer;
}

std::string CCommandInput::WholeText(const std::string& strPrompt) {
    return WordOrLine({strPrompt});
}

std::string CCommandInput::Text(const std::string& strPrompt) {
    return GoodAnswer({strPrompt, CAnswerKind::Text, TextRefusal});
}

std::string CCommandInput::FileToOpen(const std::string& strPrompt, const std::string& strEndings) {
    return GoodAnswer({strPrompt, CAnswerKind::FileToOpen, TextRefusal, {}, strEndings});
}

std::string CCommandInput::FileToSave(const std::string& strPrompt, const std::string& strEndings) {
    return GoodAnswer({strPrompt, CAnswerKind::FileToSave, TextRefusal, {}, strEndings});
}

std::optional<std::string> CCommandInput::WordOnLine() {
    return TakeWord();
}

double CCommandInput::Number(const std::string& strPrompt) {
    double value = 0.0;
    ParseNumber(GoodAnswer({strPrompt, CAnswerKind::Text, NumberRefusal}), &value);
    return value;
}

double CCommandInput::PositiveNumber(const std::string& strPrompt, const std::string& strWhat) {
    double value = 0.0;
    const auto refusal = [&strWhat](const std::string& strAnswer) {
        double answered = 0.0;
        if (!ParseNumber(strAnswer, &answered)) return NumberRefusal(strAnswer);
        return answered > 0.0 ? std::string() : strWhat + " is above 0";
    };
    ParseNumber(GoodAnswer({strPrompt, CAnswerKind::Text, refusal}), &value);
    return value;
}

double CCommandInput::Angle(const std::string& strPrompt) {
    return Number(strPrompt) * std::numbers::pi / 180.0;
}

CQuestion CCommandInput::PointQuestion(const std::string& strPrompt) const {
    return {strPrompt, CAnswerKind::Point, PointRefusal, m_ptGiven};
}

void CCommandInput::SetLastPoint(const AcGePoint3d& point) {
    m_ptLast = point;
    m_ptGiven = point;
}

AcGePoint3d CCommandInput::ToPoint(const std::string& strAnswer) {
    AcGePoint3d point;
    ParsePoint(strAnswer, m_ptLast, &point);
    SetLastPoint(point);
    return point;
}

AcGePoint3d CCommandInput::Point(const std::string& strPrompt) {
    return ToPoint(GoodAnswer(PointQuestion(strPrompt)));
}

AcGeVector3d CCommandInput::Offset(const std::string& strPrompt, const AcGePoint3d& base) {
    CQuestion question = PointQuestion(strPrompt);
    question.m_ptFrom = base;
    const std::string text = GoodAnswer(question);
    AcGePoint3d to;
    ParsePoint(text, AcGePoint3d::kOrigin, &to);
    // A relative answer is taken as it stands: by way of the point it would lose digits.
    const AcGeVector3d offset = to - (text.starts_with('@') ? AcGePoint3d::kOrigin : base);
    SetLastPoint(base + offset);
    return offset;
}

std::optional<AcGePoint3d> CCommandInput::PointOrWord(const std::string& strPrompt,
                                                      const std::string& strWord) {
    CQuestion question = PointQuestion(strPrompt);
    question.m_fnRefusal = [&strWord](const std::string& strAnswer) {
        return strAnswer == strWord ? std::string() : PointRefusal(strAnswer);
    };
    const std::string text = GoodAnswer(question);
    if (text == strWord) return std::nullopt;
    return ToPoint(text);
}

CQuestion CCommandInput::EntityQuestion(AcDbDatabase& drawing, const std::string& strPrompt) const {
    return {strPrompt, CAnswerKind::Entity, [this, &drawing](const std::string& strAnswer) {
                std::string strReason;
                if (!strAnswer.empty()) PickEntity(drawing, strAnswer, m_ptLast, &strReason);
                return strReason;
            }};
}

AcDbObjectId CCommandInput::Entity(AcDbDatabase& drawing, const std::string& strPrompt) {
    const std::string pick = GoodAnswer(EntityQuestion(drawing, strPrompt));
    std::string reason;
    return pick.empty() ? AcDbObjectId::kNull : PickEntity(drawing, pick, m_ptLast, &reason);
}

std::vector<AcDbObjectId> CCommandInput::Selection(AcDbDatabase& drawing, const std::string& strPrompt) {
    CPickedEntities picked;
    std::string reason;
    if (const std::optional<std::string> word = TakeWord()) {
        if (!PickSeveral(drawing, *word, m_ptLast, &picked, &reason)) RefuseAnswer(reason);
        return picked.Ids();
    }
    while (true) {
        const AcDbObjectId id = Entity(drawing, strPrompt);
        if (id.isNull()) return picked.Ids();
        picked.Add(id);
    }
}

std::optional<std::string> CCommandInput::AnswerToModule(const CQuestion& question) {
    if (m_answers.HasFailed()) return std::nullopt;
    if (std::optional<std::string> word = TakeWord()) {
        m_answers.ShowAnswered(question.m_strPrompt, *word);
        return word;
    }
    try {
        return WithoutBlanksAround(Line(question));
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

CPromptResult CCommandInput::AskPoint(const std::string& strPrompt, const AcGePoint3d* pBase,
                                      AcGePoint3d* pPoint) {
    CQuestion question = PointQuestion(strPrompt);
    question.m_ptFrom = pBase ? std::optional(*pBase) : std::nullopt;
    question.m_fnRefusal = [](const std::string& strAnswer) { // to answer nothing is left to the user
        return strAnswer.empty() ? std::string() : PointRefusal(strAnswer);
    };
    const std::optional<std::string> answer = AnswerToModule(question);
    if (!answer) return CPromptResult::Cancel;
    if (answer->empty()) return CPromptResult::None;
    const std::string strReason = question.m_fnRefusal(*answer);
    if (!strReason.empty()) return RefuseToModule(strReason);
    *pPoint = ToPoint(*answer);
    return CPromptResult::Value;
}

CPromptResult CCommandInput::AskEntity(AcDbDatabase& drawing, const std::string& strPrompt, AcDbObjectId* pId,
                                       AcGePoint3d* pPoint) {
    const std::optional<std::string> answer = AnswerToModule(EntityQuestion(drawing, strPrompt));
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
    CPickedEntities picked;
    std::string reason;
    do {
        const std::optional<std::string> answer = AnswerToModule(EntityQuestion(drawing, strPrompt));
        if (!answer) return CPromptResult::Cancel;
        if (answer->empty()) break;
        if (bOnLine) {
            if (!PickSeveral(drawing, *answer, m_ptLast, &picked, &reason)) return RefuseToModule(reason);
        } else {
            const AcDbObjectId id = PickEntity(drawing, *answer, m_ptLast, &reason);
            if (id.isNull()) return RefuseToModule(reason);
            picked.Add(id);
        }
    } while (!bOnLine);
    *pIds = picked.Ids();
    return pIds->empty() ? CPromptResult::None : CPromptResult::Value;
}
