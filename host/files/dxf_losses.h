#pragma once

#include <map>
#include <string>

/// What a file holds and its drawing does not, or the reverse: each kind once, with its count.
using CDxfLosses = std::map<std::string, int>;
