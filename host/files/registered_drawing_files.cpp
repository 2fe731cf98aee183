#include "host/files/registered_drawing_files.h"

#include "host/files/drawing_storage.h"

namespace {

template <class Work>
Acad::ErrorStatus StatusOf(const Work& work) {
    try {
        work();
        return Acad::eOk;
    } catch (const CDrawingFailure& failure) {
        return failure.Status();
    }
}

} // namespace

Acad::ErrorStatus CRegisteredDrawingFiles::Read(const std::string& utf8Path,
                                                std::unique_ptr<AcDbDatabase>* pDatabase) {
    return StatusOf([&] { *pDatabase = LoadDrawing(utf8Path).m_pDatabase; });
}

Acad::ErrorStatus CRegisteredDrawingFiles::Write(const AcDbDatabase& database, const std::string& utf8Path) {
    const std::optional<CDrawingFormat> format = FormatOfEnding(utf8Path);
    if (!format) return Acad::eInvalidInput;
    return StatusOf([&] { StoreDrawing(utf8Path, WriteDrawing(database, *format).m_strBytes); });
}
