#include "ui/qs_para.h"

#include "commands/text_lists.h"
#include "data/date_text.h"
#include "data/project_db.h"
#include "data/suite_statements.h"

namespace {

constexpr const char* g_pStampSection = "QSSet";
constexpr const char* g_pDateRole = "日期";

} // namespace

int CQSPara::Exchange(int bLoad) {
    m_bLoad = bLoad;
    ExchangeInt(g_pStampSection, "bLB", 0, &m_bLB, 0);
    ExchangeInt(g_pStampSection, "bRQNow", 0, &m_bRQNow, 0);
    return 1;
}

CString CQSPara::ShownName(const CString& strRole, const CString& strName) const {
    if (m_bLB) return {};
    return m_bRQNow && strRole == g_pDateRole ? DateText(CTime::GetCurrentTime()) : strName;
}

int CQSPara::GetPeople(const CString& strDrawingClass, CStringArray* psaKeys, CStringArray* psaValues) {
    Exchange(1);
    CProjectDb people(SuiteDb_Common);
    if (!people.Open(PeopleQuery(strDrawingClass))) return psaKeys->GetSize();
    for (; !people.IsEof(); people.MoveNext()) {
        CString strKey, strRole, strName;
        people.ReadField("KEYCGT", &strKey);
        people.ReadField("PEOPLETYPE", &strRole);
        people.ReadField("PEOPLENAME", &strName);
        psaValues->SetAtGrow(FindOrAdd(*psaKeys, strKey), ShownName(strRole, strName));
    }
    return psaKeys->GetSize();
}
