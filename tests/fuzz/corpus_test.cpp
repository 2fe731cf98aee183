#include "chart/chart_entity.h"
#include "frame/frame_entity.h"
#include "tests/fuzz/record_input.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>

namespace {

/// Reads every file of a folder of the corpus as its class; the number of them.
template <class T>
int ReadAll(const std::string& strFolder) {
    const CRecordInputs inputs;
    int nFiles = 0;
    for (const auto& entry : std::filesystem::directory_iterator(FUZZ_CORPUS "/" + strFolder)) {
        std::ifstream stream(entry.path(), std::ios::binary);
        const CInput bytes{std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
        const CRecordInput input = inputs.Decode(bytes);
        EXPECT_EQ(inputs.Encode(input), bytes) << entry.path();
        T object;
        CRecordReader reader(input.m_type, input.m_record);
        EXPECT_EQ(object.dwgIn(&reader), Acad::eOk) << entry.path();
        EXPECT_TRUE(reader.IsAtEnd()) << entry.path() << ": not a whole record";
        ++nFiles;
    }
    return nFiles;
}

} // namespace

TEST(FuzzCorpus, IsOfWholeRecords) {
    EXPECT_GE(ReadAll<CBRENChart>("chart"), 4);
    EXPECT_GE(ReadAll<CBRENFrame>("frame"), 3);
}

TEST(FuzzRecordInput, IsMadeOfWhateverBytes) {
    const CRecordInputs inputs;
    EXPECT_TRUE(inputs.Decode({}).m_record.m_arBytes.empty());
    const CInput bytes = {200, 3, 255, 0}; // three references, and the record is over
    const CRecordInput input = inputs.Decode(bytes);
    EXPECT_EQ(input.m_record.m_arIds.size(), 3U);
    EXPECT_TRUE(input.m_record.m_arIds[1].m_id.isNull());
    EXPECT_TRUE(input.m_record.m_arBytes.empty());
}
