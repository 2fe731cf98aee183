#include "host/console/json_values.h"

#include "host/console/numbers.h"
#include "platform/acad/db_database.h"
#include "platform/windows/code_page.h"

#include <cmath>

namespace {

struct CFieldToJson {
    CJson operator()(Adesk::Int32 value) const { return value; }
    CJson operator()(const CFlag& flag) const { return flag.m_nValue != 0 ? 1 : 0; }
    CJson operator()(double value) const { return JsonNumber(value); }
    CJson operator()(const std::string& text) const { return JsonText(text); }
    CJson operator()(const AcGePoint3d& point) const { return JsonPoint(point); }
    CJson operator()(const AcDbObjectId& id) const { return JsonText(SymbolName(id)); }
    CJson operator()(const std::vector<double>& numbers) const { return JsonNumbers(numbers); }
    template <class T>
    CJson operator()(const std::vector<T>& values) const {
        CJson list = CJson::array();
        for (const T& value : values)
            list.push_back((*this)(value));
        return list;
    }
};

} // namespace

CJson JsonNumber(double value) {
    if (!std::isfinite(value)) return NumberText(value);
    return value;
}

CJson JsonPoint(const AcGePoint3d& point) {
    return CJson::array({JsonNumber(point.x), JsonNumber(point.y), JsonNumber(point.z)});
}

CJson JsonPoint(const AcGePoint2d& point) {
    return CJson::array({JsonNumber(point.x), JsonNumber(point.y)});
}

CJson JsonVector(const AcGeVector3d& vector) {
    return CJson::array({JsonNumber(vector.x), JsonNumber(vector.y), JsonNumber(vector.z)});
}

CJson JsonText(const std::string& gbk) {
    return ToUtf8(gbk);
}

CJson JsonNumbers(const std::vector<double>& numbers) {
    CJson list = CJson::array();
    for (const double number : numbers)
        list.push_back(JsonNumber(number));
    return list;
}

CJson JsonField(const CFieldValue& value) {
    return std::visit(CFieldToJson{}, value);
}
