#include "host/console/dump.h"

#include "host/console/drawing_order.h"
#include "host/console/dump_entities.h"
#include "host/console/dump_primitives.h"
#include "host/console/texts.h"
#include "platform/acad/display_recorder.h"
#include "platform/acad/editor.h"
#include "platform/acad/table_keeper.h"

#include <map>

namespace {

CJson JsonSdi() {
    resbuf value;
    if (acedGetVar(L"SDI", &value) != RTNORM) return nullptr;
    return value.resval.rint;
}

CJson JsonSysvars(const AcDbDatabase& drawing) {
    CJson json;
    json["LTSCALE"] = JsonNumber(drawing.ltscale());
    json["CELTYPE"] = drawing.celtype().isNull() ? CJson("ByLayer") : JsonText(SymbolName(drawing.celtype()));
    json["CLAYER"] = JsonText(SymbolName(drawing.clayer()));
    json["TEXTSTYLE"] = JsonText(SymbolName(drawing.textstyle()));
    json["SDI"] = JsonSdi();
    return json;
}

CJson JsonTextStyle(const AcDbTextStyleTableRecord& record) {
    std::wstring strTypeface;
    Adesk::Boolean bBold = 0, bItalic = 0;
    int nCharset = 0, nPitchAndFamily = 0;
    record.font(strTypeface, bBold, bItalic, nCharset, nPitchAndFamily);
    CJson json;
    json["name"] = Utf8FromWide(record.Name());
    json["font"] = Utf8FromWide(strTypeface);
    json["fileName"] = Utf8FromWide(record.FileName());
    json["bigFontFile"] = Utf8FromWide(record.BigFontFileName());
    json["bold"] = bBold != 0;
    json["italic"] = bItalic != 0;
    json["charset"] = nCharset;
    json["pitchAndFamily"] = nPitchAndFamily;
    json["height"] = JsonNumber(record.textSize());
    json["xScale"] = JsonNumber(record.xScale());
    json["oblique"] = JsonNumber(record.obliquingAngle());
    return json;
}

CJson JsonLinetype(const AcDbLinetypeTableRecord& record) {
    CJson json;
    json["name"] = Utf8FromWide(record.Name());
    json["description"] = Utf8FromWide(record.Comments());
    json["dashes"] = JsonNumbers(record.Dashes());
    return json;
}

template <class T>
CJson JsonTable(AcDbObjectId idTable, CJson (*pRecordToJson)(const T&)) {
    CJson list = CJson::array();
    for (const AcDbObjectId& id : LivingRecords(idTable))
        if (const CDbOpen<T> record(id); record) list.push_back(pRecordToJson(*record.Get()));
    return list;
}

CJson JsonEntities(const AcDbBlockTableRecord& block) {
    CJson list = CJson::array();
    for (const AcDbObjectId& id : EntitiesInOrder(block))
        if (const CDbOpen<AcDbEntity> entity(id); entity) list.push_back(JsonEntity(*entity.Get()));
    return list;
}

bool IsSpace(const AcDbBlockTableRecord& block) {
    return block.Name() == ACDB_MODEL_SPACE || block.Name() == ACDB_PAPER_SPACE;
}

CJson JsonBlocks(const AcDbDatabase& drawing) {
    CJson list = CJson::array();
    for (const AcDbObjectId& id : LivingRecords(drawing.blockTableId())) {
        const CDbOpen<AcDbBlockTableRecord> block(id);
        if (!block || IsSpace(*block.Get())) continue;
        CJson& json = list.emplace_back(CJson::object());
        json["name"] = Utf8FromWide(block->Name());
        json["base"] = JsonPoint(block->origin());
        json["entities"] = JsonEntities(*block.Get());
    }
    return list;
}

CJson JsonModelSpace(const AcDbDatabase& drawing) {
    const CDbOpen<AcDbBlockTableRecord> block(drawing.ModelSpaceId());
    return block ? JsonEntities(*block.Get()) : CJson::array();
}

/// What each custom entity draws, by handle; each is drawn once, in database order. Their pictures stay
/// those drawn last.
std::map<std::string, CJson> DrawWorlds(AcDbDatabase& drawing) {
    std::map<std::string, CJson> worlds;
    for (const AcDbObjectId& id : AllEntities(drawing)) {
        const CDbOpen<AcDbEntity> entity(id);
        if (!entity || !HasFields(*entity.Get())) continue;
        CDisplayRecorder recorder(*entity.Get());
        entity->worldDraw(&recorder);
        worlds[id.handle().Hex()] = JsonDisplayList(recorder.Take());
    }
    return worlds;
}

void AddWorlds(const std::map<std::string, CJson>& worlds, CJson* entities) {
    for (CJson& entity : *entities) {
        const auto world = worlds.find(entity["handle"].get<std::string>());
        if (world != worlds.end()) entity["world"] = world->second;
    }
}

} // namespace

std::string DumpDrawing(AcDbDatabase& drawing, const std::string& strName) {
    const CTableKeeper keeper(drawing);
    CJson json;
    json["drawing"] = strName;
    json["sysvars"] = JsonSysvars(drawing);
    json["textStyles"] = JsonTable<AcDbTextStyleTableRecord>(drawing.textStyleTableId(), JsonTextStyle);
    json["linetypes"] = JsonTable<AcDbLinetypeTableRecord>(drawing.linetypeTableId(), JsonLinetype);
    json["blocks"] = JsonBlocks(drawing);
    json["modelSpace"] = JsonModelSpace(drawing);
    const std::map<std::string, CJson> worlds = DrawWorlds(drawing);
    for (CJson& block : json["blocks"])
        AddWorlds(worlds, &block["entities"]);
    AddWorlds(worlds, &json["modelSpace"]);
    return json.dump(1) + "\n";
}
