// Dates and times typed, pasted, stepped and chosen in the window.
#include <QAbstractButton>
#include <QCalendarWidget>
#include <QClipboard>
#include <QTableView>

#include "desktop/widgets/CalendarPopup.h"
#include "desktop/widgets/DateEdit.h"
#include "desktop/widgets/NoticeLabel.h"
#include "platform/TimeFormat.h"
#include "tests/desktop/WindowFixture.h"

namespace kestedit::test {
namespace {

/// Digits alone: what is left of a text when the user does not care for separators.
QString digitsOf(const QString& text) {
    QString digits = text;
    digits.removeIf([](QChar letter) { return !letter.isDigit(); });
    return digits;
}

class Moments : public WindowTest {
  protected:
    void openDates() {
        open();
        press("optIntervall(1)");
        press("optIntTime(3)");
    }
    void useLocale(const char* date, const char* time) {
        dates = DateFormat::ofLocaleFormat(date);
        platform.times = TimeFormat::ofLocaleFormat(time, "AM", "PM");
    }
    /// Selects what the field holds, types over it and leaves. What the job holds then, in the job's own form.
    std::string entered(const char* name, const QString& keys) {
        QWidget& field = focusOf(name);
        field.setFocus();
        QTest::keyClick(&field, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClicks(&field, keys);
        list().setFocus();
        if (const auto time = at(name).time()) return timeText(*time);
        const auto date = at(name).date();
        return date ? DateFormat("yyyy-MM-dd").text(*date) : "none";
    }
    QString shown(const char* name) { return focusOf(name).property("text").toString(); }
    CalendarPopup& openCalendar() {
        QTest::keyClick(&focusOf("dxDate"), Qt::Key_F4);
        return shownBy<DateEdit>("dxDate").calendar();
    }
};

struct LocaleForms {
    const char* name;
    const char* date;
    const char* time;
};

class MomentsOf : public Moments, public testing::WithParamInterface<LocaleForms> {};

TEST_P(MomentsOf, EveryDayOfTwoYearsAndTwoHundredTimesAreWhatWasTyped) {
    useLocale(GetParam().date, GetParam().time);
    openDates();
    const DateFormat iso("yyyy-MM-dd");
    const Date first{std::chrono::year{2027}, std::chrono::January, std::chrono::day{1}};
    for (int day = 0; day < 731; ++day) {
        const Date date = addDays(first, day);
        const QString text = toQt(dates.text(date));
        const bool allDigits = digitsOf(text).size() == 8;
        const QString typed = day % 2 == 0 || !allDigits ? text : digitsOf(text);
        ASSERT_EQ(entered("dxDate", typed), iso.text(date)) << typed.toStdString();
        ASSERT_EQ(shown("dxDate"), text);
    }
    for (int i = 0; i < 200; ++i) {
        const TimeOfDay time{i * 7919 % 86'400 / (i % 4 == 0 ? 1 : 60) * (i % 4 == 0 ? 1 : 60)};
        const QString text = toQt(platform.times.text(time));
        const QString half = text.contains(u'M') ? text.right(3) : QString();
        const QString typed = i % 2 == 0 ? text : digitsOf(text) + half;
        ASSERT_EQ(entered("dxDateTime", typed), timeText(time)) << typed.toStdString();
        ASSERT_EQ(shown("dxDateTime"), text);
    }
}

INSTANTIATE_TEST_SUITE_P(Locales, MomentsOf,
                         testing::Values(LocaleForms{"de_DE", "%d.%m.%Y", "%T"}, LocaleForms{"en_GB", "%d/%m/%y", "%T"},
                                         LocaleForms{"en_US", "%m/%d/%Y", "%I:%M:%S %p"},
                                         LocaleForms{"sv_SE", "%Y-%m-%d", "%T"},
                                         LocaleForms{"cs_CZ", "%-d. %-m. %Y", "%k.%M.%S"}),
                         [](const auto& locale) { return std::string{locale.param.name}; });

TEST_F(Moments, TakeShortFormsAndPastedOnesAndShowThemInFull) {
    useLocale("%d.%m.%Y", "%T");
    openDates();
    EXPECT_EQ(shown("dxDateTime"), "14:05") << "no seconds where there are none";
    for (const auto& [typed, taken] : {std::pair{"24/12/2026", "24.12.2026"}, {"1.2.27", "01.02.2027"}}) {
        entered("dxDate", typed);
        EXPECT_EQ(shown("dxDate"), taken);
    }
    for (const auto& [typed, taken] :
         {std::pair{"02:00", "02:00"}, {"08:30:00", "08:30"}, {"830", "08:30"}, {"8:30:15", "08:30:15"}}) {
        entered("dxDateTime", typed);
        EXPECT_EQ(shown("dxDateTime"), taken);
    }
    for (const char* pasted : {"24/12/2028", " 24.12.28\n"}) {
        entered("dxDate", "1.1.27");
        QApplication::clipboard()->setText(pasted);
        QTest::keyClick(&focus("dxDate"), Qt::Key_V, Qt::ControlModifier);
        QTest::keyClick(&focusOf("dxDate"), Qt::Key_Return);
        EXPECT_EQ(shown("dxDate"), "24.12.2028") << pasted;
    }
}

TEST_F(Moments, AreWhatWasTypedHoweverTheFieldWasReached) {
    openDates();
    QWidget& field = focusOf("dxDate");
    const QPoint onTheMonth(field.fontMetrics().horizontalAdvance("21.1") + 6, field.height() / 2);
    auto& text = *field.findChild<QLineEdit*>();
    QTest::mouseClick(&text, Qt::LeftButton, Qt::NoModifier, onTheMonth);
    QTest::keyClick(&field, Qt::Key_Up);
    EXPECT_EQ(shown("dxDate"), "21.12.2026") << "steps where the click was";
    EXPECT_EQ(text.selectedText(), "12");
    list().setFocus();
    QTest::mouseClick(&text, Qt::LeftButton, Qt::NoModifier, onTheMonth);
    QTest::keyClicks(&field, "24122027");
    EXPECT_EQ(dates.text(*at("dxDate").date()), "24.12.2027");
    for (const auto& [typed, caret, stepped] : {std::tuple{"24122027", 1, "23.12.2027"},
                                                {"24122027", 3, "24.11.2027"},
                                                {"5.11.2026", 1, "04.11.2026"},
                                                {"5.7.26", 3, "05.06.2026"},
                                                {"5.7.26", 6, "05.07.2025"}}) {
        entered("dxDate", "");
        focusOf("dxDate").setFocus();
        QTest::keyClicks(&field, typed);
        text.setCursorPosition(caret);
        QTest::keyClick(&field, Qt::Key_Down);
        EXPECT_EQ(shown("dxDate"), stepped) << "steps where the caret is";
    }
    QTest::keyClick(&field, Qt::Key_End);
    turnWheel(field);
    EXPECT_EQ(shown("dxDate"), "05.07.2024");
    focusOf("dxDateTime").setFocus();
    QTest::keyClick(&focusOf("dxDateTime"), Qt::Key_Up);
    EXPECT_EQ(shown("dxDateTime"), "15:05");
    QTest::keyClick(&focusOf("dxDateTime"), Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(&focusOf("dxDateTime"), Qt::Key_Backspace);
    EXPECT_TRUE(at("dxDateTime").isEmpty());
    QTest::keyClick(&focusOf("dxDateTime"), Qt::Key_Down);
    EXPECT_EQ(shown("dxDateTime"), "14:05") << "an empty field starts with the present";
}

TEST_F(Moments, ThatAreNoneStayInTheFieldAndAreToldUnderIt) {
    openDates();
    EXPECT_EQ(entered("dxDate", "31.2.2027"), "2026-11-21");
    EXPECT_EQ(shown("dxDate"), "31.2.2027");
    EXPECT_TRUE(notice("dxDate").contains("21.11.2026"));
    EXPECT_EQ(focusOf("dxDate").accessibleDescription(), notice("dxDate"));
    QTest::keyClick(&focus("dxDate"), Qt::Key_Up);
    EXPECT_EQ(shown("dxDate"), "31.2.2027") << "no step leads on from there";
    enter("dxName", "a");
    turnTo("dxDate");
    focusOf("dxDate").setFocus();
    QTest::keyClick(&focusOf("dxDate"), Qt::Key_S, Qt::ControlModifier);
    EXPECT_TRUE(form().isOpen());
    EXPECT_EQ(entered("dxDate", "28.2.27"), "2027-02-28");
    EXPECT_EQ(notice("dxDate"), "");
    focusOf("dxDate").setFocus();
    QTest::keyClick(&focusOf("dxDate"), Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(&focusOf("dxDate"), "1.3.27");
    QTest::keyClick(&focusOf("dxDate"), Qt::Key_S, Qt::ControlModifier);
    EXPECT_FALSE(form().isOpen());
    EXPECT_NE(jobBytes("a").find("IntervalDate=01.03.2027\r\n"), std::string::npos);
}

TEST_F(Moments, ChosenInACalendarThatShowsItsWholeMonth) {
    QLocale::setDefault(QLocale("en_US"));  // whose week begins on Sunday
    for (const int size : {10, 24}) {
        SCOPED_TRACE(size);
        QApplication::setFont(QFont("DejaVu Sans", size));
        openDates();
        CalendarPopup& popup = openCalendar();
        settle();
        ASSERT_TRUE(popup.isVisible());
        EXPECT_EQ(popup.days().firstDayOfWeek(), Qt::Sunday);
        EXPECT_EQ(popup.days().selectedDate(), QDate(2026, 11, 21));
        auto& table = *popup.days().findChild<QTableView*>();
        int height = 0;
        for (int row = 0; row < 7; ++row)  // the names of the days and six weeks
            height += table.rowHeight(row);
        EXPECT_GE(table.viewport()->height(), height);
        EXPECT_GE(table.rowHeight(6), table.fontMetrics().height());
        for (int column = 0; column < table.model()->columnCount(); ++column)
            EXPECT_TRUE(table.isColumnHidden(column) ||
                        table.columnWidth(column) >= QFontMetrics(table.font()).horizontalAdvance("Wed"))
                << column;
        for (const auto* part : popup.findChildren<QWidget*>())
            EXPECT_TRUE(!part->isVisible() || part->parentWidget()->rect().contains(part->geometry()))
                << part->objectName().toStdString();
        QTest::keyClick(&table, Qt::Key_Right);
        QTest::keyClick(&table, Qt::Key_Return);
        EXPECT_FALSE(popup.isVisible());
        EXPECT_EQ(shown("dxDate"), "22.11.2026");
        leave();
    }
    QApplication::setFont(QFont("DejaVu Sans", 10));
    QLocale::setDefault(QLocale::system());
}

TEST_F(Moments, CalendarHasAButtonForTodayAndOneForNothing) {
    openDates();
    const auto press = [](CalendarPopup& popup, const char* caption) {
        for (auto* button : popup.findChildren<QAbstractButton*>())
            if (button->text() == caption) return QTest::mouseClick(button, Qt::LeftButton);
        ADD_FAILURE() << caption;
    };
    QTest::keyClicks(&focus("dxDate"), "24.12.26");
    CalendarPopup& popup = openCalendar();
    EXPECT_EQ(popup.days().selectedDate(), QDate(2026, 12, 24)) << "opens at what was typed";
    press(popup, "Leeren");
    EXPECT_TRUE(at("dxDate").isEmpty());
    EXPECT_EQ(shown("dxDate"), "");
    press(openCalendar(), "Heute");
    EXPECT_EQ(shown("dxDate"), "21.11.2026");
    auto& edit = shownBy<DateEdit>("dxDate");
    QTest::mouseClick(&edit, Qt::LeftButton, Qt::NoModifier, QPoint(edit.width() - 6, edit.height() / 2));
    EXPECT_TRUE(popup.isVisible());
    popup.close();
}

}  // namespace
}  // namespace kestedit::test
