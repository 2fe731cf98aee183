#include "tests/support/demo.h"

void ImportDemo(const CProgram& program, const std::string& strNumber) {
    program.Do("import --root \"$ROOT\" --number '" + strNumber +
               "' '" TERVO_DEMO "/samples.csv' '" TERVO_DEMO "/layers.csv' '" TERVO_DEMO "/readings.csv'");
}

void MakeDemoProject(const CProgram& program, const std::string& strNumber, int nStandard) {
    program.Do("new --root \"$ROOT\" --number '" + strNumber + "' --name " + Utf8(u8"三轴试验示例工程") +
               " --standard " + std::to_string(nStandard));
    ImportDemo(program, strNumber);
}

void OpenDemoProject(const CProgram& program) {
    program.Do("init \"$ROOT\"");
    MakeDemoProject(program, "DEMO-01");
    program.Do("open --root \"$ROOT\" --number DEMO-01");
}
