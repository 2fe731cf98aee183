#include "host/console/output_file.h"

#include "host/console/answers.h"
#include "tests/temp_folder.h"

#include <gtest/gtest.h>

TEST(WriteOutputFile, PutsTheContentInPlaceOfWhatWasThere) {
    const CTempFolder folder;
    const std::string path = folder.Write("out.json", "something longer");
    WriteOutputFile(path, "new\n");
    EXPECT_EQ(folder.Read("out.json"), "new\n");
}

TEST(WriteOutputFile, ThrowsAFileFailureThatNamesPathAndReason) {
    const CTempFolder folder;
    try {
        WriteOutputFile(folder.Path("missing/out.json"), "");
        FAIL() << "nothing was thrown";
    } catch (const CRunFailure& failure) {
        EXPECT_EQ(failure.Status(), EXIT_FILE_FAILED);
        EXPECT_EQ(failure.what(),
                  folder.Path("missing/out.json") + " cannot be written: No such file or directory");
    }
}
