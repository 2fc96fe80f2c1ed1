#include "i18n/LoadLanguage.h"

#include <array>
#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "i18n/Captions.h"
#include "i18n/Catalogue.h"
#include "i18n/PickLists.h"
#include "i18n/modMessages.h"

namespace kestedit {

namespace {

struct CommandText {
    int key;
    EditorControl FormModel::*command;
    std::string_view german;
};

// Without a language file the two buttons that end the editing are still readable; every other caption is empty.
constexpr std::array<CommandText, 4> commandTexts{{{0, &FormModel::cmdCancel, "&Abbrechen"},
                                                   {1, &FormModel::cmdSave, "&Speichern"},
                                                   {18, &FormModel::cmdPrevious, ""},
                                                   {19, &FormModel::cmdNext, ""}}};

struct UnitText {
    int key;
    std::size_t entry;  // of the catalogue
    std::string_view german;
};

constexpr std::array<UnitText, 6> unitTexts{{{2, catalogue::minute, "Minute"},
                                             {3, catalogue::minutes, "Minuten"},
                                             {4, catalogue::hour, "Stunde"},
                                             {5, catalogue::hours, "Stunden"},
                                             {16, catalogue::day, "Tag"},
                                             {17, catalogue::days, "Tage"}}};

// The control library's own number of each localizer text, by key. The last one, a title, is not shown: the calendar
// drops down from its field and has none.
constexpr std::array<std::size_t, 9> localizerIds{1, 0, 9, 8, 11, 10, 7, 12, 6};

/// Texts of one section of the language file.
class Section {
  public:
    Section(const modIniHandler& texts, std::string_view name) : texts_(texts), name_(name) {}

    [[nodiscard]] std::string text(int key, std::string_view german = {}) const {
        std::string name{'t'};
        name += std::to_string(key);
        return texts_.ReadLanguageText(name_, name, german, textSize);
    }

  private:
    const modIniHandler& texts_;
    std::string_view name_;
};

/// Entries of the pick lists that the table fills one by one.
using ListEntries = std::map<EditorControl*, std::vector<std::string>>;

void assignText(FormModel& form, const TextTarget& target, const std::string& text, ListEntries& lists) {
    using enum TextTarget::Kind;
    const auto index = static_cast<std::size_t>(target.index);
    switch (target.kind) {
        case caption:
            form.at(target.control).Caption = text;
            break;
        case toolTip:
            form.at(target.control).ToolTipText = text;
            break;
        case item: {
            EditorControl& list = form.at(target.control);
            lists.try_emplace(&list, list.Items).first->second.at(index) = text;
            break;
        }
        case catalogue:
            form.TextCatalogue.at(index) = text;
            break;
        case catalogueBlank:
            form.TextCatalogue.at(index) = text + ' ';
            break;
    }
}

void loadFormTexts(FormModel& form, const modIniHandler& texts) {
    const Section section(texts, "frmEdit");
    ListEntries lists;
    std::optional<int> key;
    std::string text;
    for (const TextTarget& target : formTexts()) {
        if (key != target.key) {
            key = target.key;
            text = section.text(target.key);
        }
        assignText(form, target, text, lists);
    }
    for (auto& [list, entries] : lists)
        ReplaceItems(*list, std::move(entries));
}

void loadCommonTexts(FormModel& form, const modIniHandler& texts) {
    const Section section(texts, "All");
    for (const auto& [key, command, german] : commandTexts)
        (form.*command).Caption = section.text(key, german);
    for (const auto& [key, entry, german] : unitTexts)
        form.TextCatalogue.at(entry) = section.text(key, german);
}

void loadLocalizer(FormModel& form, const modIniHandler& texts) {
    const Section section(texts, "dxLocalizer");
    int key = 0;
    for (const std::size_t id : localizerIds)
        form.Localizer.at(id) = section.text(key++);
}

void loadWeekdays(FormModel& form, const modIniHandler& texts) {
    const Section section(texts, "Weekdays");
    auto days = form.dxIntWeekDay.Items;
    int key = 0;
    for (std::string& day : days)
        day = section.text(key++);
    ReplaceItems(form.dxIntWeekDay, std::move(days));
}

// Labels of fields whose texts were in the catalogue from the start.
void labelByCatalogue(FormModel& form) {
    form.lblIntWeekDay.Caption = form.TextCatalogue.at(catalogue::weekDay);
    form.lblIntMonthDay.Caption = form.TextCatalogue.at(catalogue::monthDay);
    form.lblPickExistSelecter.Caption = form.TextCatalogue.at(catalogue::replaceIf);
}

}  // namespace

void LoadLanguage(FormModel& form, const modIniHandler& texts) {
    form.TextCatalogue.assign(catalogueSize, {});
    loadFormTexts(form, texts);
    loadCommonTexts(form, texts);
    FillReplaceIfTexts(form.TextCatalogue, form.ReplaceIfTexts);
    FillPickLists(form);
    loadLocalizer(form, texts);
    loadWeekdays(form, texts);
    labelByCatalogue(form);
    LoadCaptions(form, texts);
}

}  // namespace kestedit
