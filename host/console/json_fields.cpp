#include "host/console/json_fields.h"

#include "host/console/answers.h"
#include "host/console/texts.h"
#include "platform/windows/code_page.h"

#include <cmath>
#include <limits>

namespace {

[[noreturn]] void Refuse(const CJson& json, const char* wanted) {
    RefuseAnswer(json.dump() + " is no " + wanted);
}

/// Reads one value of the kind that it is asked to give.
struct CReader {
    const CJson& m_json;
    AcDbDatabase& m_drawing;

    void operator()(Adesk::Int32& value) const {
        using CLimits = std::numeric_limits<Adesk::Int32>;
        const double dValue = m_json.is_number_integer() ? m_json.get<double>() : HUGE_VAL;
        if (dValue < CLimits::min() || dValue > CLimits::max()) Refuse(m_json, "whole number of 32 bits");
        value = m_json.get<Adesk::Int32>();
    }
    void operator()(CFlag& flag) const {
        if (m_json != 0 && m_json != 1) Refuse(m_json, "flag (0 or 1)");
        flag.m_nValue = m_json.get<Adesk::Int32>();
    }
    void operator()(double& value) const {
        using CLimits = std::numeric_limits<double>;
        if (m_json.is_number())
            value = m_json.get<double>();
        else if (m_json == "nan")
            value = CLimits::quiet_NaN();
        else if (m_json == "inf")
            value = CLimits::infinity();
        else if (m_json == "-inf")
            value = -CLimits::infinity();
        else
            Refuse(m_json, "number");
    }
    void operator()(std::string& text) const {
        if (!m_json.is_string()) Refuse(m_json, "text");
        text = GbkAnswer(m_json.get<std::string>());
    }
    void operator()(AcGePoint3d& point) const {
        if (!m_json.is_array() || m_json.size() != 3) Refuse(m_json, "point [x,y,z]");
        CReader{m_json[0], m_drawing}(point.x);
        CReader{m_json[1], m_drawing}(point.y);
        CReader{m_json[2], m_drawing}(point.z);
    }
    void operator()(AcDbObjectId& id) const {
        std::string strName;
        (*this)(strName);
        id.setNull();
        const CDbOpen<AcDbTextStyleTable> styles(m_drawing.textStyleTableId());
        if (!strName.empty() && (!styles || styles->getAt(WideFromGbk(strName).c_str(), id) != Acad::eOk))
            Refuse(m_json, "text style of the drawing");
    }
    template <class T>
    void operator()(std::vector<T>& values) const {
        if (!m_json.is_array()) Refuse(m_json, "list");
        values.clear();
        for (const CJson& item : m_json)
            CReader{item, m_drawing}(values.emplace_back());
    }
};

} // namespace

CFieldValue FieldFromJson(const CJson& json, const CFieldValue& former, AcDbDatabase& drawing) {
    CFieldValue value = former;
    std::visit(CReader{json, drawing}, value);
    return value;
}
