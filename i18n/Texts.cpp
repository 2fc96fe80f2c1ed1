#include "i18n/Texts.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace kestedit {

namespace {

struct TextRow {
    TextId id;
    std::string_view section;
    std::string_view key;
    std::string_view german;
    std::string_view english = {};  ///< empty: a text that every language file has had from the start
};

using enum TextId;

// "Autrag" and "Autrages" are meant so. Two rows share a key where one question has two built-in wordings, and the name
// that is missing from an edited job is looked up under the key of the last line, deliberately. Test:
// SaveJob.EmptyNameOfAnEditedJob.
// clang-format off
constexpr auto rows = std::to_array<TextRow>({
    {nameMissing,            "Messages",       "t3",   "Das Feld 'Name des Autrages' darf nicht leer sein."},
    {nameMissingEdited,      "Messages",       "t6",   "Das Feld 'Name des Autrages' darf nicht leer sein."},
    {nameIsFileName,         "Messages",       "t4",   "Der Name wird als Dateiname benutzt."},
    {nameWanted,             "Messages",       "t5",   "Bitte geben Sie einen Namen für Ihren Autrag ein."},
    {useLastName,            "Messages",       "t6",   "Möchten Sie den letzten Namen verwenden?"},
    {nameTitle,              "Messages",       "t7",   "Zwingende Eingabe"},
    {jobExists,              "Messages",       "t8",   "Ein Auftrag mit diesem Namen existiert schon!"},
    {overwriteNew,           "Messages",       "t9",   "Möchten Sie den existierenden Auftrag überschreiben?"},
    {overwriteEdited,        "Messages",       "t9",   "Möchten Sie diesen Auftrag überschreiben?"},
    {saveTitle,              "Messages",       "t10",  "Meldung"},
    {chooseSource,           "Messages",       "t11",  "Quellverzeichnis auswählen"},
    {chooseDestination,      "Messages",       "t12",  "Zielverzeichnis auswählen"},
    {chooseMonitored,        "Messages",       "t172", "Verzeichnis für Überwachung auswählen"},
    {dateFormatChanged,      "DateChangeInfo", "t0",   "Das Datumsformat des Systems scheint geändert worden zu sein."},
    {keepDates,              "DateChangeInfo", "t1",   "Wenn Sie die vorherigen Einstellungen behalten möchten, dann brechen Sie diese Aktion ab, schliessen das Programm und ändern Sie in der Systemsteuerung das Datum auf das vorherige Format."},
    {datesReset,             "DateChangeInfo", "t2",   "Wenn Sie in diesem Fenster weiterarbeiten werden alle Datumsangaben zurückgesetzt."},
    {checkDates,             "DateChangeInfo", "t3",   "Überprüfen Sie dann bitte die Datumsangaben für die Überwachung."},
    {dateTitle,              "DateChangeInfo", "t4",   "Information"},
    {newFolder,              "dlgNewFolder",   "t0",   "Neuer Ordner"},
    {createButton,           "dlgNewFolder",   "t1",   "&Erstellen"},
    {cancelButton,           "All",            "t0",   "&Abbrechen"},
    {folderExists,           "dlgNewFolder",   "t2",   "Ordner existiert schon."},
    {newMonitoredFolder,     "dlgNewFolder",   "t3",   "Neuer Ordner"},
    {sourceMissing,          "Findings",       "t0",   "Das Quellverzeichnis existiert nicht.", "The source folder does not exist."},
    {sourceUnreadable,       "Findings",       "t1",   "Das Quellverzeichnis kann nicht gelesen werden.", "The source folder cannot be read."},
    {destinationMissing,     "Findings",       "t2",   "Das Zielverzeichnis existiert nicht.", "The destination folder does not exist."},
    {destinationNotWritable, "Findings",       "t3",   "In das Zielverzeichnis kann nicht geschrieben werden.", "The destination folder cannot be written to."},
    {monitoredMissing,       "Findings",       "t4",   "Der überwachte Ordner existiert nicht.", "The monitored folder does not exist."},
    {monitoredUnreadable,    "Findings",       "t5",   "Der überwachte Ordner kann nicht gelesen werden.", "The monitored folder cannot be read."},
    {sameFolder,             "Findings",       "t6",   "Quell- und Zielverzeichnis sind dasselbe.", "Source and destination folder are the same."},
    {destinationInSource,    "Findings",       "t7",   "Das Zielverzeichnis liegt im Quellverzeichnis.", "The destination folder lies inside the source folder."},
    {sourceInDestination,    "Findings",       "t8",   "Das Quellverzeichnis liegt im Zielverzeichnis.", "The source folder lies inside the destination folder."},
    {noSource,               "Findings",       "t9",   "Es ist kein Quellverzeichnis angegeben.", "No source folder is given."},
    {noDestination,          "Findings",       "t10",  "Für diese Aktion ist kein Zielverzeichnis angegeben.", "No destination folder is given for this action."},
    {noMonitored,            "Findings",       "t11",  "Es ist kein überwachter Ordner angegeben.", "No monitored folder is given."},
    {folderSilent,           "Findings",       "t12",  "Der Ordner %1 antwortet nicht.", "The folder %1 does not answer."},
    {sourceNotWritable,      "Findings",       "t15",  "In das Quellverzeichnis kann nicht geschrieben werden.", "The source folder cannot be written to."},
    {datePassed,             "Findings",       "t13",  "Der gewählte Zeitpunkt ist schon vorbei.", "The chosen date and time have already passed."},
    {intervalZero,           "Findings",       "t14",  "Zwischen zwei Läufen muss mindestens eine Minute liegen.", "There must be at least one minute between two runs."},
    {unstorable,             "Findings",       "t20",  "Der Text enthält Zeichen, die die Auftragsdatei nicht speichern kann: %1", "The text contains characters that the job file cannot hold: %1"},
    {badRegEx,               "Findings",       "t21",  "Kein gültiger regulärer Ausdruck", "Not a valid regular expression"},
    {browseButton,           "Window",         "t0",   "Durchsuchen", "Browse"},
    {newFolderButton,        "Window",         "t1",   "Neuen Ordner anlegen", "Create a new folder"},
    {showPassword,           "Window",         "t2",   "Passwort zeigen", "Show password"},
    {hidePassword,           "Window",         "t3",   "Passwort verbergen", "Hide password"},
    {noHelp,                 "Window",         "t4",   "Für dieses Programm ist keine Hilfe vorhanden.", "This program has no help."},
    {helpMissing,            "Window",         "t5",   "Die Hilfedatei wurde nicht gefunden:", "The help file was not found:"},
    {jobActive,              "Window",         "t6",   "Der Auftrag ist aktiv", "The job is active"},
    {jobInactive,            "Window",         "t7",   "Der Auftrag ist inaktiv", "The job is inactive"},
    {pageApplies,            "Window",         "t8",   "Diese Seite ändert, was der Auftrag tut", "This page changes what the job does"},
    {pageDoesNotApply,       "Window",         "t9",   "Diese Seite gilt für diesen Modus nicht", "This page does not apply to this mode"},
});
// clang-format on

consteval bool followTheEnumeration() {
    for (std::size_t i = 0; i < rows.size(); ++i) {
        if (rows[i].id != static_cast<TextId>(i)) return false;
    }
    return rows.size() == static_cast<std::size_t>(count);
}
static_assert(followTheEnumeration(), "each text has one row, in the order of TextId");

/// A language file tells its language by no key; the first day of the week does.
bool isGerman(const modIniHandler& language) {
    const std::string monday = language.ReadLanguageText("Weekdays", "t0", "Montag", textSize);
    return monday == "Montag";
}

}  // namespace

std::string textOf(const modIniHandler& language, TextId id) {
    const TextRow& row = rows.at(static_cast<std::size_t>(id));
    const bool inEnglish = !row.english.empty() && !isGerman(language);
    return language.ReadLanguageText(row.section, row.key, inEnglish ? row.english : row.german, textSize);
}

std::string textOf(const modIniHandler& language, TextId id, std::initializer_list<std::string_view> values) {
    const std::string text = textOf(language, id);
    std::string filled;
    for (std::size_t i = 0; i < text.size(); ++i) {
        // One pass, so that a value which reads "%1" itself stays as it is.
        const std::size_t place =
            text[i] == '%' && i + 1 < text.size() ? static_cast<std::size_t>(text[i + 1] - '1') : values.size();
        if (place < values.size()) {
            filled += values.begin()[place];
            ++i;
        } else {
            filled += text[i];
        }
    }
    return filled;
}

}  // namespace kestedit
