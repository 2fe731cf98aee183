#pragma once

#include <nlohmann/json.hpp>

/// A dump without its handles: a file reserves some for what every drawing has, so that a new drawing's first
/// objects come back under others.
inline nlohmann::json WithoutHandles(nlohmann::json value) {
    if (value.is_object()) value.erase("handle");
    if (value.is_structured())
        for (nlohmann::json& part : value)
            part = WithoutHandles(part);
    return value;
}
