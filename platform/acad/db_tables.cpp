#include "platform/acad/db_tables.h"

#include "platform/acad/db_database.h"
#include "platform/acad/db_filer.h"
#include "platform/acad/db_stub.h"
#include "platform/acad/filed_text.h"
#include "platform/windows/code_page.h"

#include <algorithm>
#include <cmath>

ACRX_DEFINE_MEMBERS(AcDbBlockTableRecord, AcDbSymbolTableRecord, L"BLOCK_RECORD")
ACRX_DEFINE_MEMBERS(AcDbLayerTableRecord, AcDbSymbolTableRecord, L"LAYER")
ACRX_DEFINE_MEMBERS(AcDbLinetypeTableRecord, AcDbSymbolTableRecord, L"LTYPE")
ACRX_DEFINE_MEMBERS(AcDbTextStyleTableRecord, AcDbSymbolTableRecord, L"STYLE")
ACRX_DEFINE_MEMBERS(AcDbBlockTable, AcDbSymbolTable, L"TABLE")
ACRX_DEFINE_MEMBERS(AcDbLayerTable, AcDbSymbolTable, L"TABLE")
ACRX_DEFINE_MEMBERS(AcDbLinetypeTable, AcDbSymbolTable, L"TABLE")
ACRX_DEFINE_MEMBERS(AcDbTextStyleTable, AcDbSymbolTable, L"TABLE")
ACRX_DEFINE_MEMBERS(AcDbRegAppTableRecord, AcDbSymbolTableRecord, L"APPID")
ACRX_DEFINE_MEMBERS(AcDbRegAppTable, AcDbSymbolTable, L"TABLE")

Acad::ErrorStatus AcDbBlockTableRecord::appendAcDbEntity(AcDbObjectId& id, AcDbEntity* pEntity) {
    assertWriteEnabled();
    if (!pEntity) return Acad::eNullObjectPointer;
    if (!pEntity->objectId().isNull()) return Acad::eAlreadyInDb;
    if (!database()) return Acad::eNoDatabase;
    const Acad::ErrorStatus status = database()->AddObject(id, pEntity, objectId());
    if (status != Acad::eOk) return status;
    m_arIds.push_back(id);
    if (pEntity->layerId().isNull()) pEntity->setLayer(database()->clayer());
    return Acad::eOk;
}

Acad::ErrorStatus AcDbBlockTableRecord::appendAcDbEntity(AcDbEntity* pEntity) {
    AcDbObjectId id;
    return appendAcDbEntity(id, pEntity);
}

Acad::ErrorStatus AcDbBlockTableRecord::setOrigin(const AcGePoint3d& origin) {
    assertWriteEnabled();
    m_ptOrigin = origin;
    return Acad::eOk;
}

std::vector<AcDbObjectId> AcDbBlockTableRecord::EntityIds(bool bWithErased) const {
    assertReadEnabled();
    std::vector<AcDbObjectId> ids = m_arIds;
    if (!bWithErased) std::erase_if(ids, [](const AcDbObjectId& id) { return id.isErased(); });
    return ids;
}

Acad::ErrorStatus AcDbBlockTableRecord::dwgOutFields(AcDbDwgFiler* pFiler) const {
    const Acad::ErrorStatus status = AcDbSymbolTableRecord::dwgOutFields(pFiler);
    return status == Acad::eOk ? pFiler->writePoint3d(m_ptOrigin) : status;
}

Acad::ErrorStatus AcDbBlockTableRecord::dwgInFields(AcDbDwgFiler* pFiler) {
    const Acad::ErrorStatus status = AcDbSymbolTableRecord::dwgInFields(pFiler);
    return status == Acad::eOk ? pFiler->readPoint3d(&m_ptOrigin) : status;
}

Acad::ErrorStatus AcDbLayerTableRecord::SetColorIndex(Adesk::UInt16 color) {
    assertWriteEnabled();
    if (color == 0 || color >= g_nColorByLayer) return Acad::eInvalidInput;
    m_nColorIndex = color;
    return Acad::eOk;
}

Acad::ErrorStatus AcDbLayerTableRecord::setLinetypeObjectId(AcDbObjectId idLinetype) {
    assertWriteEnabled();
    if (!idLinetype.isNull()) {
        const Acad::ErrorStatus status = CheckRecord<AcDbLinetypeTableRecord>(idLinetype, database());
        if (status != Acad::eOk) return status;
    }
    m_idLinetype = idLinetype;
    return Acad::eOk;
}

Acad::ErrorStatus AcDbLayerTableRecord::dwgOutFields(AcDbDwgFiler* pFiler) const {
    const Acad::ErrorStatus status = AcDbSymbolTableRecord::dwgOutFields(pFiler);
    if (status != Acad::eOk) return status;
    pFiler->writeUInt16(m_nColorIndex);
    return pFiler->writeHardPointerId(m_idLinetype);
}

Acad::ErrorStatus AcDbLayerTableRecord::dwgInFields(AcDbDwgFiler* pFiler) {
    const Acad::ErrorStatus status = AcDbSymbolTableRecord::dwgInFields(pFiler);
    if (status != Acad::eOk) return status;
    pFiler->readUInt16(&m_nColorIndex);
    if (m_nColorIndex == 0 || m_nColorIndex >= g_nColorByLayer) m_nColorIndex = g_nWhite;
    pFiler->readHardPointerId(&m_idLinetype);
    if (!PeekObject<AcDbLinetypeTableRecord>(m_idLinetype)) m_idLinetype.setNull();
    return pFiler->filerStatus();
}

Acad::ErrorStatus AcDbLinetypeTableRecord::SetPattern(const ACHAR* comments, std::vector<double> dashes) {
    assertWriteEnabled();
    if (!std::all_of(dashes.begin(), dashes.end(), [](double length) { return std::isfinite(length); }))
        return Acad::eInvalidInput;
    m_strComments = comments ? comments : L"";
    m_arDashes = std::move(dashes);
    return Acad::eOk;
}

Acad::ErrorStatus AcDbLinetypeTableRecord::dwgOutFields(AcDbDwgFiler* pFiler) const {
    const Acad::ErrorStatus status = AcDbSymbolTableRecord::dwgOutFields(pFiler);
    if (status != Acad::eOk) return status;
    pFiler->writeString(m_strComments.c_str());
    pFiler->writeInt32(static_cast<Adesk::Int32>(m_arDashes.size()));
    for (const double dash : m_arDashes)
        pFiler->writeDouble(dash);
    return pFiler->filerStatus();
}

Acad::ErrorStatus AcDbLinetypeTableRecord::dwgInFields(AcDbDwgFiler* pFiler) {
    const Acad::ErrorStatus status = AcDbSymbolTableRecord::dwgInFields(pFiler);
    if (status != Acad::eOk) return status;
    ReadText(pFiler, m_strComments);
    Adesk::Int32 nDashes = 0;
    pFiler->readInt32(&nDashes);
    m_arDashes.clear();
    for (Adesk::Int32 i = 0; i < nDashes; ++i) {
        double dash = 0.0;
        if (pFiler->readDouble(&dash) != Acad::eOk) break;
        m_arDashes.push_back(dash);
    }
    return pFiler->filerStatus();
}

Acad::ErrorStatus AcDbTextStyleTableRecord::setFont(const ACHAR* typeface, Adesk::Boolean bold,
                                                    Adesk::Boolean italic, int charset, int pitchAndFamily) {
    assertWriteEnabled();
    if (!typeface || !*typeface) return Acad::eInvalidInput;
    m_strTypeface = typeface;
    m_strFileName.clear();
    m_strBigFontFileName.clear();
    m_bBold = bold ? Adesk::kTrue : Adesk::kFalse;
    m_bItalic = italic ? Adesk::kTrue : Adesk::kFalse;
    m_nCharset = charset;
    m_nPitchAndFamily = pitchAndFamily;
    return Acad::eOk;
}

Acad::ErrorStatus AcDbTextStyleTableRecord::font(std::wstring& typeface, Adesk::Boolean& bold,
                                                 Adesk::Boolean& italic, int& charset,
                                                 int& pitchAndFamily) const {
    assertReadEnabled();
    typeface = m_strTypeface;
    bold = m_bBold;
    italic = m_bItalic;
    charset = m_nCharset;
    pitchAndFamily = m_nPitchAndFamily;
    return Acad::eOk;
}

Acad::ErrorStatus AcDbTextStyleTableRecord::setFileName(const ACHAR* fileName) {
    assertWriteEnabled();
    if (!fileName) return Acad::eInvalidInput;
    m_strFileName = fileName;
    m_strTypeface.clear();
    m_bBold = m_bItalic = Adesk::kFalse;
    m_nCharset = m_nPitchAndFamily = 0;
    return Acad::eOk;
}

Acad::ErrorStatus AcDbTextStyleTableRecord::setBigFontFileName(const ACHAR* fileName) {
    assertWriteEnabled();
    if (!fileName) return Acad::eInvalidInput;
    m_strBigFontFileName = fileName;
    return Acad::eOk;
}

Acad::ErrorStatus AcDbTextStyleTableRecord::setTextSize(double size) {
    assertWriteEnabled();
    if (!std::isfinite(size) || size < 0.0) return Acad::eInvalidInput;
    m_dTextSize = size;
    return Acad::eOk;
}

Acad::ErrorStatus AcDbTextStyleTableRecord::setXScale(double scale) {
    assertWriteEnabled();
    if (!std::isfinite(scale) || scale <= 0.0) return Acad::eInvalidInput;
    m_dXScale = scale;
    return Acad::eOk;
}

Acad::ErrorStatus AcDbTextStyleTableRecord::setObliquingAngle(double radians) {
    assertWriteEnabled();
    if (!std::isfinite(radians)) return Acad::eInvalidInput;
    m_dObliquingAngle = radians;
    return Acad::eOk;
}

CTextFont AcDbTextStyleTableRecord::Font() const {
    if (!m_strTypeface.empty()) return {GbkFromWide(m_strTypeface), std::string()};
    return {GbkFromWide(m_strFileName), GbkFromWide(m_strBigFontFileName)};
}

Acad::ErrorStatus AcDbTextStyleTableRecord::dwgOutFields(AcDbDwgFiler* pFiler) const {
    const Acad::ErrorStatus status = AcDbSymbolTableRecord::dwgOutFields(pFiler);
    if (status != Acad::eOk) return status;
    for (const std::wstring* pText : {&m_strTypeface, &m_strFileName, &m_strBigFontFileName})
        pFiler->writeString(pText->c_str());
    for (const int value : {m_bBold, m_bItalic, m_nCharset, m_nPitchAndFamily})
        pFiler->writeInt32(value);
    for (const double value : {m_dTextSize, m_dXScale, m_dObliquingAngle})
        pFiler->writeDouble(value);
    return pFiler->filerStatus();
}

Acad::ErrorStatus AcDbTextStyleTableRecord::dwgInFields(AcDbDwgFiler* pFiler) {
    const Acad::ErrorStatus status = AcDbSymbolTableRecord::dwgInFields(pFiler);
    if (status != Acad::eOk) return status;
    for (std::wstring* pText : {&m_strTypeface, &m_strFileName, &m_strBigFontFileName})
        ReadText(pFiler, *pText);
    for (int* pValue : {&m_bBold, &m_bItalic, &m_nCharset, &m_nPitchAndFamily})
        pFiler->readInt32(pValue);
    for (double* pValue : {&m_dTextSize, &m_dXScale, &m_dObliquingAngle})
        pFiler->readDouble(pValue);
    return pFiler->filerStatus();
}
