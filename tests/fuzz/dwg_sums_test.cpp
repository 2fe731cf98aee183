#include "tests/fuzz/dwg_sums.h"

#include "host/files/dwg_error.h"
#include "tests/fuzz/dwg_input.h"

#include <gtest/gtest.h>

namespace {

/// Why a file is refused; empty when it is not.
std::string Refusal(const CInput& file) {
    try {
        ReadDwgFile(file);
    } catch (const CDwgError& error) {
        return error.what();
    }
    return {};
}

} // namespace

TEST(WithSumsRight, LeavesAWholeFileAsItIs) {
    const CModuleClasses classes;
    const CBytes file = WriteDwgFile(DwgOfEveryKind());
    EXPECT_EQ(WithSumsRight(file), file);
}

TEST(WithSumsRight, LeavesNextToNoSumOfAChangedFileWrong) {
    const CModuleClasses classes;
    const CBytes file = WriteDwgFile(DwgOfEveryKind());
    int nWrong = 0, nStillWrong = 0; // where an address has changed, and objects share bytes
    for (std::size_t i = 0; i < file.size(); ++i) {
        CInput changed = file;
        changed[i] ^= 0x10;
        nWrong += Refusal(changed).find("check sum") != std::string::npos;
        nStillWrong += Refusal(WithSumsRight(changed)).find("check sum") != std::string::npos;
    }
    EXPECT_GT(nWrong, 3000);
    EXPECT_LT(nStillWrong, nWrong / 100);
}

TEST(WithSumsRight, TakesWhateverBytes) {
    const CBytes file = WriteDwgFile(CDwgFile());
    for (std::size_t n = 0; n < file.size(); ++n)
        EXPECT_EQ(WithSumsRight(CInput(file.begin(), file.begin() + static_cast<std::ptrdiff_t>(n))).size(),
                  n);
    EXPECT_EQ(WithSumsRight(CInput(300, 0xFF)), CInput(300, 0xFF));
}
