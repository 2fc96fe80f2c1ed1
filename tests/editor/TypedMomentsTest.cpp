// Dates and times as a person types them: what the form takes, and what it says about a text that is none.
#include "tests/editor/EditorFixture.h"

namespace kestedit {
namespace {

using namespace std::chrono_literals;

struct TypedMoments : test::EditorTest {
    void openDates() {
        create();
        form().onTimer();
        choose("optIntervall", 1);
        choose("optIntTime", 3);
    }
    void typeKeys(std::string_view name, std::string_view keys) {
        for (std::size_t size = 1; size <= keys.size(); ++size)
            type(name, keys.substr(0, size));
    }
    void leave(std::string_view name) { form().onEditingFinished(at(name)); }
    std::string date() { return at("dxDate").date() ? dates.text(*at("dxDate").date()) : "none"; }
    std::string time() { return at("dxDateTime").time() ? timeText(*at("dxDateTime").time()) : "none"; }
};

TEST_F(TypedMoments, AreTakenWhenWholeOrLeftAndNothingElseIsMadeOfThem) {
    openDates();
    typeKeys("dxDate", "1/2/20");
    EXPECT_EQ(date(), "21.11.2026") << "the year may go on";
    typeKeys("dxDate", "1/2/2028");
    EXPECT_EQ(date(), "01.02.2028");
    type("dxDate", "1/2/20289");
    EXPECT_EQ(date(), "21.11.2026") << "the value from before the typing";
    type("dxDate", "1/2/27");
    leave("dxDate");
    EXPECT_EQ(date(), "01.02.2027");
    EXPECT_FALSE(at("dxDate").Typed) << "the field shows the date";
    type("dxDate", " ");
    EXPECT_TRUE(at("dxDate").isEmpty());
    typeKeys("dxDateTime", "830");
    EXPECT_EQ(time(), "14:05:00");
    leave("dxDateTime");
    EXPECT_EQ(time(), "08:30:00");
}

TEST_F(TypedMoments, ThatCannotBeReadAreToldOnceTheFieldIsLeft) {
    openDates();
    EditorControl& field = at("dxDate");
    typeKeys("dxDate", "31.2.2027");
    EXPECT_EQ(field.Notice, "");
    leave("dxDate");
    EXPECT_EQ(field.Notice, "„31.2.2027“ ist kein Datum wie 31.12.2026. Der Auftrag behält 21.11.2026.");
    EXPECT_EQ(field.Typed->text, "31.2.2027") << "stays in the field";
    choose("optIntTime", 0);
    EXPECT_EQ(field.Notice, "") << "a daily job has no date";
    choose("optIntTime", 3);
    type("dxDate", "28.2.2");
    EXPECT_NE(field.Notice, "") << "goes when it is mended";
    type("dxDate", "28.2.27");
    EXPECT_EQ(field.Notice, "");
    leave("dxDate");
    EXPECT_EQ(date(), "28.02.2027");
    type("dxDate", "");
    leave("dxDate");
    EXPECT_EQ(field.Notice, "Ohne ein Datum wird das heutige gespeichert.");
    type("dxDate", std::string(60, 'x'));
    leave("dxDate");
    EXPECT_EQ(field.Notice,
              "„" + std::string(40, 'x') + "...“ ist kein Datum wie 31.12.2026. Der Auftrag hat hier keines.");
    form().onDateChosen(field, test::now.date);
    EXPECT_EQ(field.Notice, "");
    EXPECT_FALSE(field.Typed);

    platform.times = TimeFormat::ofLocaleFormat("%I:%M:%S %p", "AM", "PM");
    type("dxDateTime", "25:00");
    leave("dxDateTime");
    EXPECT_EQ(at("dxDateTime").Notice, "„25:00“ ist keine Uhrzeit wie 2:05 PM. Der Auftrag behält 2:05 PM.");
    form().onTimeChosen(at("dxDateTime"), 9h);
    EXPECT_EQ(at("dxDateTime").Notice, "");
}

TEST_F(TypedMoments, AreReadByASaveWhichStopsOnceAtWhatItCannotRead) {
    openDates();
    type("dxName", "a");
    node(0);
    type("dxDate", "31.2.27");
    type("dxDateTime", "830");
    click("cmdSave");
    ASSERT_TRUE(form().isOpen());
    EXPECT_EQ(visibleFrames(), "fraMonitoring");
    EXPECT_EQ(form().FocusedControl, &at("dxDate"));
    EXPECT_NE(at("dxDate").Notice, "");
    type("dxDate", "31.3.27");
    click("cmdSave");
    EXPECT_NE(jobBytes("a").find("IntervalDate=31.03.2027\r\nIntervalTime=08:30:00\r\n"), std::string::npos);

    edit("a");
    type("dxDate", "x");
    click("cmdSave");
    ASSERT_TRUE(form().isOpen());
    click("cmdSave");
    EXPECT_FALSE(form().isOpen()) << "the notice has said what the job keeps";
    EXPECT_NE(jobBytes("a").find("IntervalDate=31.03.2027\r\n"), std::string::npos);

    openDates();
    type("dxName", "b");
    type("dxDate", "x");
    choose("optIntTime", 0);
    click("cmdSave");
    EXPECT_FALSE(form().isOpen()) << "nobody sees that field";
}

TEST_F(TypedMoments, StoredTimesAreReadAsPeopleReadThemOrKeptAndTold) {
    for (const auto& [stored, saved, notice] : {std::tuple{"1:05:30", "01:05:30", false},
                                                {"14:05", "14:05:00", false},
                                                {"8:30", "08:30:00", false},
                                                {"14.05.30", "14:05:30", false},
                                                {"2:05:10 PM", "14:05:10", false},
                                                {"1", "00:00:00", false},
                                                {"", "", false},
                                                {"noon", "noon", true},
                                                {"0.25", "0.25", true},
                                                {"830", "830", true},
                                                {"24:00", "24:00", true}}) {
        SCOPED_TRACE(stored);
        putJob("a", "[Job]\r\nName=a\r\nIntervalType=1\r\nIntervalTime=" + std::string{stored} + "\r\n");
        edit("a");
        EXPECT_EQ(at("dxDateTime").Notice.starts_with("„"), notice);
        if (notice) {
            type("dxDateTime", "12:00x");
            type("dxDateTime", stored);
            leave("dxDateTime");
            EXPECT_EQ(at("dxDateTime").Notice,
                      "„" + std::string{stored} +
                          "“ ist keine Uhrzeit wie 14:05, steht aber so im Auftrag und bleibt, bis Sie eine eingeben.");
        }
        click("cmdSave");
        EXPECT_NE(jobBytes("a").find("IntervalTime=" + std::string{saved} + "\r\n"), std::string::npos);
    }
}

}  // namespace
}  // namespace kestedit
