#include "tests/persistence/JobFixture.h"

namespace kestedit {

namespace {

using IniHandlerTest = JobTest;

TEST_F(IniHandlerTest, EachOperationGoesToItsFile) {
    values.INIFile = (folder / "settings.ini").string();
    values.Language = (folder / "german.lng").string();
    handler.WriteProgramSetting("S", "k", "setting");
    handler.WriteIniFileValue("S", "k", "job", file);
    handler.WriteIniFileValue("S", "k", "text", values.Language);

    EXPECT_EQ(handler.ReadProgramSetting("S", "k", "", textSize), "setting");
    EXPECT_EQ(handler.ReadIniFileValue("S", "k", "", file, textSize), "job");
    EXPECT_EQ(handler.ReadLanguageText("S", "k", "", textSize), "text");

    values.Language.clear();
    EXPECT_EQ(handler.ReadLanguageText("S", "k", "default", textSize), "default");
}

TEST_F(IniHandlerTest, CutsToTheSizeAndKeepsAnEmptyValue) {
    handler.WriteIniFileValue("S", "empty", "", file);
    handler.WriteIniFileValue("S", "long", "abcdef", file);

    EXPECT_EQ(handler.ReadIniFileValue("S", "empty", "default", file, textSize), "");
    EXPECT_EQ(handler.ReadIniFileValue("S", "long", "", file, 4), "abc");
    for (const std::int16_t size : {std::int16_t{1}, std::int16_t{0}, std::int16_t{-1}}) {
        EXPECT_EQ(handler.ReadIniFileValue("S", "long", "default", file, size), "") << size;
    }
}

TEST_F(IniHandlerTest, AFailedWriteIsSilentAndRecorded) {
    handler.WriteIniFileValue("S", "k", "v", folder / "missing" / "a.job");
    EXPECT_EQ(ini.lastError(), std::errc::no_such_file_or_directory);
}

}  // namespace

}  // namespace kestedit
