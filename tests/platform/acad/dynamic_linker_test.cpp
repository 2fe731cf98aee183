#include "platform/acad/dynamic_linker.h"

#include "platform/acad/command_stack.h"
#include "platform/acad/editor_reactor.h"
#include "platform/acad/host_application.h"
#include "platform/acad/rx_class.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include <dlfcn.h>

namespace {

const std::string g_strFolder = SAMPLE_MODULE_FOLDER;

bool IsKnown(const wchar_t* className) {
    auto* const pClasses = static_cast<AcRxDictionary*>(acrxSysRegistry()->at(ACDB_CLASS_DICTIONARY));
    return pClasses->at(className) != nullptr;
}

std::string ReasonOfFailedLoad(const std::string& strPath) {
    std::string strReason;
    EXPECT_FALSE(acrxDynamicLinker()->loadModule(strPath, &strReason)) << strPath;
    EXPECT_FALSE(acrxDynamicLinker()->unloadModule(strPath, nullptr)) << strPath;
    return strReason;
}

/// The value of a variable of a loaded sample; the type's default when it is not loaded.
template <class T>
T ValueIn(const std::string& strPath, const char* name) {
    void* const pLibrary = dlopen(strPath.c_str(), RTLD_NOW | RTLD_NOLOAD);
    if (!pLibrary) return T();
    const T value = *static_cast<T*>(dlsym(pLibrary, name));
    dlclose(pLibrary);
    return value;
}

/// The package pointer that a loaded sample was handed.
void* PackageOf(const std::string& strPath) {
    return ValueIn<void*>(strPath, "g_pSamplePackage");
}

void ExpectNothingLeftBehind() {
    EXPECT_EQ(acedRegCmds->lookup(L"UNTIDY"), nullptr);
    EXPECT_FALSE(IsKnown(L"CSampleUntidy"));
    acedEditor->FireCommandWillStart(L"LINE"); // a reactor that is left would be code that is gone
}

} // namespace

TEST(AcRxDynamicLinker, WithdrawsWhatAModuleLeavesBehind) {
    const std::string strPath = g_strFolder + "/acad_sample_untidy.so";
    ASSERT_TRUE(acrxDynamicLinker()->loadModule(strPath, nullptr));
    EXPECT_NE(acedRegCmds->lookup(L"UNTIDY"), nullptr);
    EXPECT_TRUE(IsKnown(L"CSampleUntidy"));
    ASSERT_TRUE(acrxDynamicLinker()->unloadModule(strPath, nullptr));
    ExpectNothingLeftBehind();
}

TEST(AcRxDynamicLinker, TakesTheCodeOutOfMemory) {
    const auto isMapped = [](const std::string& strPath) {
        std::ifstream maps("/proc/self/maps");
        const std::string text(std::istreambuf_iterator<char>(maps), {});
        return text.find(strPath) != std::string::npos;
    };
    const std::string strPath = std::filesystem::canonical(g_strFolder + "/acad_sample.so").string();
    ASSERT_TRUE(acrxDynamicLinker()->loadModule(strPath, nullptr));
    EXPECT_TRUE(isMapped(strPath));
    ASSERT_TRUE(acrxDynamicLinker()->unloadModule(strPath, nullptr));
    EXPECT_FALSE(isMapped(strPath));
}

TEST(AcRxDynamicLinker, WithdrawsWhatAModuleAddedThatThenRefusedToStart) {
    EXPECT_FALSE(acrxDynamicLinker()->loadModule(g_strFolder + "/acad_sample_untidy_refuses.so", nullptr));
    ExpectNothingLeftBehind();
}

TEST(AcRxDynamicLinker, TellsModulesOfTheDrawingThatIsOpenAndOfLaterOnes) {
    const std::string strPath = g_strFolder + "/acad_sample.so";
    AcDbDatabase drawing;
    acdbHostApplicationServices()->setWorkingDatabase(&drawing);
    ASSERT_TRUE(acrxDynamicLinker()->loadModule(strPath, nullptr));
    EXPECT_EQ(ValueIn<int>(strPath, "g_nSampleDrawingsTold"), 1);
    acrxDynamicLinker()->SendToAll(AcRx::kLoadDwgMsg);
    EXPECT_EQ(ValueIn<int>(strPath, "g_nSampleDrawingsTold"), 2);
    acrxDynamicLinker()->SendToAll(AcRx::kSaveMsg);
    EXPECT_EQ(ValueIn<int>(strPath, "g_nSampleDrawingsTold"), 2);
    acdbHostApplicationServices()->setWorkingDatabase(nullptr);
    ASSERT_TRUE(acrxDynamicLinker()->unloadModule(strPath, nullptr));
    ASSERT_TRUE(acrxDynamicLinker()->loadModule(strPath, nullptr));
    EXPECT_EQ(ValueIn<int>(strPath, "g_nSampleDrawingsTold"), 0) << "no drawing is open";
    ASSERT_TRUE(acrxDynamicLinker()->unloadModule(strPath, nullptr));
}

TEST(AcRxDynamicLinker, LoadsAModuleOnceAndUnloadsItAsOftenAsItIsLoaded) {
    const std::string strPath = g_strFolder + "/acad_sample.so";
    for (int round = 0; round < 2; ++round) {
        std::string strReason;
        ASSERT_TRUE(acrxDynamicLinker()->loadModule(strPath, &strReason)) << strReason;
        EXPECT_TRUE(IsKnown(L"CSampleOfModule"));
        EXPECT_FALSE(acrxDynamicLinker()->loadModule(strPath, &strReason));
        EXPECT_NE(strReason.find("loaded already"), std::string::npos) << strReason;
        ASSERT_TRUE(acrxDynamicLinker()->unloadModule(strPath, &strReason)) << strReason;
        EXPECT_FALSE(IsKnown(L"CSampleOfModule"));
        EXPECT_FALSE(acrxDynamicLinker()->unloadModule(strPath, &strReason));
        EXPECT_NE(strReason.find("not loaded"), std::string::npos) << strReason;
    }
}

TEST(AcRxDynamicLinker, KnowsAModuleByItsFileWhateverLinkLeadsThere) {
    namespace fs = std::filesystem;
    const std::string strPath = g_strFolder + "/acad_sample.so";
    const fs::path link = fs::path(g_strFolder) / "acad_sample_link.so";
    fs::remove(link);
    fs::create_symlink(strPath, link);
    ASSERT_TRUE(acrxDynamicLinker()->loadModule(link.string(), nullptr));
    EXPECT_FALSE(acrxDynamicLinker()->loadModule(strPath, nullptr));
    EXPECT_TRUE(acrxDynamicLinker()->unloadModule(strPath, nullptr));
    fs::remove(link);
}

TEST(AcRxDynamicLinker, KeepsAModuleThatDidNotUnlockItself) {
    const std::string strPath = g_strFolder + "/acad_sample_locked.so";
    ASSERT_TRUE(acrxDynamicLinker()->loadModule(strPath, nullptr));
    EXPECT_TRUE(acrxDynamicLinker()->isApplicationLocked(PackageOf(strPath)));
    EXPECT_FALSE(acrxDynamicLinker()->isAppMDIAware(PackageOf(strPath)));
    std::string strReason;
    EXPECT_FALSE(acrxDynamicLinker()->unloadModule(strPath, &strReason));
    EXPECT_FALSE(strReason.empty());
    EXPECT_TRUE(IsKnown(L"CSampleLocked"));
}

TEST(AcRxDynamicLinker, SaysWhyAModuleDoesNotLoad) {
    EXPECT_NE(ReasonOfFailedLoad(g_strFolder + "/no_such.so").find("no such file"), std::string::npos);
    EXPECT_NE(ReasonOfFailedLoad(g_strFolder + "/acad_sample_without_entry.so").find("acrxEntryPoint"),
              std::string::npos);
    EXPECT_NE(ReasonOfFailedLoad(g_strFolder + "/acad_sample_without_version.so").find("acrxGetApiVersion"),
              std::string::npos);
    EXPECT_NE(ReasonOfFailedLoad(g_strFolder + "/acad_sample_old.so").find("1245183"), std::string::npos);
    EXPECT_NE(ReasonOfFailedLoad(g_strFolder + "/acad_sample_refuses.so").find("refused"), std::string::npos);
    EXPECT_FALSE(ReasonOfFailedLoad(std::string(TERVO_TEST_DATA) + "/../CMakeLists.txt").empty());
}

TEST(AcRxDynamicLinker, NotesThatAModuleMayRunWithSeveralDocuments) {
    const std::string strPath = g_strFolder + "/acad_sample.so";
    ASSERT_TRUE(acrxDynamicLinker()->loadModule(strPath, nullptr));
    void* const pPackage = PackageOf(strPath);
    EXPECT_FALSE(acrxDynamicLinker()->isApplicationLocked(pPackage));
    EXPECT_TRUE(acrxDynamicLinker()->isAppMDIAware(pPackage));
    EXPECT_TRUE(acrxDynamicLinker()->unloadModule(strPath, nullptr));
    EXPECT_FALSE(acrxDynamicLinker()->isAppMDIAware(pPackage));
}

TEST(AcRxDynamicLinker, KnowsNoForeignPackage) {
    int package = 0;
    EXPECT_FALSE(acrxDynamicLinker()->unlockApplication(&package));
    EXPECT_FALSE(acrxDynamicLinker()->registerAppMDIAware(nullptr));
    EXPECT_FALSE(acrxDynamicLinker()->isApplicationLocked(&package));
    EXPECT_FALSE(acrxDynamicLinker()->isAppMDIAware(&package));
}
