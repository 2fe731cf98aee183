#include "ui/selection_keys.h"

#include <array>

#include "data/project_context.h"
#include "platform/windows/profile.h"

CString ReadProjectText(const char* key) {
    std::array<char, 1024> text{};
    GetPrivateProfileStringA("Project", key, "", text.data(), static_cast<DWORD>(text.size()),
                             g_strProjectIni);
    return text.data();
}

CString BoreholeMarksKey() {
    return "SYQX" + ReadProjectText("GCBH");
}

CString SampleMarksKey(const CString& strZKBH) {
    return BoreholeMarksKey() + strZKBH;
}
