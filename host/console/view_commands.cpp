#include "host/console/drawing_order.h"
#include "host/console/host_commands.h"
#include "host/console/numbers.h"
#include "host/console/redraw.h"
#include "host/console/texts.h"
#include "platform/acad/db_text.h"
#include "platform/acad/editor.h"

#include <algorithm>
#include <limits>

namespace {

std::string ValueText(resbuf& value) {
    if (value.restype == RTREAL) return NumberText(value.resval.rreal);
    if (value.restype == RTSHORT) return std::to_string(value.resval.rint);
    if (value.restype == RT3DPOINT)
        return NumberText(value.resval.rpoint[0]) + "," + NumberText(value.resval.rpoint[1]);
    std::string text = Utf8FromWide(value.resval.rstring);
    acutDelString(value.resval.rstring);
    return text;
}

[[noreturn]] void RefuseValue(const std::string& strName, const std::string& strText) {
    RefuseAnswer("no value for " + strName + ": " + strText);
}

// The text as a value of the kind that the variable has now. A text value is the caller's to release.
resbuf ParseValue(const std::string& strName, const std::string& strText, short nKind) {
    resbuf value;
    value.restype = nKind;
    int nWhole = 0;
    if (nKind == RTSTR) {
        value.resval.rstring = acutNewString(WideAnswer(strText).c_str());
    } else if (nKind == RTREAL) {
        if (!ParseNumber(strText, &value.resval.rreal)) RefuseValue(strName, strText);
    } else if (nKind == RT3DPOINT) {
        RefuseValue(strName, strText); // a view is not moved by its variables
    } else {
        using CLimits = std::numeric_limits<short>;
        if (!ParseWhole(strText, &nWhole) || nWhole < CLimits::min() || nWhole > CLimits::max())
            RefuseValue(strName, strText);
        value.resval.rint = static_cast<short>(nWhole);
    }
    return value;
}

AcDbObjectId FindTextStyle(AcDbDatabase& drawing, const std::string& strName) {
    const CDbOpen<AcDbTextStyleTable> table(drawing.textStyleTableId());
    AcDbObjectId id;
    if (!table || table->getAt(WideAnswer(strName).c_str(), id) != Acad::eOk)
        RefuseAnswer("no such text style: " + strName);
    return id;
}

/// The box of what model space showed when it was drawn last.
AcDbExtents ShownExtents(AcDbDatabase& drawing) {
    AcDbExtents extents;
    for (const AcDbObjectId& id : ModelSpaceEntities(drawing))
        if (const CDbOpen<AcDbEntity> entity(id); entity && entity->Picture())
            extents.addExt(ExtentsOf(*entity->Picture()));
    return extents;
}

} // namespace

void CommandZoom(CHost& host) {
    const std::string strWhat = host.m_input.Text("Extents or all (e, a): ");
    host.m_input.End();
    // A drawing here has no limits beyond what it shows, so both are the same.
    if (strWhat != "e" && strWhat != "a" && strWhat != "E" && strWhat != "A")
        RefuseAnswer("neither e nor a: " + strWhat);
    const AcDbExtents extents = ShownExtents(host.Drawing());
    if (extents.isEmpty()) return; // nothing to be seen: the view stays
    const AcGePoint3d low = extents.minPoint(), high = extents.maxPoint();
    const double dSize = std::max(high.x - low.x, high.y - low.y);
    host.Drawing().SetView({{(low.x + high.x) / 2.0, (low.y + high.y) / 2.0},
                            dSize > 0.0 ? dSize : host.Drawing().View().m_dHeight});
}

void CommandRegen(CHost& host) {
    host.m_input.End();
    DrawAll(host.Drawing());
}

void CommandSetVar(CHost& host) {
    const std::string name = host.m_input.Text("Variable: ");
    const std::optional<std::string> text = host.m_input.WordOnLine();
    host.m_input.End();
    const std::wstring wideName = WideAnswer(name);
    resbuf value;
    if (acedGetVar(wideName.c_str(), &value) != RTNORM) RefuseAnswer("no such variable: " + name);
    const short nKind = value.restype;
    const std::string shown = ValueText(value);
    if (!text) {
        host.Print(shown);
        return;
    }
    resbuf wanted = ParseValue(name, *text, nKind);
    const int status = acedSetVar(wideName.c_str(), &wanted);
    if (nKind == RTSTR) acutDelString(wanted.resval.rstring);
    if (status != RTNORM) RefuseValue(name, *text);
}

void CommandMeasure(CHost& host) {
    const std::string style = host.m_input.Text("Text style: ");
    const double height = host.m_input.PositiveNumber("Height: ", "a height");
    const std::string text = host.m_input.WholeText("Text: ");
    host.m_input.End();
    const AcDbText measured(AcGePoint3d::kOrigin, WideAnswer(text).c_str(),
                            FindTextStyle(host.Drawing(), style), height);
    AcDbExtents extents; // a text without a character has none
    const bool bShown = measured.getGeomExtents(extents) == Acad::eOk;
    host.Print(NumberText(bShown ? extents.maxPoint().x - extents.minPoint().x : 0.0));
}
