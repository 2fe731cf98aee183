#pragma once

#include <string>

/// Text of the line type file that an installation begins with. Lengths are for sheets in millimetres with a
/// line type scale of 10.
std::string LineTypeFile();
