#include "editor/frmEdit.h"

#include <algorithm>
#include <cctype>
#include <charconv>
#include <stdexcept>
#include <string>

#include "editor/ChangeRules.h"
#include "editor/FieldNotices.h"
#include "editor/NodeImages.h"
#include "editor/Views.h"
#include "editor/modCompNodes.h"
#include "editor/modTabOrder.h"
#include "editor/rules/RefreshPageStates.h"
#include "editor/rules/action.h"
#include "editor/rules/existing.h"
#include "editor/rules/paths.h"
#include "i18n/Catalogue.h"
#include "i18n/LoadLanguage.h"
#include "i18n/PickLists.h"
#include "i18n/modMessages.h"
#include "persistence/modGetValues.h"
#include "persistence/modSaveValues.h"

namespace kestedit {

namespace {

constexpr std::string_view windowSection = "EditWin";
constexpr std::string_view globalSection = "Global";

bool isSameWord(std::string_view text, std::string_view lowerCaseWord) {
    return std::ranges::equal(
        text, lowerCaseWord, [](unsigned char letter, unsigned char wanted) { return std::tolower(letter) == wanted; });
}

// Nothing for a text that holds more or less than a number.
std::optional<std::int64_t> wholeNumber(const std::string& text) {
    const char* const last = text.data() + text.size();
    std::int64_t number = 0;
    const auto [end, error] = std::from_chars(text.data(), last, number);
    return error == std::errc{} && end == last ? std::optional{number} : std::nullopt;
}

// A flag of the settings file: "True", "False" in any case, or a whole number, of which all but 0 are on. Any other
// text keeps the default.
bool flagOr(const std::string& text, bool fallback) {
    if (isSameWord(text, "true")) return true;
    if (isSameWord(text, "false")) return false;
    const auto number = wholeNumber(text);
    return number ? *number != 0 : fallback;
}

// A colour of the settings file: red, green and blue in the lower three bytes.
std::int64_t colourOr(const std::string& text, std::int64_t fallback) {
    const auto number = wholeNumber(text);
    return number && *number >= 0 && *number <= 0xFFFFFF ? *number : fallback;
}

}  // namespace

frmEdit::frmEdit(ComponentValues& values, Platform& platform)
    : values_(values),
      platform_(platform),
      ini_(platform.ini, values),
      jobs_(platform.ini),
      characters_(*this, platform, ini_, jobs_) {
    ViewLevel = values.ViewLevel;
}

void frmEdit::Load() {
    const IniStore::ReadScope reading = platform_.ini.readScope();
    readWindowSettings();
    loadTexts();
    chkEditPaths.State = editPaths_ ? 1 : 0;
    ApplyEditPaths(*this);
    loadByMode();
    Navigation.RowColour =
        colourOr(ini_.ReadProgramSetting(globalSection, "RowBgCol", "14737632", textSize), Navigation.RowColour);
    Navigation.RowTextColour =
        colourOr(ini_.ReadProgramSetting(globalSection, "RowTxtCol", "0", textSize), Navigation.RowTextColour);
    TreeBusy = true;
    BuildNavigationTree(*this);
    TreeBusy = false;
    TitleDestinationNode(*this);
    if (const View* const view = viewOf(*this)) RefreshPageStates(*this, "all", view->number, 0);
    Ready = true;
    if (values_.Mode == "New") applyNewJob();
    showPage(0);
    focus(dxName);
    SetTabOrder(*this);
    refreshNotices();
    if (opened_) opened_->untouched = SaveValues(*this, platform_.dates, platform_.clock.now());
    loading_ = false;
}

void frmEdit::readWindowSettings() {
    Navigation.ShowIcons = flagOr(ini_.ReadProgramSetting(windowSection, "ShowIcons", "1", textSize), true);
    editPaths_ = flagOr(ini_.ReadProgramSetting(windowSection, "chkEditPaths", "1", textSize), true);
    DisableInsteadOfHide = flagOr(ini_.ReadProgramSetting(windowSection, "DisableInsteadOfHide", "0", textSize), false);
}

void frmEdit::loadTexts() {
    if (values_.UseBuiltInTexts) {
        FillBuiltInTexts(TextCatalogue, ReplaceIfTexts);
        FillPickLists(*this);
    } else {
        LoadLanguage(*this, ini_);
    }
    RefreshPathTexts(*this);
}

void frmEdit::loadByMode() {
    if (values_.Mode == "Edit") {
        Caption = values_.AppTitle + " - " + TextCatalogue[catalogue::editJob];
        loadJob();
    } else if (values_.Mode == "New") {
        Caption = values_.AppTitle + " - " + TextCatalogue[catalogue::newJob];
        SetPresentDates(*this, platform_.clock.now());
    }
}

// The action comes first and its rule with it, so that the values that the job stores behind it stand.
void frmEdit::loadJob() {
    const std::string file = platform_.files.BuildPath(values_.JobDir, platform_.files.GetFileName(values_.JobFile));
    try {
        opened_ = OpenedJob{file, jobs_.read(file), {}};
    } catch (const std::runtime_error& failure) {
        LoadProblem = failure.what();
        return;
    }
    const JobRecord& job = opened_->stored;
    characters_.loaded(job);
    GetAction(*this, job);
    ApplyAction(*this);
    const std::string comment = ini_.ReadIniFileValue("Job", "Comment", "", values_.JobFile, textSize);
    GetValues(*this, job, comment, platform_.dates, platform_.clock.now().date);
    ApplyLoadedChoices(*this);
    RunRulesOfOpening(*this);
    if (DateFormatChanged) tellDateChange();
}

void frmEdit::tellDateChange() {
    using enum TextId;
    std::string text = textOf(ini_, dateFormatChanged) + "\r\n\r\n" + textOf(ini_, keepDates) + " " +
                       textOf(ini_, datesReset) + " " + textOf(ini_, checkDates);
    (void)platform_.prompts.showMessage(
        {textOf(ini_, dateTitle), std::move(text), Buttons::ok, MessageIcon::information});
}

void frmEdit::applyNewJob() {
    SetNewJobDefaults(*this, platform_.clock.now());
    ApplyAction(*this);
    ApplyLoadedChoices(*this);
    RunRulesOfOpening(*this);
    const View* const view = viewOf(*this);
    if (view && view->marksReducedOnNew) SetNodeImage(*this, Page::reduced, image::doesNotApply);
}

void frmEdit::close() {
    open_ = false;
}

}  // namespace kestedit
