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
    std::string_view english = {};
};

using enum TextId;

// "Autrag" and "Autrages" are meant so. Two rows share a key where one question has two built-in wordings, and the name
// that is missing from an edited job is looked up under the key of the last line, deliberately. Story:
// tests/golden/names.golden.
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
    {newMonitoredFolder,     "dlgNewFolder",   "t3",   "Überwachter Ordner"},
    {newFolderIn,            "dlgNewFolder",   "t4",   "Wird angelegt in: %1", "Will be created in: %1"},
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
    {badRegEx,               "Findings",       "t21",  "Der reguläre Ausdruck hat einen Fehler an Stelle %1, wo \"%2\" endet.", "The regular expression has a mistake at character %1, where \"%2\" ends."},
    {unreadValue,             "Findings",       "t22",  "Der Auftrag enthält hier \"%1\", was dieser Editor nicht zeigen kann. Es bleibt, bis Sie etwas anderes wählen.", "The job holds \"%1\" here, which this editor cannot show. It stays until you choose something else."},
    {notesRoom,               "Findings",       "t23",  "Noch frei: %1 von 255 Zeichen", "Room left: %1 of 255 characters"},
    {notesTooLong,            "Findings",       "t24",  "%1 Zeichen zu viel: was über 255 hinausgeht, wird gespeichert, aber nicht wieder gezeigt.", "%1 characters too many: what goes beyond 255 is stored, but not shown again."},
    {notesCut,                "Findings",       "t25",  "Die gespeicherten Notizen sind länger als hier gezeigt. Der Rest bleibt, solange Sie die Notizen nicht ändern.", "The stored notes are longer than shown here. The rest stays as long as you do not change the notes."},
    {sizeMissing,             "Findings",       "t26",  "Ohne eine Grösse werden Dateien jeder Grösse genommen.", "Without a size, files of any size are taken."},
    {datesReversed,           "Findings",       "t27",  "Das erste Datum liegt hinter dem letzten: keine Datei passt.", "The first date lies behind the last one: no file matches."},
    {ageZero,                 "Findings",       "t28",  "Das Alter ist 0. Geben Sie mindestens eine Minute an.", "The age is 0. Give at least one minute."},
    {timeMissing,             "Findings",       "t29",  "Es ist keine Uhrzeit angegeben.", "No time of day is given."},
    {monthDayMissing,         "Findings",       "t30",  "Es ist kein Tag des Monats angegeben.", "No day of the month is given."},
    {programMissing,          "Findings",       "t31",  "Es ist kein Programm angegeben.", "No program is given."},
    {outOfRange,              "Findings",       "t32",  "%1 liegt nicht zwischen %2 und %3.", "%1 does not lie between %2 and %3."},
    {freeSpaceRaised,         "Findings",       "t33",  "Weniger als %1 MB lassen sich nicht speichern: gespeichert werden %1.", "Less than %1 MB cannot be stored: %1 are saved."},
    {dateMissing,             "Findings",       "t34",  "Ohne ein Datum wird das heutige gespeichert.", "Without a date, that of today is saved."},
    {relativePath,            "Findings",       "t35",  "Dieser Pfad beginnt nicht bei der Wurzel. Wohin er führt, hängt von dem Programm ab, das den Auftrag ausführt.", "This path does not begin at the root. Where it leads depends on the program that runs the job."},
    {droppedFromExtensions,   "Findings",       "t36",  "Weggelassen: %1   Erlaubt sind die Buchstaben a bis z, ä, ö, ü, Ziffern, Stern, Punkt, Komma und Leerzeichen.", "Left out: %1   Allowed are the letters a to z, ä, ö, ü, digits, asterisk, dot, comma and blank."},
    {droppedFromRenamer,      "Findings",       "t37",  "Weggelassen: %1   Erlaubt sind die Buchstaben a bis z, ä, ö, ü, Ziffern, Leerzeichen, Unterstrich und Bindestrich.", "Left out: %1   Allowed are the letters a to z, ä, ö, ü, digits, blank, underscore and hyphen."},
    {droppedFromFileName,     "Findings",       "t38",  "Weggelassen: %1   Ein Muster darf diese Zeichen nicht enthalten, ein regulärer Ausdruck schon.", "Left out: %1   A pattern cannot hold these characters, a regular expression can."},
    {droppedFromFolderMatch,  "Findings",       "t39",  "Weggelassen: %1   Ein Muster darf diese Zeichen nicht enthalten, ein regulärer Ausdruck schon. Beim Speichern wird das gemeldet, bis \"%2\" einmal angekreuzt war.", "Left out: %1   A pattern cannot hold these characters, a regular expression can. Saving reports this until \"%2\" has been ticked once."},
    {textMissing,             "Findings",       "t40",  "Diese Auswahl braucht hier eine Angabe.", "This choice needs an entry here."},
    {nameInvalid,             "Findings",       "t41",  "Im Namen dürfen diese Zeichen nicht stehen: %1", "A name cannot hold these characters: %1"},
    {noDestinationToMonitor,  "Findings",       "t42",  "Ein Auftrag, der löscht, hat kein Zielverzeichnis, das überwacht werden könnte.", "A job that deletes has no destination folder that could be monitored."},
    {actionNotInView,         "Findings",       "t43",  "Der Modus dieses Auftrags ist \"%1\". Diese Ansicht kann ihn nicht zeigen.", "The mode of this job is \"%1\". This view cannot show it."},
    {scheduleNotInView,       "Findings",       "t44",  "Dieser Auftrag läuft so: %1. Diese Ansicht kann das nicht zeigen.", "This job runs like this: %1. This view cannot show it."},
    {nameMissingHere,         "Findings",       "t45",  "Ein Auftrag braucht einen Namen.", "A job needs a name."},
    {numberRange,            "Findings",       "t120", "Erlaubt sind Zahlen von %1 bis %2.", "Numbers from %1 to %2 are allowed."},
    {noDateKept,             "Findings",       "t100", "„%1“ ist kein Datum wie %2. Der Auftrag behält %3.", "\"%1\" is not a date such as %2. The job keeps %3."},
    {noDate,                 "Findings",       "t101", "„%1“ ist kein Datum wie %2. Der Auftrag hat hier keines.", "\"%1\" is not a date such as %2. The job has none here."},
    {noTimeKept,             "Findings",       "t102", "„%1“ ist keine Uhrzeit wie %2. Der Auftrag behält %3.", "\"%1\" is not a time such as %2. The job keeps %3."},
    {noTime,                 "Findings",       "t103", "„%1“ ist keine Uhrzeit wie %2. Der Auftrag hat hier keine.", "\"%1\" is not a time such as %2. The job has none here."},
    {storedNoTime,           "Findings",       "t104", "„%1“ ist keine Uhrzeit wie %2, steht aber so im Auftrag und bleibt, bis Sie eine eingeben.", "\"%1\" is not a time such as %2. It stands in the job and stays until you type one."},
    {unstorablePassword,      "Findings",       "t200", "Das Passwort enthält Zeichen, die die Auftragsdatei nicht speichern kann.", "The password contains characters that the job file cannot hold."},
    {storeAsUtf8,             "Findings",       "t201", "Soll dieser Auftrag ab jetzt als UTF-8 gespeichert werden? Er kann dann alle Zeichen enthalten.", "Store this job as UTF-8 from now on? It can then hold all characters."},
    {olderRunners,            "Findings",       "t202", "Ältere Programme, die Aufträge ausführen, können solche Namen vielleicht nicht lesen.", "Older job runners may not be able to read such names."},
    {readAsOthers,            "Findings",       "t203", "Beim nächsten Öffnen würden diese Zeichen als andere gelesen: %1", "When the job is opened again, these characters would be read as others: %1"},
    {unconvertible,           "Findings",       "t204", "Der Auftrag kann nicht als UTF-8 gespeichert werden, denn in Zeile %1 stehen Bytes, die keine Zeichen sind.", "The job cannot be stored as UTF-8, because line %1 holds bytes that are no characters."},
    {askedWhenLeft,           "Findings",       "t205", "Wenn Sie das Feld verlassen und neu eingeben, werden Sie wieder gefragt, ob der Auftrag alle Zeichen enthalten soll.", "Leave the field and type again to be asked once more whether the job is to hold all characters."},
    {notesRoomUtf8,            "Findings",       "t206", "Noch frei: %1 von 255 Bytes. Ein Zeichen braucht eines bis vier.", "Room left: %1 of 255 bytes. A character takes one to four."},
    {notesTooLongUtf8,         "Findings",       "t207", "%1 Bytes zu viel: was über 255 hinausgeht, wird gespeichert, aber nicht wieder gezeigt.", "%1 bytes too many: what goes beyond 255 is stored, but not shown again."},
    {regExNeedsParenthesis,  "Findings",       "t140", "Im regulären Ausdruck fehlt am Ende (Stelle %1) eine Klammer \")\".", "The regular expression lacks a \")\" at its end (character %1)."},
    {regExSpareParenthesis,  "Findings",       "t141", "Im regulären Ausdruck schliesst die Klammer \")\" an Stelle %1 keine andere.", "In the regular expression the \")\" at character %1 has no \"(\" before it."},
    {regExNeedsBracket,      "Findings",       "t142", "Im regulären Ausdruck fehlt am Ende (Stelle %1) eine Klammer \"]\".", "The regular expression lacks a \"]\" at its end (character %1)."},
    {regExNothingToRepeat,   "Findings",       "t143", "Im regulären Ausdruck gibt es an Stelle %1, wo \"%2\" endet, nichts zu wiederholen.", "The regular expression has nothing to repeat at character %1, where \"%2\" ends."},
    {regExOpenBackslash,     "Findings",       "t144", "Im regulären Ausdruck fehlt das Zeichen hinter dem \"\\\" am Ende (Stelle %1).", "The regular expression lacks the character behind the \"\\\" at its end (character %1)."},
    {regExTooLong,           "Findings",       "t145", "Der reguläre Ausdruck wird an Stelle %1 zu lang oder wiederholt zu viel.", "The regular expression gets too long, or repeats too much, at character %1."},
    {regExTooDeep,           "Findings",       "t146", "Der reguläre Ausdruck hat an Stelle %1 zu viele Klammern ineinander.", "The regular expression has too many parentheses inside one another at character %1."},
    {jobUnreadable,          "Findings",       "t182", "Der Auftrag konnte nicht gelesen werden, die Felder zeigen Vorgaben: %1", "The job could not be read, the fields show defaults: %1"},
    {passwordReadable,       "Findings",       "t183", "Das Passwort steht lesbar in der Auftragsdatei. Eine neue Datei kann nur ihr Besitzer lesen, eine vorhandene behält ihre Rechte.", "The password is stored readable in the job file. Only its owner can read a new file; an existing one keeps its permissions."},
    {nameHidden,               "Findings",       "t184", "Ein Name mit einem Punkt am Anfang wäre eine versteckte Datei.", "A name with a dot in front would be a hidden file."},
    {nameControl,              "Findings",       "t185", "Der Name enthält ein Steuerzeichen, zum Beispiel einen Tabulator.", "The name holds a control character, such as a tab."},
    {changedByOther,         "Findings",       "t180", "Ein anderes Programm hat diesen Auftrag seit dem Öffnen geändert, auch dort, wo Sie ihn geändert haben:", "Another program has changed this job since it was opened, also where you have changed it:"},
    {keepOwnValues,          "Findings",       "t181", "Ihre Werte behalten? Nein behält die des anderen Programms.", "Keep your own values? No keeps those of the other program."},
    {browseButton,           "Window",         "t0",   "Durchsuchen", "Browse"},
    {newFolderButton,        "Window",         "t1",   "Neuen Ordner anlegen", "Create a new folder"},
    {showPassword,           "Window",         "t2",   "Passwort zeigen", "Show password"},
    {hidePassword,           "Window",         "t3",   "Passwort verbergen", "Hide password"},
    {noHelp,                 "Window",         "t4",   "Für dieses Programm ist keine Hilfe vorhanden.", "This program has no help."},
    {helpMissing,            "Window",         "t5",   "Die Hilfedatei wurde nicht gefunden:", "The help file was not found:"},
    {helpNotOpened,          "Window",         "t160", "Die Hilfe lässt sich hier nicht öffnen. Sie steht in der Datei:", "The help cannot be opened here. It stands in the file:"},
    {manualFile,             "Window",         "t161", "manual.de.html", "manual.html"},
    {jobActive,              "Window",         "t6",   "Der Auftrag ist aktiv", "The job is active"},
    {jobInactive,            "Window",         "t7",   "Der Auftrag ist inaktiv", "The job is inactive"},
    {pageApplies,            "Window",         "t8",   "Diese Seite ändert, was der Auftrag tut", "This page changes what the job does"},
    {pageDoesNotApply,       "Window",         "t9",   "Diese Seite gilt für diesen Modus nicht", "This page does not apply to this mode"},
    {allFiles,               "Window",         "t120", "Alle Dateien", "All files"},
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

/// One pass, so that a value which reads "%1" itself stays as it is.
template <typename Values>
std::string filledIn(std::string_view text, const Values& values) {
    std::string filled;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const bool marked = text[i] == '%' && i + 1 < text.size() && text[i + 1] >= '1';
        const std::size_t number = marked ? static_cast<std::size_t>(text[i + 1] - '1') : values.size();
        if (number < values.size()) {
            filled += *(values.begin() + static_cast<std::ptrdiff_t>(number));
            ++i;
        } else {
            filled += text[i];
        }
    }
    return filled;
}

}  // namespace

std::string textOf(const modIniHandler& language, TextId id) {
    const TextRow& row = rows.at(static_cast<std::size_t>(id));
    return textOf(language, {row.section, row.key, row.german, row.english});
}

std::string textOf(const modIniHandler& language, const KeyedText& text) {
    const bool inEnglish = !text.english.empty() && !isGerman(language);
    return language.ReadLanguageText(text.section, text.key, inEnglish ? text.english : text.german, textSize);
}

std::string textOf(const modIniHandler& language, TextId id, std::initializer_list<std::string_view> values) {
    return filledIn(textOf(language, id), values);
}

std::string textOf(const modIniHandler& language, TextId id, std::span<const std::string> values) {
    return filledIn(textOf(language, id), values);
}

}  // namespace kestedit
