// LOADMODULE, UNLOADMODULE and COMMANDS in real runs.

#include <nlohmann/json.hpp>

#include "tests/host/console/program_run.h"

using ModuleCommands = CProgramRun;

namespace {

constexpr const char* SAMPLE_COMMANDS =
    "SAMPLE TwoPoints 0\nSAMPLE SHEET 0\nSAMPLE BROKEN 1\nSAMPLE LINES 0\nSAMPLE BOXES 0\nSAMPLE FIND 0\n"
    "SAMPLE TELL 0\nSAMPLE WATCH 0\nSAMPLE FRAME 0\n";

} // namespace

TEST_F(ModuleCommands, CommandsListsGroupNameAndFlags) {
    EXPECT_EQ(Quiet("COMMANDS\n"), SAMPLE_COMMANDS);
}

TEST_F(ModuleCommands, AModuleIsLoadedAndUnloadedByItsPath) {
    WriteFile("script", "COMMANDS\nLOADMODULE \"" SAMPLE_MODULE "\"\nCOMMANDS\nUNLOADMODULE \"" SAMPLE_MODULE
                        "\"\nCOMMANDS\nLOADMODULE \"" SAMPLE_MODULE "\"\nSHEET 0,0\n");
    const CProgramResult result = RunProgram("-q -s script --load none");
    EXPECT_EQ(result.m_nStatus, 0);
    EXPECT_EQ(result.m_strOut, std::string(SAMPLE_COMMANDS) + "\npoint 0 0 0\n");
}

TEST_F(ModuleCommands, EntitiesOfAnUnloadedModuleAreProxiesUntilItIsLoadedAgain) {
    const std::string unload = "UNLOADMODULE \"" SAMPLE_MODULE "\"\n",
                      load = "LOADMODULE \"" SAMPLE_MODULE "\"\n";
    const CProgramResult result = RunScript(
        "SHEET 1,2,3\nDUMP a.json\n" + unload +
            "DUMP b.json\nMOVE all 0,0 1,1\nCOPY all 0,0 0,0\nDUMP c.json\n" + load + "DUMP d.json\n",
        "-q");
    EXPECT_EQ(result.m_nStatus, 0) << result.m_strErr;
    const auto entity = [this](const char* name, size_t index) {
        return nlohmann::ordered_json::parse(ReadFile(m_folder / name))["modelSpace"].at(index);
    };
    const auto original = entity("a.json", 0), proxy = entity("b.json", 0);
    EXPECT_EQ(proxy["class"], "AcDbProxyEntity");
    EXPECT_EQ(proxy["handle"], original["handle"]);
    EXPECT_EQ(proxy["originalClass"], "CSampleSheet");
    EXPECT_EQ(proxy["originalDxfName"], "SAMPLESHEET");
    EXPECT_EQ(proxy["graphics"], original["world"]);
    EXPECT_FALSE(proxy.contains("fields"));
    EXPECT_NE(result.m_strOut.find("cannot move"), std::string::npos) << result.m_strOut;
    EXPECT_EQ(entity("c.json", 1)["graphics"], original["world"]);
    EXPECT_EQ(entity("d.json", 0)["fields"]["m_ptOrigin"], original["fields"]["m_ptOrigin"]);
    EXPECT_EQ(entity("d.json", 0)["world"], original["world"]);
    EXPECT_EQ(entity("d.json", 1)["fields"]["m_nCount"], -7);
}

TEST_F(ModuleCommands, AModuleThatDoesNotLoadLetsTheRunGoOnAndEndWithFour) {
    const CProgramResult result = RunScript("LOADMODULE missing.so\nSETVAR PLOTDPI\n", "-q");
    EXPECT_EQ(result.m_nStatus, 4);
    EXPECT_EQ(result.m_strOut, "150\n");
    EXPECT_EQ(result.m_strErr, "script:1: module missing.so did not load: there is no such file\n");
}

TEST_F(ModuleCommands, AFailureAfterwardsDecidesTheStatus) {
    EXPECT_EQ(RunScript("LOADMODULE missing.so\nNOSUCH\n").m_nStatus, 5);
}

TEST_F(ModuleCommands, UnloadingWhatIsNotLoadedIsRefused) {
    EXPECT_EQ(RunScript("UNLOADMODULE missing.so\n").m_nStatus, 5);
}

TEST_F(ModuleCommands, AModuleIsSoughtBesideTheProgramsRealFileThenInLib) {
    namespace fs = std::filesystem;
    fs::create_directories(m_folder / "bin");
    fs::create_directories(m_folder / "lib/tervo");
    fs::copy_file(TERVO_BIN "/tvcad", m_folder / "bin/tvcad");
    fs::create_symlink("bin/tvcad", m_folder / "link");
    fs::copy_file(SAMPLE_MODULE, m_folder / "lib/tervo/tervo-bren.so");
    WriteFile("script", "COMMANDS\n");
    const std::string run = "cd '" + m_folder.string() + "' && ./link -q -s script >out 2>err";
    EXPECT_EQ(std::system(run.c_str()), 0); // NOLINT(cert-env33-c)
    EXPECT_EQ(ReadFile(m_folder / "out"), SAMPLE_COMMANDS);
    WriteFile("bin/tervo-bren.so", "no module");
    EXPECT_EQ(WEXITSTATUS(std::system(run.c_str())), 4); // NOLINT(cert-env33-c)
    EXPECT_EQ(ReadFile(m_folder / "out"), "");
}
