#include "ui/selection_keys.h"

#include "data/project_context.h"

CString BoreholeMarksKey() {
    return "SYQX" + ReadProjectText("GCBH");
}

CString SampleMarksKey(const CString& strZKBH) {
    return BoreholeMarksKey() + strZKBH;
}
