#include "host/console/drawing_files.h"

#include <filesystem>

Acad::ErrorStatus ReadDrawingFile(const std::string& strPath, AcDbDatabase&) {
    std::error_code error;
    return std::filesystem::is_regular_file(strPath, error) ? Acad::eNotImplementedYet : Acad::eFileNotFound;
}

Acad::ErrorStatus WriteDrawingFile(const AcDbDatabase&, const std::string&) {
    return Acad::eNotImplementedYet;
}
