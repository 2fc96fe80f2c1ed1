// Room on the page: nothing clipped, nothing out of reach, nothing that jumps.
#include <QAbstractButton>
#include <QScrollBar>
#include <cstring>
#include <set>
#include <tuple>

#include "tests/desktop/WindowFixture.h"

namespace kestedit::test {
namespace {

/// The language file with texts longer by more than a half, as another language may have them: each vowel stands twice,
/// so words are longer, too, and a quarter of the text follows once more.
std::string longTexts(const std::string& file, const std::filesystem::path& to) {
    std::istringstream lines(bytesOf(file));
    std::ofstream out(to, std::ios::binary);
    for (std::string line; std::getline(lines, line, '\r'); out << line << '\r') {
        if (!line.starts_with("\nt")) continue;
        const std::string text = line.substr(line.find('=') + 1);
        line.resize(line.size() - text.size());
        for (const char letter : text + " " + text.substr(0, text.size() / 4))
            line.append(std::strchr("aeiou", letter) ? 2 : 1, letter);
    }
    return to.string();
}

struct Screen {
    int fontSize;  ///< in points
    QSize window;
};

class Layout : public WindowTest, public testing::WithParamInterface<std::tuple<const char*, bool, Screen>> {
  protected:
    void SetUp() override { QApplication::setFont(QFont("DejaVu Sans", std::get<Screen>(GetParam()).fontSize)); }
    void TearDown() override {
        leave();
        QApplication::setFont(QFont("DejaVu Sans", 10));
    }

    void expectRoom(const QWidget& widget) {
        const QString name = widget.objectName();
        if (widget.inherits("QLabel") || widget.inherits("QAbstractButton") || widget.inherits("QComboBox") ||
            widget.inherits("QAbstractSpinBox")) {
            EXPECT_GE(widget.width(), widget.minimumSizeHint().width()) << name.toStdString();
            const int wrapped = widget.heightForWidth(widget.width());
            EXPECT_GE(widget.height(), wrapped < 0 ? widget.minimumSizeHint().height() : wrapped) << name.toStdString();
        }
        EXPECT_TRUE(widget.parentWidget()->rect().contains(widget.geometry())) << name.toStdString();
    }
    void expectNoOverlap(const QWidget& widget) {
        for (const auto* sibling : widget.parentWidget()->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly))
            EXPECT_FALSE(sibling < &widget && sibling->isVisible() && sibling->geometry().intersects(widget.geometry()))
                << widget.objectName().toStdString() << " lies over " << sibling->objectName().toStdString();
    }

    /// Every visible part of the page has its room, and the page scrolls as far as it reaches.
    void expectPageFits(int action) {
        const PageArea& area = *window().currentPage();
        const QWidget& page = *area.widget();
        SCOPED_TRACE(page.objectName().toStdString() + ", action " + std::to_string(action));
        for (const QWidget* widget : page.findChildren<QWidget*>()) {
            if (!widget->isVisible() || widget->objectName().isEmpty() || widget->objectName().startsWith("qt_"))
                continue;
            expectRoom(*widget);
            expectNoOverlap(*widget);
        }
        EXPECT_GE(area.verticalScrollBar()->maximum(), page.height() - area.viewport()->height());
        EXPECT_GE(area.horizontalScrollBar()->maximum(), page.width() - area.viewport()->width());
    }

    /// What is wrong with every field at once, and with every group, page and schedule.
    void noticeEverything(bool noticed) {
        for (EditorControl* control : form().controls())
            control->Notice = noticed ? "What stands here is not what you want: " + control->Name() : "";
        for (EditorControl* finding : {&at("lblChkPathMsg"), &at("lblChkTimeMsg")}) {
            finding->Caption = "The chosen date and time have already passed.";
            finding->Visible = noticed;
        }
        window().refresh();
        settle();
    }

    void expectNoticesBelowTheirFields() {
        for (const auto& shown : window().binder().bindings()) {
            const QWidget& widget = shown->widget();
            const bool field = !shown->focusWidgets().empty() && shown->control().Kind != ControlKind::nodeList;
            if (!widget.isVisible() || !field) continue;
            const QString name = widget.objectName();
            const auto* label = window().findChild<QLabel*>(name + noticeSuffix);
            ASSERT_TRUE(label && label->isVisible()) << name.toStdString();
            EXPECT_TRUE(label->text().endsWith(toQt(shown->control().Name())));
            EXPECT_GT(label->y(), widget.geometry().bottom()) << name.toStdString();
        }
    }
};

TEST_P(Layout, NothingIsClippedOrOutOfReach) {
    const auto& [language, lengthened, screen] = GetParam();
    setLanguage(language);
    if (lengthened) values.Language = longTexts(values.Language, folder.path() / "long.lng");
    std::ofstream(values.INIFile) << "[EditWin]\r\nDisableInsteadOfHide=1\r\n";
    open();
    window().resize(screen.window);
    settle();
    EXPECT_TRUE(QRect(QPoint(), screen.window).contains(QRect(QPoint(), window().size())));
    for (const auto* button : window().findChildren<QAbstractButton*>(QString(), Qt::FindDirectChildrenOnly))
        expectRoom(*button);
    for (const int action : {0, 2, 3, 4, 5}) {
        press("optAction(" + std::to_string(action) + ")");
        expectPageFits(action);
        // Of the other pages an action changes the paths', and those that stand behind the attributes'.
        for (int node = 0; node < list().topLevelItemCount(); ++node) {
            if (action != 0 && node != 2 && node < 11) continue;
            clickNode(node);
            expectPageFits(action);
            noticeEverything(true);
            expectPageFits(action);
            expectNoticesBelowTheirFields();
            noticeEverything(false);
        }
    }
}

// 1024x768 at 100 % and at 200 %, in the toolkit's units; the smallest screen, also for eyes that want larger letters.
INSTANTIATE_TEST_SUITE_P(Texts, Layout,
                         testing::Combine(testing::ValuesIn(languages), testing::Bool(),
                                          testing::Values(Screen{14, {1024, 768}}, Screen{14, {512, 384}},
                                                          Screen{10, {800, 600}}, Screen{20, {800, 600}})));

using Holes = WindowTest;

TEST_F(Holes, HiddenOptionsTakeNoRoomAndWhatIsClickedStaysUnderThePointer) {
    open();
    // Three sets of fields share the page, and only one of them is there: it stands right below the options each time.
    turnTo("optIntervall(0)");
    PageArea& area = *window().currentPage();
    const QWidget& above = binding("optIntervall(2)").widget();
    std::set<int> gaps;
    for (const auto& [chosen, first] : {std::pair{"optIntervall(0)", "dxDays"},
                                        {"optIntervall(1)", "optIntTime(0)"},
                                        {"optIntervall(2)", "lblRTMon"}}) {
        press(chosen);
        gaps.insert(area.placeOf(binding(first).widget()) - area.placeOf(above) - above.height());
    }
    EXPECT_EQ(gaps.size(), 1U);
    EXPECT_LE(*gaps.begin(), 24);

    // The page is scrolled to its end, and what a click hides makes it shorter.
    window().resize(700, 300);
    settle();
    press("optIntervall(1)");
    press("optIntTime(3)");
    area.verticalScrollBar()->setValue(area.verticalScrollBar()->maximum());
    settle();
    QWidget& option = binding("optIntTime(0)").widget();
    const int before = area.placeOf(option);
    ASSERT_GE(before, 0);
    QTest::mouseClick(&option, Qt::LeftButton, Qt::NoModifier, QPoint(8, option.height() / 2));
    settle();
    ASSERT_FALSE(binding("dxDate").widget().isVisible());
    EXPECT_EQ(area.placeOf(option), before);
    // The room below the end goes as the page is scrolled up, and nothing moves by that.
    ASSERT_GT(area.widget()->minimumHeight(), 0);
    area.verticalScrollBar()->setValue(before / 2);
    EXPECT_EQ(area.widget()->minimumHeight(), before / 2 + area.viewport()->height());
    EXPECT_EQ(area.verticalScrollBar()->value(), before / 2);
    clickNode(0);
    turnTo("optIntTime(0)");
    EXPECT_EQ(area.widget()->minimumHeight(), 0);
}

TEST_F(Holes, AFindingLeavesHeadingAndFieldInTheirPlaces) {
    open();
    window().resize(800, 600);
    turnTo("dxHours");
    PageArea& area = *window().currentPage();
    for (const char* hours : {"0", "3"}) {
        enter("dxHours", hours);
        settle();
        EXPECT_EQ(binding("lblChkTimeMsg").widget().isVisible(), at("dxHours").number() == 0);
        EXPECT_GE(area.placeOf(binding("lblExecution").widget()), 0);
        EXPECT_FALSE(area.verticalScrollBar()->isVisible());
        EXPECT_FALSE(area.horizontalScrollBar()->isVisible());
    }
}

// A notice comes and goes with the box that is clicked: it stands below it.
TEST_F(Holes, ANoticeComesWithoutMovingWhatBringsIt) {
    open();
    press("optFileMatch(1)");
    enter("dxFileName", "a(");
    QWidget& box = binding("chkRegExFile").widget();
    for (const bool wrong : {true, false}) {
        const QPoint place = box.mapTo(&window(), QPoint());
        press("chkRegExFile");
        EXPECT_EQ(!notice("dxFileName").isEmpty(), wrong);
        EXPECT_EQ(box.mapTo(&window(), QPoint()), place);
    }
}

// A finding about the field that a click leaves comes between press and release.
TEST_F(Holes, AClickThatBringsAFindingAboutAnotherFieldCounts) {
    open();
    window().resize(800, 600);
    enter("dxSource", "relative");
    QWidget& box = binding("chkEditPaths").widget();
    const QPoint pointer = box.mapToGlobal(QPoint(8, box.height() / 2));
    QTest::mousePress(&box, Qt::LeftButton, Qt::NoModifier, box.mapFromGlobal(pointer));
    settle();
    ASSERT_NE(notice("dxSource"), "");
    QTest::mouseRelease(&box, Qt::LeftButton, Qt::NoModifier, box.mapFromGlobal(pointer));
    EXPECT_FALSE(at("chkEditPaths").isSet());
}

}  // namespace
}  // namespace kestedit::test
