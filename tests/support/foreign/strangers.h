#pragma once

#include "host/files/dwg_file.h"

/// Puts classes that are known nowhere before those of a file, which get other numbers.
void AddStrangeClasses(CDwgFile& file);

/// Adds a dictionary with a record and an object of an unknown class to the named objects, and an extension
/// dictionary to model space's first entity.
void AddStrangeObjects(CDwgFile& file);

/// Adds entities of an unknown class in the middle of model space and at its end.
void AddStrangeEntities(CDwgFile& file);
