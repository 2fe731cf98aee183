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
    return pStyles ? PeekObject<AcDbTextStyleTableRecord>(pStyles->Find(L"Standard")) : nullptr;
}

template <class Mode>
Mode ModeOf(Adesk::Int16 value, Mode last) {
    return value >= 0 && value <= last ? static_cast<Mode>(value) : Mode();
}

AcGeVector3d Direction(double radians) {
    return {std::cos(radians), std::sin(radians), 0.0};
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
    if (!idStyle.isNull()) {
        const Acad::ErrorStatus status = CheckRecord<AcDbTextStyleTableRecord>(idStyle, database());
        if (status != Acad::eOk) return status;
    }
    m_idStyle = idStyle;
    return Acad::eOk;
}

Acad::ErrorStatus AcDbText::setNormal(const AcGeVector3d& normal) {
    assertWriteEnabled();
    return normal.normal() == AcGeVector3d::kZAxis ? Acad::eOk : Acad::eInvalidInput;
}

bool AcDbText::isDefaultAlignment() const {
    return m_horizontal == AcDb::kTextLeft && m_vertical == AcDb::kTextBase;
}

Acad::ErrorStatus AcDbText::setHorizontalMode(AcDb::TextHorzMode mode) {
    assertWriteEnabled();
    m_horizontal = mode;
    return Acad::eOk;
}

Acad::ErrorStatus AcDbText::setVerticalMode(AcDb::TextVertMode mode) {
    assertWriteEnabled();
    m_vertical = mode;
    return Acad::eOk;
}

Acad::ErrorStatus AcDbText::setAlignmentPoint(const AcGePoint3d& point) {
    assertWriteEnabled();
    m_ptAlignment = point;
    return Acad::eOk;
}

double AcDbText::Width() const {
    const auto corners = TextBox(Primitive());
    return corners ? (*corners)[0].distanceTo((*corners)[1]) : 0.0;
}

/// The way from the position of the text, as it stands, to where its alignment point belongs.
AcGeVector3d AcDbText::ToAlignmentPoint() const {
    double along = 0.0, up = 0.0; // parts of width and height
    if (m_horizontal == AcDb::kTextCenter || m_horizontal == AcDb::kTextMid) along = 0.5;
    if (m_horizontal == AcDb::kTextRight || m_horizontal == AcDb::kTextAlign ||
        m_horizontal == AcDb::kTextFit)
        along = 1.0;
    if (m_vertical == AcDb::kTextTop) up = 1.0;
    if (m_vertical == AcDb::kTextVertMid || m_horizontal == AcDb::kTextMid) up = 0.5;
    const AcGeVector3d direction = Direction(m_dRotation);
    return direction * (along * Width()) + normal().crossProduct(direction) * (up * m_dHeight);
}

/// Turns and sizes an aligned or fitted text; one without width, or without a way to go, keeps its size.
void AcDbText::ReachAlignmentPoint() {
    const AcGeVector3d way = m_ptAlignment - m_ptPosition;
    if (way.isZeroLength()) return;
    m_dRotation = std::atan2(way.y, way.x);
    const double dWidth = Width();
    if (!(dWidth > 0.0)) return;
    (m_horizontal == AcDb::kTextAlign ? m_dHeight : m_dWidthFactor) *= way.length() / dWidth;
}

Acad::ErrorStatus AcDbText::adjustAlignment() {
    assertWriteEnabled();
    if (m_horizontal == AcDb::kTextAlign || m_horizontal == AcDb::kTextFit) {
        ReachAlignmentPoint();
    } else if (!isDefaultAlignment()) {
        m_ptPosition = m_ptAlignment - ToAlignmentPoint();
    }
    return Acad::eOk;
}

void AcDbText::TakeTextFrom(const AcDbText& other) {
    assertWriteEnabled();
    m_ptPosition = other.m_ptPosition;
    m_ptAlignment = other.m_ptAlignment;
    m_horizontal = other.m_horizontal;
    m_vertical = other.m_vertical;
    m_strText = other.m_strText;
    m_dHeight = other.m_dHeight;
    m_dRotation = other.m_dRotation;
    m_dWidthFactor = other.m_dWidthFactor;
    m_dOblique = other.m_dOblique;
    m_idStyle = other.m_idStyle;
}

Acad::ErrorStatus AcDbText::dwgOutFields(AcDbDwgFiler* pFiler) const {
    if (const Acad::ErrorStatus status = AcDbEntity::dwgOutFields(pFiler); status != Acad::eOk) return status;
    pFiler->writePoint3d(m_ptPosition);
    pFiler->writeString(m_strText.c_str());
    for (const double value : {m_dHeight, m_dRotation, m_dWidthFactor, m_dOblique})
        pFiler->writeDouble(value);
    pFiler->writePoint3d(m_ptAlignment);
    pFiler->writeInt16(static_cast<Adesk::Int16>(m_horizontal));
    pFiler->writeInt16(static_cast<Adesk::Int16>(m_vertical));
    return pFiler->writeHardPointerId(m_idStyle);
}

Acad::ErrorStatus AcDbText::dwgInFields(AcDbDwgFiler* pFiler) {
    if (const Acad::ErrorStatus status = AcDbEntity::dwgInFields(pFiler); status != Acad::eOk) return status;
    pFiler->readPoint3d(&m_ptPosition);
    ReadText(pFiler, m_strText);
    for (double* pValue : {&m_dHeight, &m_dRotation, &m_dWidthFactor, &m_dOblique})
        pFiler->readDouble(pValue);
    Adesk::Int16 nHorizontal = 0, nVertical = 0;
    pFiler->readPoint3d(&m_ptAlignment);
    pFiler->readInt16(&nHorizontal);
    pFiler->readInt16(&nVertical);
    m_horizontal = ModeOf(nHorizontal, AcDb::kTextFit);
    m_vertical = ModeOf(nVertical, AcDb::kTextTop);
    pFiler->readHardPointerId(&m_idStyle);
    if (!PeekObject<AcDbTextStyleTableRecord>(m_idStyle)) m_idStyle.setNull();
    return pFiler->filerStatus();
}

CTextPrimitive AcDbText::Primitive() const {
    CTextPrimitive text;
    text.m_ptPosition = m_ptPosition;
    text.m_vecNormal = normal();
    text.m_vecDirection = Direction(m_dRotation);
    text.m_strText = GbkFromWide(ShownText());
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
    pMode->rawGeometry()->text(text.m_ptPosition, text.m_vecNormal, text.m_vecDirection, ShownText().c_str(),
                               -1, Adesk::kTrue, style);
    return Adesk::kTrue;
}

Acad::ErrorStatus AcDbText::subGetGeomExtents(AcDbExtents& extents) const {
    assertReadEnabled();
    return GiveExtents(ExtentsOfShape(Primitive()), extents);
}

Acad::ErrorStatus AcDbText::subTransformBy(const AcGeMatrix3d& xform) {
    assertWriteEnabled();
    const std::optional<CPlaneTransform> plane = PlaneTransform(xform);
    if (!plane) return Acad::eNotApplicable;
    const auto corners = plane->m_bMirrored ? TextBox(Primitive()) : std::nullopt;
    AcGePoint3d start = m_ptPosition;
    AcGeVector3d along = Direction(m_dRotation);
    along.transformBy(xform);
    if (plane->m_bMirrored) {
        // The mirrored text stays readable and fills the mirrored rectangle: it begins where the image of its
        // top left corner lies, or, lest it stand on its head, of its bottom right one.
        const bool bTurned = along.x < 0.0 || (along.x == 0.0 && along.y < 0.0);
        if (corners) start = (*corners)[bTurned ? 1 : 3];
        if (bTurned) along = -along;
    }
    m_ptPosition = start.transformBy(xform);
    m_dRotation = std::atan2(along.y, along.x);
    m_dHeight *= plane->m_dScale;
    if (isDefaultAlignment()) return Acad::eOk;
    m_ptAlignment.transformBy(xform);
    if (corners) m_ptAlignment = m_ptPosition + ToAlignmentPoint(); // its place in the text is kept
    return Acad::eOk;
}

void AcDbText::TransformUnevenly(const AcGeMatrix3d& xform) {
    assertWriteEnabled();
    AcGeVector3d along = Direction(m_dRotation), up = normal().crossProduct(along);
    along.transformBy(xform);
    up.transformBy(xform);
    m_ptPosition.transformBy(xform);
    if (!isDefaultAlignment()) m_ptAlignment.transformBy(xform);
    if (!along.isZeroLength()) m_dRotation = std::atan2(along.y, along.x);
    m_dHeight *= up.length();
    if (!along.isZeroLength() && !up.isZeroLength()) m_dWidthFactor *= along.length() / up.length();
}

Acad::ErrorStatus AcDbText::subGetGripPoints(AcGePoint3dArray& gripPoints, AcDbIntArray&,
                                             AcDbIntArray&) const {
    assertReadEnabled();
    gripPoints.append(m_ptPosition);
    if (!isDefaultAlignment()) gripPoints.append(m_ptAlignment);
    return Acad::eOk;
}

Acad::ErrorStatus AcDbText::subMoveGripPointsAt(const AcDbIntArray& indices, const AcGeVector3d& offset) {
    assertWriteEnabled();
    const bool bMoves = indices.contains(0) || (!isDefaultAlignment() && indices.contains(1));
    return bMoves ? transformBy(AcGeMatrix3d::translation(offset)) : Acad::eOk;
}
