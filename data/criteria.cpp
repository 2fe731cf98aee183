#include "data/criteria.h"

#include "data/sql_text.h"

namespace {
/// 9 before 10, and what begins with a digit before what does not; the database sorts, by its own functions.
constexpr const char* g_pNaturalOrder =
    "isnumeric(left(ZKBH,1)),val(ZKBH), string(255-len(trim(ZKBH)),'0')+trim(ZKBH),"
    "isnumeric(left(qybh,1)),val(qybh), string(255-len(trim(qybh)),'0')+trim(qybh)";
} // namespace

CString ProjectCriterion(int nGCSY) {
    CString strCriterion;
    strCriterion.Format("GCSY = %d", nGCSY);
    return strCriterion;
}

CString ProjectListCriterion(int nGCSY) {
    CString strCriterion;
    strCriterion.Format("GCSY = %d ORDER BY %s", nGCSY, g_pNaturalOrder);
    return strCriterion;
}

CString OpenDialogListCriterion(int nGCSY) {
    CString strCriterion;
    strCriterion.Format("GCSY= %d ORDER BY %s", nGCSY, g_pNaturalOrder);
    return strCriterion;
}

CString BoreholeListCriterion(int nGCSY, const CString& strZKBH) {
    CString strCriterion;
    strCriterion.Format("GCSY = %d AND ZKBH = '%s' ORDER BY %s ", nGCSY, SqlText(strZKBH).GetString(),
                        g_pNaturalOrder);
    return strCriterion;
}

CString SampleCriterion(int nGCSY, const CString& strZKBH, const CString& strQYBH) {
    CString strCriterion;
    strCriterion.Format("GCSY = %d AND ZKBH = '%s' AND QYBH = '%s'", nGCSY, SqlText(strZKBH).GetString(),
                        SqlText(strQYBH).GetString());
    return strCriterion;
}

CString ReadingsCriterion(int nGCSY, const CString& strZKBH, const CString& strQYBH) {
    return SampleCriterion(nGCSY, strZKBH, strQYBH) + " ORDER BY GCSY,ZKBH,QYBH,SJBH,SHJHXH";
}

CString LayerCriterion(int nGCSY, const CString& strZKBH, double dDepth, double dThickness) {
    CString strCriterion;
    strCriterion.Format("GCSY = %d AND ZKBH = '%s' AND TCCDSD >= %f AND TCCDSD - TCHD <= %f", nGCSY,
                        SqlText(strZKBH).GetString(), dDepth + dThickness, dDepth);
    return strCriterion;
}
