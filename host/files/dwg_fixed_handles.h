#pragma once

#include "platform/acad/standard_handles.h"

using CDwgFixed = CStandardHandles;
