#pragma once

#include "host/files/dwg_file.h"
#include "host/files/read_goes_on.h"
#include "platform/acad/db_database.h"

#include <memory>

/// The drawing that a file holds, each object under the handle that it has in the file. What a drawing here
/// does not know stands in it as proxies; those of classes that are known at present are objects of these.
/// What else the file has goes with the drawing, so that nothing of it is lost when it is written again.
/// Throws CDwgError, and what CheckReadGoesOn does.
std::unique_ptr<AcDbDatabase> DrawingOfDwg(const CDwgFile& file, const CReadGoesOn& fnGoesOn = {});
