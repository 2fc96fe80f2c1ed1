#include "i18n/modMessages.h"

#include <algorithm>
#include <array>
#include <stdexcept>
#include <string_view>

#include "form/FormModel.h"
#include "i18n/Catalogue.h"

namespace kestedit {

namespace {

// By their place in the catalogue. Spelling, the repeated words and the blank behind entry 14 are meant.
constexpr std::array<std::string_view, builtInTexts> germanTexts{
    // window title
    "Neuer Auftrag",
    "Auftrag bearbeiten",
    // extended configuration
    "Erweiterte Konfiguration öffnen",
    "Erweiterte Konfiguration schliessen",
    // folders
    "Ordnerstruktur beibehalten",
    "Lösche leere Ordner",
    // 6: compression levels
    "Keine",
    "Gering",
    "Normal",
    "Hoch",
    // 10: rename schemes
    "Aufsteigende Zahl",
    "Datum und Uhrzeit",
    "Globale Benutzer ID",
    // 13: existing files
    "Keine",
    "Quelldatei umbenennen ",
    "Dateien immer überschreiben",
    "Existierende Dateien ersetzen wenn...",
    "Ersetzen",
    "Nicht überschreiben",
    "Ersetzen falls neuer",
    "Vorhandene Dateien in Zip durch neuere ersetzen",
    // 21: findings when saving
    "Ungültige Zeichen im Auftragsnamen.",
    "Die Zeichen wurden herausgefiltert.",
    "Bitte überprüfen Sie Ihre Eingaben.",
    "Ungültige Zeichen im Feld zur Umbenennung vorhandener Dateien.",
    "Ungültige Zeichen im Feld zur Dateinamensuche.",
    "Ungültige Zeichen im Feld für Dateiendungen.",
    // 27: units
    "Minuten",
    "Stunden",
    "Tage",
    "Tag",
    "Stunde",
    "Minute",
    // 33: labels of the name patterns
    "Dateiname (*, ? erlaubt)",
    "Ordnername (*, ? erlaubt)",
    "Dateiname (RegEx)",
    "Ordnername (RegEx)",
    "Ungültige Zeichen im Feld zur Ordnersuche.",
    // 38: pages
    "Auftragsname und Notizen",
    "Modus",
    "Überwachung",
    "Ordner finden",
    "Dateien finden",
    "Dateierweiterungen",
    "Dateigrösse",
    "Dateidatum",
    "Dateiattribute",
    "Dateien komprimieren",
    "Zielverzeichnis",
    "Kommentare",
    // 50: summary notes
    "(In Unterverzeichnissen wird nicht gesucht)",
    "(Dateien werden komprimiert)",
    // 52: conditions under which an existing file is replaced
    "die Quelldatei neuer ist als die existierende Datei",
    "die Quelldatei älter ist als die existierende Datei",
    "die Quelldatei grösser ist als die existierende Datei",
    "die Quelldatei grösser und neuer ist als die existierende Datei",
    "die Quelldatei grösser und älter ist als die existierende Datei",
    "die Quelldatei kleiner ist als die existierende Datei",
    "die Quelldatei kleiner und neuer ist als die existierende Datei",
    "die Quelldatei kleiner und älter ist als die existierende Datei",
    // 60: the page of the run conditions, then day and date
    "Ausführung",
    "Tag",
    "Datum",
};
static_assert(!germanTexts.back().empty(), "a text is missing");

void requireSize(std::size_t size, std::size_t least, const char* list) {
    if (size < least) throw std::out_of_range(std::string{list} + " is too small for the built-in texts");
}

}  // namespace

void FillBuiltInTexts(std::span<std::string> catalogue, std::span<std::string> replaceIf) {
    requireSize(catalogue.size(), builtInTexts, "text catalogue");
    requireSize(replaceIf.size(), replaceIfCount, "list of replace-if texts");
    std::ranges::copy(germanTexts, catalogue.begin());
    FillReplaceIfTexts(catalogue, replaceIf);
}

void FillReplaceIfTexts(std::span<const std::string> catalogue, std::span<std::string> replaceIf) {
    requireSize(catalogue.size(), catalogue::firstReplaceIf + replaceIfCount, "text catalogue");
    requireSize(replaceIf.size(), replaceIfCount, "list of replace-if texts");
    std::ranges::copy(catalogue.subspan(catalogue::firstReplaceIf, replaceIfCount), replaceIf.begin());
}

}  // namespace kestedit
