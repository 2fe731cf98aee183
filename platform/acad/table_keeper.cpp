#include "platform/acad/table_keeper.h"

#include <array>

namespace {

std::array<AcDbObjectId, 4> TablesOf(const AcDbDatabase& drawing) {
    return {drawing.blockTableId(), drawing.layerTableId(), drawing.linetypeTableId(),
            drawing.textStyleTableId()};
}

} // namespace

CTableKeeper::CTableKeeper(AcDbDatabase& drawing)
    : m_drawing(drawing)
    , m_bModified(drawing.IsModified())
    , m_bRecording(drawing.UndoLog().IsRecording())
    , m_variables(drawing.Variables()) {
    m_drawing.UndoLog().SetRecording(false);
    KeepTables();
}

CTableKeeper::~CTableKeeper() {
    m_drawing.SetVariables(m_variables);
    for (const CStyle& style : m_arStyles)
        PutBack(style);
    for (const CLinetype& linetype : m_arLinetypes)
        PutBack(linetype);
    for (const CLayer& layer : m_arLayers)
        PutBack(layer);
    EraseNewRecords();
    m_drawing.SetModified(m_bModified);
    m_drawing.UndoLog().SetRecording(m_bRecording);
}

void CTableKeeper::KeepTables() {
    for (const AcDbObjectId& idTable : TablesOf(m_drawing))
        for (const AcDbObjectId& id : LivingRecords(idTable))
            m_setRecords.insert(id.handle());
    for (const AcDbObjectId& id : LivingRecords(m_drawing.textStyleTableId()))
        m_arStyles.push_back(StyleOf(id));
    for (const AcDbObjectId& id : LivingRecords(m_drawing.linetypeTableId()))
        if (const CDbOpen<AcDbLinetypeTableRecord> record(id); record)
            m_arLinetypes.push_back({id, record->Comments(), record->Dashes()});
    for (const AcDbObjectId& id : LivingRecords(m_drawing.layerTableId()))
        if (const CDbOpen<AcDbLayerTableRecord> record(id); record)
            m_arLayers.push_back({id, record->linetypeObjectId(), record->ColorIndex()});
}

void CTableKeeper::EraseNewRecords() const {
    for (const AcDbObjectId& idTable : TablesOf(m_drawing))
        for (const AcDbObjectId& id : LivingRecords(idTable))
            if (!m_setRecords.contains(id.handle()))
                if (const CDbOpen<AcDbSymbolTableRecord> record(id, AcDb::kForWrite); record) record->erase();
}

CTableKeeper::CStyle CTableKeeper::StyleOf(AcDbObjectId id) {
    CStyle style;
    style.m_id = id;
    const CDbOpen<AcDbTextStyleTableRecord> record(id);
    if (!record) return style;
    record->font(style.m_strTypeface, style.m_bBold, style.m_bItalic, style.m_nCharset,
                 style.m_nPitchAndFamily);
    style.m_strFileName = record->FileName();
    style.m_strBigFontFileName = record->BigFontFileName();
    style.m_dTextSize = record->textSize();
    style.m_dXScale = record->xScale();
    style.m_dObliquingAngle = record->obliquingAngle();
    return style;
}

void CTableKeeper::PutBack(const CStyle& style) {
    if (StyleOf(style.m_id) == style) return;
    const CDbOpen<AcDbTextStyleTableRecord> record(style.m_id, AcDb::kForWrite);
    if (!record) return;
    if (style.m_strTypeface.empty()) {
        record->setFileName(style.m_strFileName.c_str());
        record->setBigFontFileName(style.m_strBigFontFileName.c_str());
    } else {
        record->setFont(style.m_strTypeface.c_str(), style.m_bBold, style.m_bItalic, style.m_nCharset,
                        style.m_nPitchAndFamily);
    }
    record->setTextSize(style.m_dTextSize);
    record->setXScale(style.m_dXScale);
    record->setObliquingAngle(style.m_dObliquingAngle);
}

void CTableKeeper::PutBack(const CLinetype& linetype) {
    const CDbOpen<AcDbLinetypeTableRecord> record(linetype.m_id, AcDb::kForWrite);
    if (record) record->SetPattern(linetype.m_strComments.c_str(), linetype.m_arDashes);
}

void CTableKeeper::PutBack(const CLayer& layer) {
    const CDbOpen<AcDbLayerTableRecord> record(layer.m_id, AcDb::kForWrite);
    if (!record) return;
    record->SetColorIndex(layer.m_nColorIndex);
    record->setLinetypeObjectId(layer.m_idLinetype);
}
