#include "drawing/styles.h"

#include "analysis/numbers.h"
#include "commands/text_conversion.h"
#include "data/project_context.h"
#include "platform/acad/editor.h"
#include "platform/acad/host_application.h"
#include "platform/windows/profile.h"

#include <array>
#include <cstdlib>

AcGiTextStyle g_ChartTextStyle;

namespace {
constexpr int g_nGb2312Charset = 134;
constexpr double g_dDashedScale = 10.0;

AcDbDatabase* OrWorking(AcDbDatabase* pDatabase) {
    return pDatabase ? pDatabase : acdbHostApplicationServices()->workingDatabase();
}

/// One text style section of the settings ini. Numbers pass through single precision, as they are kept.
struct CStyleSettings {
    float m_fHeight, m_fWidthFactor, m_fOblique;
    CString m_strFontName, m_strFileName, m_strBigFileName;
    bool m_bShx;

    explicit CStyleSettings(const CString& strSection)
        : m_fHeight(Number(strSection, "Font_Height", "2.5"))
        , m_fWidthFactor(Number(strSection, "Font_WidthFactor", "0.7"))
        , m_fOblique(Number(strSection, "Font_Oblique", "0"))
        , m_strFontName(Text<50>(strSection, "Font_FontName", "仿宋_GB2312"))
        , m_strFileName(Text<50>(strSection, "Font_FileName", "ComFont.shx"))
        , m_strBigFileName(Text<50>(strSection, "Font_BigFileName", "Hztxt12a.shx"))
        , m_bShx(GetPrivateProfileIntA(strSection, "Font_IsSHX", 0, g_strSettingsIni) != 0) {}

private:
    template <std::size_t nBuffer>
    static CString Text(const CString& strSection, const char* pKey, const char* pDefault) {
        std::array<char, nBuffer> buffer{};
        GetPrivateProfileStringA(strSection, pKey, pDefault, buffer.data(), nBuffer, g_strSettingsIni);
        return buffer.data();
    }
    static float Number(const CString& strSection, const char* pKey, const char* pDefault) {
        return static_cast<float>(std::strtod(Text<10>(strSection, pKey, pDefault), nullptr));
    }
};

void Apply(const CStyleSettings& settings, int nPitchAndFamily, AcDbTextStyleTableRecord& record) {
    if (settings.m_bShx) {
        record.setFileName(ToWide(settings.m_strFileName));
        record.setBigFontFileName(ToWide(settings.m_strBigFileName));
    } else {
        record.setFont(ToWide(settings.m_strFontName), 0, 0, g_nGb2312Charset, nPitchAndFamily);
    }
    record.setObliquingAngle(settings.m_fOblique * g_dPi / 180.0);
    record.setTextSize(settings.m_fHeight);
    record.setXScale(settings.m_fWidthFactor);
}
} // namespace

void SetupChartTextStyle(AcGiTextStyle& style) {
    style.setObliquingAngle(0.0);
    style.setFileName(L"仿宋_GB2312");
    style.setTextSize(2.5);
    style.setXScale(1.0);
    style.setTrackingPercent(80.0);
}

int CreateTextStyleFromIni(const CString& strName, AcDbObjectId& idStyle, AcDbDatabase* pDatabase) {
    pDatabase = OrWorking(pDatabase);
    AcDbTextStyleTable* pTable = nullptr;
    const Acad::ErrorStatus status =
        pDatabase ? pDatabase->getTextStyleTable(pTable, AcDb::kForWrite) : Acad::eNoDatabase;
    const CStyleSettings settings(strName);
    if (status != Acad::eOk) return 1;

    if (pTable->getAt(ToWide(strName), idStyle) == Acad::eOk) {
        CDbOpen<AcDbTextStyleTableRecord> pRecord(idStyle, AcDb::kForWrite);
        if (pRecord) Apply(settings, 1, *pRecord.Get());
    } else {
        auto* pRecord = new AcDbTextStyleTableRecord;
        pRecord->setName(ToWide(strName));
        Apply(settings, 4, *pRecord);
        pTable->add(idStyle, pRecord);
        pRecord->close();
    }
    pDatabase->setTextstyle(idStyle);
    pTable->close();
    return 1;
}

int LoadLinetypeId(const CString& strName, AcDbDatabase* pDatabase, AcDbObjectId& idLinetype) {
    pDatabase = OrWorking(pDatabase);
    if (!pDatabase) return 0;
    AcDbLinetypeTable* pTable = nullptr;
    if (pDatabase->getLinetypeTable(pTable, AcDb::kForRead) != Acad::eOk) return 0;
    const Acad::ErrorStatus status = pTable->getAt(ToWide(strName), idLinetype);
    pTable->close();
    if (status != Acad::eOk && pDatabase->loadLineTypeFile(ToWide(strName), L"acad.lin") != Acad::eOk) {
        acutPrintf(L"未找到线型");
        return 0;
    }
    if (strName == "Dashed2") pDatabase->setLtscale(g_dDashedScale);
    return 1;
}
