// Commands that make ordinary entities in model space.

#include "host/console/append_entity.h"
#include "host/console/host_commands.h"
#include "host/console/texts.h"
#include "platform/acad/db_arc.h"
#include "platform/acad/db_block_reference.h"
#include "platform/acad/db_line.h"
#include "platform/acad/db_polyline.h"
#include "platform/acad/db_text.h"

#include <memory>

namespace {

AcDbObjectId AskBlock(CHost& host) {
    const std::string strName = host.m_input.Text("Block name: ");
    const CDbOpen<AcDbBlockTable> table(host.Drawing().blockTableId());
    AcDbObjectId id;
    if (!table || table->getAt(WideAnswer(strName).c_str(), id) != Acad::eOk)
        RefuseAnswer("no such block: " + strName);
    if (id == host.Drawing().ModelSpaceId()) RefuseAnswer("model space cannot stand in itself");
    return id;
}

/// Gives the reference an attribute, with the text that the definition proposes, for each variable definition
/// of its block.
void AddAttributes(AcDbObjectId idReference) {
    const CDbOpen<AcDbBlockReference> reference(idReference, AcDb::kForWrite);
    const CDbOpen<AcDbBlockTableRecord> block(reference->blockTableRecord());
    for (const AcDbObjectId& id : block->EntityIds()) {
        const CDbOpen<AcDbAttributeDefinition> definition(id);
        if (!definition || definition->isConstant()) continue;
        auto pAttribute = std::make_unique<AcDbAttribute>();
        pAttribute->setPropertiesFrom(definition.Get());
        pAttribute->setAttributeFromBlock(definition.Get(), reference->blockTransform());
        if (reference->appendAttribute(pAttribute.get()) == Acad::eOk) pAttribute.release()->close();
    }
}

} // namespace

void CommandLine(CHost& host) {
    const AcGePoint3d start = host.m_input.Point("From point: ");
    const AcGePoint3d end = host.m_input.Point("To point: ");
    host.m_input.End();
    AppendToModelSpace(host, std::make_unique<AcDbLine>(start, end));
}

void CommandPline(CHost& host) {
    auto pPolyline = std::make_unique<AcDbPolyline>();
    while (const std::optional<AcGePoint3d> point = host.m_input.PointOrWord("Next point or end: ", "end"))
        pPolyline->addVertexAt(pPolyline->numVerts(), {point->x, point->y});
    host.m_input.End();
    if (pPolyline->numVerts() == 0) RefuseAnswer("a polyline has a point at least");
    AppendToModelSpace(host, std::move(pPolyline));
}

void CommandArc(CHost& host) {
    const AcGePoint3d center = host.m_input.Point("Center: ");
    const double dRadius = host.m_input.PositiveNumber("Radius: ", "a radius");
    const double dStart = host.m_input.Angle("Start angle: ");
    const double dEnd = host.m_input.Angle("End angle: ");
    host.m_input.End();
    AppendToModelSpace(host, std::make_unique<AcDbArc>(center, dRadius, dStart, dEnd));
}

void CommandText(CHost& host) {
    const AcGePoint3d position = host.m_input.Point("Position: ");
    const double dHeight = host.m_input.PositiveNumber("Height: ", "a height");
    const std::string strText = host.m_input.WholeText("Text: ");
    host.m_input.End();
    AppendToModelSpace(host, std::make_unique<AcDbText>(position, WideAnswer(strText).c_str(),
                                                        host.Drawing().textstyle(), dHeight));
}

void CommandInsert(CHost& host) {
    const AcDbObjectId idBlock = AskBlock(host);
    const AcGePoint3d position = host.m_input.Point("Insertion point: ");
    host.m_input.End();
    AddAttributes(AppendToModelSpace(host, std::make_unique<AcDbBlockReference>(position, idBlock)));
}
