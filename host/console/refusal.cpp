#include "host/console/refusal.h"

void TellRefusal(const CHost& host, const std::string& strWhat, AcDbObjectId id, Acad::ErrorStatus status) {
    host.Print("cannot " + strWhat + " #" + id.handle().Hex() + ": " + Acad::ErrorStatusText(status));
}
