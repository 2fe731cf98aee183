#include "drawing/field_rows.h"

namespace FieldValue {

CFieldValue From(const CArray<AcArray<double>, AcArray<double>>& value) {
    std::vector<std::vector<double>> lists;
    lists.reserve(static_cast<std::size_t>(value.GetSize()));
    for (const AcArray<double>& list : value)
        lists.emplace_back(list.begin(), list.end());
    return lists;
}

CFieldValue From(const CStringArray& value) {
    std::vector<std::string> texts;
    texts.reserve(static_cast<std::size_t>(value.GetSize()));
    for (const CString& text : value)
        texts.emplace_back(text.View());
    return texts;
}

void Into(AcArray<double>& field, const std::vector<double>& value) {
    field.setLogicalLength(0);
    for (const double dValue : value)
        field.append(dValue);
}

void Into(CArray<AcArray<double>, AcArray<double>>& field, const std::vector<std::vector<double>>& value) {
    field.RemoveAll();
    for (const std::vector<double>& list : value) {
        AcArray<double> inner;
        Into(inner, list);
        field.Add(inner);
    }
}

void Into(CStringArray& field, const std::vector<std::string>& value) {
    field.RemoveAll();
    for (const std::string& text : value)
        field.Add(text.c_str());
}

} // namespace FieldValue
