#pragma once

#include "platform/acad/field_table.h"
#include "platform/acad/geometry.h"

#include <nlohmann/json.hpp>

#include <string>
#include <vector>

using CJson = nlohmann::ordered_json;

/// A number that reads back to the same double; what is no finite number is the text "nan", "inf" or "-inf".
CJson JsonNumber(double value);
CJson JsonPoint(const AcGePoint3d& point);    ///< [x,y,z]
CJson JsonPoint(const AcGePoint2d& point);    ///< [x,y]
CJson JsonVector(const AcGeVector3d& vector); ///< [x,y,z]
CJson JsonText(const std::string& gbk);

template <class T>
CJson JsonPoints(const T& points) {
    CJson list = CJson::array();
    for (const AcGePoint3d& point : points)
        list.push_back(JsonPoint(point));
    return list;
}
CJson JsonNumbers(const std::vector<double>& numbers);

/// A field: flags as 0 or 1, ids as the name of the record ("" for null), lists as lists.
CJson JsonField(const CFieldValue& value);
