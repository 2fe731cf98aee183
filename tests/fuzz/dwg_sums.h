#pragma once

#include "tests/fuzz/mutation.h"

/// A drawing file with the check sums set right that its own lengths and addresses let find, so that what
/// else was changed in it is read.
CInput WithSumsRight(CInput file);
