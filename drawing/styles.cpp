#include "drawing/styles.h"

#include "analysis/numbers.h"
#include "commands/text_conversion.h"
#include "data/project_context.h"
#include "data/show_message.h"
#include "drawing/working_drawing.h"
#include "platform/acad/db_id_mapping.h"
#include "platform/acad/editor.h"
#include "platform/windows/profile.h"

#include <array>
#include <cstdlib>
#include <memory>

AcGiTextStyle g_ChartTextStyle;

namespace {
constexpr int g_nGb2312Charset = 134;

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

/// A new style of that name in the table, filled; its id. Null when the table takes none of the name.
template <class Fill>
AcDbObjectId AddStyle(AcDbTextStyleTable& table, const CString& strName, Fill fill) {
    auto pRecord = std::make_unique<AcDbTextStyleTableRecord>();
    pRecord->setName(ToWide(strName));
    fill(*pRecord);
    AcDbObjectId id;
    if (table.add(id, pRecord.get()) == Acad::eOk) pRecord.release()->close();
    return id;
}

/// The style of that name, new or as it is, filled. Null when it is open elsewhere.
template <class Fill>
AcDbObjectId FillStyle(AcDbTextStyleTable& table, const CString& strName, Fill fill) {
    AcDbObjectId id;
    if (table.getAt(ToWide(strName), id) != Acad::eOk) return AddStyle(table, strName, fill);
    const CDbOpen<AcDbTextStyleTableRecord> pRecord(id, AcDb::kForWrite);
    if (!pRecord) return AcDbObjectId::kNull;
    fill(*pRecord.Get());
    return id;
}

} // namespace

void SetupChartTextStyle(AcGiTextStyle& style) {
    style.setObliquingAngle(0.0);
    style.setFileName(L"仿宋_GB2312");
    style.setTextSize(2.5);
    style.setXScale(1.0);
    style.setTrackingPercent(80.0);
}

void SetupHeadingTextStyle(AcGiTextStyle& style) {
    SetupChartTextStyle(style);
}

int CreateTextStyleFromIni(const CString& strName, AcDbObjectId& idStyle, AcDbDatabase* pDatabase) {
    pDatabase = OrWorking(pDatabase);
    if (!pDatabase) return 1;
    const CDbOpen<AcDbTextStyleTable> pTable(pDatabase->textStyleTableId(), AcDb::kForWrite);
    if (!pTable) return 1;
    const CStyleSettings settings(strName);
    if (pTable->getAt(ToWide(strName), idStyle) == Acad::eOk) {
        const CDbOpen<AcDbTextStyleTableRecord> pRecord(idStyle, AcDb::kForWrite);
        if (pRecord) Apply(settings, 1, *pRecord.Get());
    } else {
        idStyle = AddStyle(*pTable.Get(), strName, [&](auto& record) { Apply(settings, 4, record); });
    }
    pDatabase->setTextstyle(idStyle);
    return 1;
}

int CreateShxTextStyle(const CString& strName, const CString& strFontFile, const CString& strBigFontFile,
                       AcDbDatabase* pDatabase, AcDbObjectId& idStyle) {
    for (const CString& strFile : {strFontFile, strBigFontFile}) {
        std::array<ACHAR, 1024> path{};
        if (acedFindFile(ToWide(strFile), path.data()) == RTNORM) continue;
        CString strMessage;
        strMessage.Format("未找到形文件%s", strFile.GetString());
        ShowMessage(strMessage);
        return 0;
    }
    pDatabase = OrWorking(pDatabase);
    if (!pDatabase) return 0;
    const CDbOpen<AcDbTextStyleTable> pTable(pDatabase->textStyleTableId(), AcDb::kForWrite);
    if (!pTable) return 0;
    if (pTable->getAt(ToWide(strName), idStyle) != Acad::eOk)
        idStyle = AddStyle(*pTable.Get(), strName, [&](auto& record) {
            record.setFileName(ToWide(strFontFile));
            record.setBigFontFileName(ToWide(strBigFontFile));
        });
    pDatabase->setTextstyle(idStyle);
    return 1;
}

int AddBannerTextStyle(const AcGiTextStyle& style, AcDbObjectId& idStyle) {
    AcDbDatabase* const pDatabase = OrWorking(nullptr);
    if (!pDatabase) return 0;
    const CDbOpen<AcDbTextStyleTable> pTable(pDatabase->textStyleTableId(), AcDb::kForWrite);
    if (!pTable) return 0;
    if (pTable->getAt(ToWide(g_pSheetTextStyle), idStyle) == Acad::eOk) return 1;
    idStyle = AddStyle(*pTable.Get(), g_pSheetTextStyle, [&](auto& record) {
        record.setObliquingAngle(style.obliquingAngle());
        record.setFileName(style.fileName());
        record.setBigFontFileName(style.bigFontFileName());
        record.setTextSize(style.textSize());
        record.setXScale(style.xScale());
    });
    return 1;
}

int ImportTextStyle(const CString& strName, const CString& strFont, double dSize, double dWidthFactor,
                    double dOblique, AcDbDatabase* pDatabase) {
    AcDbDatabase* const pWorking = OrWorking(nullptr);
    if (!pWorking) return 0;
    if (!pDatabase) pDatabase = pWorking;
    AcDbObjectId idStyle;
    if (const CDbOpen<AcDbTextStyleTable> pTable(pWorking->textStyleTableId(), AcDb::kForWrite); pTable)
        idStyle = FillStyle(*pTable.Get(), strName, [&](auto& record) {
            record.setFont(ToWide(strFont), 0, 0, g_nGb2312Charset, 4);
            record.setTextSize(dSize);
            record.setXScale(dWidthFactor);
            record.setObliquingAngle(dOblique);
        });
    if (idStyle.isNull()) return 0;
    if (pDatabase != pWorking) {
        AcDbObjectIdArray ids;
        ids.append(idStyle);
        AcDbIdMapping mapping;
        pWorking->wblockCloneObjects(ids, pDatabase->textStyleTableId(), mapping, AcDb::kDrcReplace);
        AcDbIdPair pair(idStyle);
        mapping.compute(pair);
        idStyle = pair.value();
    }
    return pDatabase->setTextstyle(idStyle) == Acad::eOk;
}
