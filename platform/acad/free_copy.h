#pragma once

#include "platform/acad/db_object.h"

#include <memory>

/// A free copy of an object by its record, which refers to the same objects, but owns none. Null when the
/// class makes no objects, or does not read what it wrote.
std::unique_ptr<AcDbObject> CopyOfObject(const AcDbObject& source);

template <class T>
std::unique_ptr<T> FreeCopy(const T& source) {
    return std::unique_ptr<T>(static_cast<T*>(CopyOfObject(source).release()));
}
