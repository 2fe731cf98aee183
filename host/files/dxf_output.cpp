#include "host/files/dxf_output.h"

#include "platform/acad/wide_names.h"

void CDxfOutput::Record(std::string_view type, AcDbHandle handle, AcDbHandle owner) {
    Word(0, type);
    Handle(type == "DIMSTYLE" ? 105 : 5, handle); // there group 5 is the name of a block
    Handle(330, owner);
}

void CDxfOutput::BeginSection(std::string_view name) {
    Word(0, "SECTION");
    Word(2, name);
}

std::wstring DxfName(AcDbObjectId idRecord) {
    const CDbOpen<AcDbSymbolTableRecord> record(idRecord);
    return record ? record->Name() : std::wstring();
}

bool IsDxfPaperSpace(const std::wstring& strName) {
    return UpperName(strName).starts_with(UpperName(ACDB_PAPER_SPACE));
}
