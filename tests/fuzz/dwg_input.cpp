#include "tests/fuzz/dwg_input.h"

#include "chart/chart_entity.h"
#include "frame/frame_entity.h"
#include "host/files/dwg_drawing_reader.h"
#include "host/files/dwg_drawing_writer.h"
#include "host/files/dwg_error.h"
#include "platform/acad/host_application.h"
#include "tests/support/sample_drawing.h"

#include <cstdlib>

namespace {

/// Null for a file that is refused.
std::unique_ptr<AcDbDatabase> Read(CByteView bytes) {
    try {
        return DrawingOfDwg(ReadDwgFile(bytes));
    } catch (const CDwgError&) {
        return nullptr;
    }
}

} // namespace

CModuleClasses::CModuleClasses() {
    CBRENChart::rxInit();
    CBRENFrame::rxInit();
}

CModuleClasses::~CModuleClasses() {
    CBRENFrame::rxExit();
    CBRENChart::rxExit();
}

CDwgFile DwgFilledBy(const std::function<void(AcDbDatabase&)>& fill) {
    AcDbDatabase database;
    acdbHostApplicationServices()->setWorkingDatabase(&database);
    fill(database);
    acdbHostApplicationServices()->setWorkingDatabase(nullptr);
    return DwgFileOf(database);
}

CDwgFile DwgOfEveryKind() {
    return DwgFilledBy([](AcDbDatabase& database) {
        AddOneOfEachKind(database);
        AddSheet(database);
    });
}

void ReadWriteAndRead(CByteView bytes) {
    const auto pDrawing = Read(bytes);
    if (pDrawing && !Read(WriteDwgFile(DwgFileOf(*pDrawing)))) std::abort();
}
