#include "platform/acad/db_text.h"

#include "platform/acad/db_database.h"
#include "platform/acad/db_filer.h"
#include "platform/acad/db_stub.h"
#include "platform/acad/filed_text.h"
#include "platform/acad/host_application.h"
#include "platform/acad/plane_transform.h"
#include "platform/acad/text_box.h"
#include "platform/windows/code_page.h"

ACRX_DEFINE_MEMBERS(AcDbText, AcDbEntity, L"TEXT")

namespace {

/// The style of a text of the drawing (null: a free text, which belongs to the working drawing); null without
/// one.
const AcDbTextStyleTableRecord* StyleOf(AcDbObjectId idStyle, const AcDbDatabase* pDatabase) {
    if (!idStyle.isNull()) return PeekObject<AcDbTextStyleTableRecord>(idStyle);
    if (!pDatabase) pDatabase = acdbHostApplicationServices()->workingDatabase();
    if (!pDatabase) return nullptr;
    const auto* const pStyles = PeekObject<AcDbTextStyleTable>(pDatabase->textStyleTableId());
    for (const AcDbObjectId& id : pStyles->RecordIds()) {
        const auto* const pStyle = PeekObject<AcDbTextStyleTableRecord>(id);
        if (pStyle && pStyle->Name() == L"Standard") return pStyle;
    }
    return nullptr;
}

} // namespace

AcDbText::AcDbText(const AcGePoint3d& position, const ACHAR* text, AcDbObjectId idStyle, double height,
                   double rotation)
    : m_ptPosition(position)
    , m_strText(text ? text : L"")
    , m_dHeight(height)
    , m_dRotation(rotation)
    , m_idStyle(idStyle) {}

std::string AcDbText::StyleName() const {
    return m_idStyle.isNull() ? std::string("Standard") : SymbolName(m_idStyle);
}

Acad::ErrorStatus AcDbText::setPosition(const AcGePoint3d& position) {
    assertWriteEnabled();
    m_ptPosition = position;
    return Acad::eOk;
}

Acad::ErrorStatus AcDbText::setTextString(const ACHAR* text) {
    assertWriteEnabled();
    if (!text) return Acad::eInvalidInput;
    m_strText = text;
    return Acad::eOk;
}

Acad::ErrorStatus AcDbText::SetNumber(double& field, double value, bool bAllowed) {
    assertWriteEnabled();
    if (!std::isfinite(value) || !bAllowed) return Acad::eInvalidInput;
    field = value;
    return Acad::eOk;
}

Acad::ErrorStatus AcDbText::setHeight(double height) {
    return SetNumber(m_dHeight, height, height >= 0.0);
}

Acad::ErrorStatus AcDbText::setRotation(double radians) {
    return SetNumber(m_dRotation, radians, true);
}

Acad::ErrorStatus AcDbText::setWidthFactor(double factor) {
    return SetNumber(m_dWidthFactor, factor, factor > 0.0);
}

Acad::ErrorStatus AcDbText::setOblique(double radians) {
    return SetNumber(m_dOblique, radians, true);
}

Acad::ErrorStatus AcDbText::setTextStyle(AcDbObjectId idStyle) {
    assertWriteEnabled();
    if (!idStyle.isNull() && !PeekObject<AcDbTextStyleTableRecord>(idStyle)) return Acad::eNotThatKindOfClass;
    if (!idStyle.isNull() && database() && idStyle.database() != database()) return Acad::eWrongDatabase;
    m_idStyle = idStyle;
    return Acad::eOk;
}

Acad::ErrorStatus AcDbText::dwgOutFields(AcDbDwgFiler* pFiler) const {
    if (const Acad::ErrorStatus status = AcDbEntity::dwgOutFields(pFiler); status != Acad::eOk) return status;
    pFiler->writePoint3d(m_ptPosition);
    pFiler->writeString(m_strText.c_str());
    for (const double value : {m_dHeight, m_dRotation, m_dWidthFactor, m_dOblique})
        pFiler->writeDouble(value);
    return pFiler->writeHardPointerId(m_idStyle);
}

Acad::ErrorStatus AcDbText::dwgInFields(AcDbDwgFiler* pFiler) {
    if (const Acad::ErrorStatus status = AcDbEntity::dwgInFields(pFiler); status != Acad::eOk) return status;
    pFiler->readPoint3d(&m_ptPosition);
    ReadText(pFiler, m_strText);
    for (double* pValue : {&m_dHeight, &m_dRotation, &m_dWidthFactor, &m_dOblique})
        pFiler->readDouble(pValue);
    pFiler->readHardPointerId(&m_idStyle);
    if (!PeekObject<AcDbTextStyleTableRecord>(m_idStyle)) m_idStyle.setNull();
    return pFiler->filerStatus();
}

CTextPrimitive AcDbText::Primitive() const {
    CTextPrimitive text;
    text.m_ptPosition = m_ptPosition;
    text.m_vecNormal = AcGeVector3d::kZAxis;
    text.m_vecDirection.set(std::cos(m_dRotation), std::sin(m_dRotation), 0.0);
    text.m_strText = GbkFromWide(m_strText);
    text.m_dHeight = m_dHeight;
    text.m_dXScale = m_dWidthFactor;
    text.m_dOblique = m_dOblique;
    if (const AcDbTextStyleTableRecord* const pStyle = StyleOf(m_idStyle, database())) {
        const CTextFont font = pStyle->Font();
        text.m_strFont = font.m_strFont;
        text.m_strBigFont = font.m_strBigFont;
    }
    return text;
}

Adesk::Boolean AcDbText::subWorldDraw(AcGiWorldDraw* pMode) {
    assertReadEnabled();
    const CTextPrimitive text = Primitive();
    AcGiTextStyle style;
    style.setTextSize(text.m_dHeight);
    style.setXScale(text.m_dXScale);
    style.setObliquingAngle(text.m_dOblique);
    style.setFileName(WideFromGbk(text.m_strFont).c_str());
    style.setBigFontFileName(WideFromGbk(text.m_strBigFont).c_str());
    pMode->rawGeometry()->text(text.m_ptPosition, text.m_vecNormal, text.m_vecDirection, m_strText.c_str(),
                               -1, Adesk::kTrue, style);
    return Adesk::kTrue;
}

Acad::ErrorStatus AcDbText::subGetGeomExtents(AcDbExtents& extents) const {
    assertReadEnabled();
    const auto corners = TextBox(Primitive());
    if (!corners) return Acad::eInvalidExtents;
    AcDbExtents box;
    for (const AcGePoint3d& corner : *corners)
        box.addPoint(corner);
    extents = box;
    return Acad::eOk;
}

Acad::ErrorStatus AcDbText::subTransformBy(const AcGeMatrix3d& xform) {
    assertWriteEnabled();
    const std::optional<CPlaneTransform> plane = PlaneTransform(xform);
    if (!plane) return Acad::eNotApplicable;
    AcGePoint3d start = m_ptPosition;
    AcGeVector3d along(std::cos(m_dRotation), std::sin(m_dRotation), 0.0);
    along.transformBy(xform);
    if (plane->m_bMirrored) {
        // The mirrored text stays readable and fills the mirrored rectangle: it begins where the image of its
        // top left corner lies, or, lest it stand on its head, of its bottom right one.
        const bool bTurned = along.x < 0.0 || (along.x == 0.0 && along.y < 0.0);
        if (const auto corners = TextBox(Primitive())) start = (*corners)[bTurned ? 1 : 3];
        if (bTurned) along = -along;
    }
    m_ptPosition = start.transformBy(xform);
    m_dRotation = std::atan2(along.y, along.x);
    m_dHeight *= plane->m_dScale;
    return Acad::eOk;
}
