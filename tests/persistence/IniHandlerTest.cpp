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
    for (const std::int16_t size : {std::int16_t{1}, std::int16_t{0}, std::int16_t{-1}})
        EXPECT_EQ(handler.ReadIniFileValue("S", "k", "default", file, size), "") << size;

    values.Language.clear();
    EXPECT_EQ(handler.ReadLanguageText("S", "k", "default", textSize), "default");
}

}  // namespace

}  // namespace kestedit
