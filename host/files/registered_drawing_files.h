#pragma once

#include "platform/acad/host_application.h"

/// The files behind AcDbDatabase::readDwgFile and saveAs, registered while it lives.
class CRegisteredDrawingFiles final : public CDrawingFileHost {
public:
    CRegisteredDrawingFiles() { SetDrawingFileHost(this); }
    ~CRegisteredDrawingFiles() override { SetDrawingFileHost(nullptr); }
    CRegisteredDrawingFiles(const CRegisteredDrawingFiles&) = delete;
    CRegisteredDrawingFiles& operator=(const CRegisteredDrawingFiles&) = delete;

    Acad::ErrorStatus Read(const std::string& utf8Path, std::unique_ptr<AcDbDatabase>* pDatabase) override;
    Acad::ErrorStatus Write(const AcDbDatabase& database, const std::string& utf8Path) override;
};
