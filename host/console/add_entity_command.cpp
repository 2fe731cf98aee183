// ADDENTITY: an entity of any registered class, from a description in JSON.

#include "host/console/append_entity.h"
#include "host/console/host_commands.h"
#include "host/console/json_fields.h"
#include "host/console/picks.h"
#include "host/console/texts.h"
#include "platform/acad/rx_class.h"
#include "platform/acad/rx_registry.h"
#include "platform/windows/file_bytes.h"

#include <memory>

namespace {

CJson ReadDescription(const std::string& path) {
    std::string bytes;
    if (!ReadFileWhole(path, &bytes)) throw CRunFailure(EXIT_FILE_FAILED, path + " cannot be read");
    CJson json = CJson::parse(bytes, nullptr, false);
    if (!json.is_object()) throw CRunFailure(EXIT_FILE_FAILED, path + " is no JSON object");
    for (const auto& item : json.items())
        if (item.key() != "class" && item.key() != "fields" && item.key() != "watch")
            RefuseAnswer(path + ": no such member: " + item.key());
    return json;
}

std::unique_ptr<AcDbEntity> MakeEntity(const CJson& json) {
    if (!json.is_string()) RefuseAnswer("\"class\" is the name of a class");
    const auto strName = json.get<std::string>();
    auto* const pClasses = static_cast<AcRxDictionary*>(acrxSysRegistry()->at(ACDB_CLASS_DICTIONARY));
    const auto* const pClass = static_cast<AcRxClass*>(pClasses->at(WideAnswer(strName).c_str()));
    if (!pClass) RefuseAnswer("no such class: " + strName);
    std::unique_ptr<AcDbEntity> pEntity;
    if (pClass->isDerivedFrom(AcDbEntity::desc())) pEntity.reset(static_cast<AcDbEntity*>(pClass->create()));
    if (!pEntity) RefuseAnswer("no entity can be made of class " + strName);
    return pEntity;
}

void SetField(AcDbEntity& entity, const std::string& strName, const CJson& json, AcDbDatabase& drawing) {
    const CFieldTable* const pTable = CFieldTable::Of(entity);
    const int row = pTable ? pTable->Find(GbkAnswer(strName)) : -1;
    if (row < 0) RefuseAnswer("the class has no field " + strName);
    const CFieldValue value = FieldFromJson(json, pTable->Get(entity, row), drawing);
    // A field of 16 bits takes a greater number without a word, and then holds another.
    if (!pTable->Set(entity, row, value) || JsonField(pTable->Get(entity, row)) != JsonField(value))
        RefuseAnswer("field " + strName + " cannot hold " + json.dump());
}

AcDbObjectId Watched(const CJson& json, AcDbDatabase& drawing) {
    if (!json.is_string()) RefuseAnswer("a watched entity is told by its handle, a text");
    std::string reason;
    const AcDbObjectId id = PickEntity(drawing, "#" + json.get<std::string>(), AcGePoint3d::kOrigin, &reason);
    if (id.isNull()) RefuseAnswer(reason);
    return id;
}

} // namespace

void CommandAddEntity(CHost& host) {
    const std::string path = host.m_input.FileToOpen("File: ", ".json");
    host.m_input.End();
    const CJson json = ReadDescription(path);
    const CJson fields = json.value("fields", CJson::object());
    const CJson watch = json.value("watch", CJson::array());
    std::unique_ptr<AcDbEntity> pEntity = MakeEntity(json.value("class", CJson()));
    for (const auto& item : fields.items())
        SetField(*pEntity, item.key(), item.value(), host.Drawing());
    std::vector<AcDbObjectId> watched;
    for (const CJson& handle : watch)
        watched.push_back(Watched(handle, host.Drawing()));

    const AcDbObjectId id = AppendToModelSpace(host, std::move(pEntity));
    for (const AcDbObjectId& idWatched : watched) {
        const CDbOpen<AcDbEntity> entity(idWatched, AcDb::kForWrite);
        if (entity) entity->addPersistentReactor(id);
    }
}
