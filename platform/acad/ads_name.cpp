#include "platform/acad/ads_name.h"

// The first part is the address of what the drawing knows of the entity; the second tells the kind, 0 for an
// entity.

Acad::ErrorStatus acdbGetObjectId(AcDbObjectId& id, const ads_name name) {
    if (name[0] == 0 || name[1] != 0) return Acad::eInvalidAdsName;
    id = AcDbObjectId(reinterpret_cast<CDbStub*>(name[0])); // NOLINT(performance-no-int-to-ptr)
    return Acad::eOk;
}

Acad::ErrorStatus acdbGetAdsName(ads_name& name, AcDbObjectId id) {
    if (id.isNull()) return Acad::eNullObjectId;
    name[0] = reinterpret_cast<std::intptr_t>(id.Stub());
    name[1] = 0;
    return Acad::eOk;
}
