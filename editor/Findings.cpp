#include "editor/Findings.h"

#include <array>

namespace kestedit {

namespace {

constexpr std::string_view findingsSection = "Findings";
constexpr std::string_view placeholder = "%1";

struct KeyedText {
    std::string_view key;
    std::string_view german;
};

KeyedText textOf(PathFinding finding) {
    switch (finding) {
        case PathFinding::noSource:
            return {"t9", "Es ist kein Quellverzeichnis angegeben."};
        case PathFinding::sourceMissing:
            return {"t0", "Das Quellverzeichnis existiert nicht."};
        case PathFinding::sourceUnreadable:
            return {"t1", "Das Quellverzeichnis kann nicht gelesen werden."};
        case PathFinding::noDestination:
            return {"t10", "Für diese Aktion ist kein Zielverzeichnis angegeben."};
        case PathFinding::destinationMissing:
            return {"t2", "Das Zielverzeichnis existiert nicht."};
        case PathFinding::destinationNotWritable:
            return {"t3", "In das Zielverzeichnis kann nicht geschrieben werden."};
        case PathFinding::sameFolder:
            return {"t6", "Quell- und Zielverzeichnis sind dasselbe."};
        case PathFinding::destinationInSource:
            return {"t7", "Das Zielverzeichnis liegt im Quellverzeichnis."};
        case PathFinding::sourceInDestination:
            return {"t8", "Das Quellverzeichnis liegt im Zielverzeichnis."};
        case PathFinding::noMonitored:
            return {"t11", "Es ist kein überwachter Ordner angegeben."};
        case PathFinding::monitoredMissing:
            return {"t4", "Der überwachte Ordner existiert nicht."};
        case PathFinding::monitoredUnreadable:
            return {"t5", "Der überwachte Ordner kann nicht gelesen werden."};
        case PathFinding::sourceNotWritable:
            return {"t15", "In das Quellverzeichnis kann nicht geschrieben werden."};
        case PathFinding::sourceNoAnswer:
        case PathFinding::destinationNoAnswer:
        case PathFinding::monitoredNoAnswer:
            return {"t12", "Der Ordner %1 antwortet nicht."};
    }
    return {};
}

KeyedText textOf(ScheduleFinding finding) {
    switch (finding) {
        case ScheduleFinding::datePassed:
            return {"t13", "Der gewählte Zeitpunkt ist schon vorbei."};
        case ScheduleFinding::intervalZero:
            return {"t14", "Zwischen zwei Läufen muss mindestens eine Minute liegen."};
    }
    return {};
}

std::string readFinding(const modIniHandler& texts, KeyedText text) {
    return texts.ReadLanguageText(findingsSection, text.key, text.german, textSize);
}

// The folder that a finding about a missing answer names.
std::string silentFolder(const FormModel& form, PathFinding finding) {
    if (finding == PathFinding::sourceNoAnswer) return form.dxSource.text();
    if (finding == PathFinding::destinationNoAnswer) return form.dxDest.text();
    return form.dxMonitorPath.text();
}

std::string filledIn(std::string message, std::string_view text) {
    const auto place = message.find(placeholder);
    if (place != std::string::npos) message.replace(place, placeholder.size(), text);
    return message;
}

}  // namespace

std::string FindingText(const modIniHandler& texts, PathFinding finding, const FormModel& form) {
    return filledIn(readFinding(texts, textOf(finding)), silentFolder(form, finding));
}

std::string FindingText(const modIniHandler& texts, ScheduleFinding finding) {
    return readFinding(texts, textOf(finding));
}

bool IsStorablePath(const CodePage& page, std::string_view path) {
    return page.encode(path) && path.find_first_of("\r\n") == std::string_view::npos;
}

std::string UnstorableText(const modIniHandler& texts, std::string_view text) {
    return filledIn(
        readFinding(texts, {"t20", "Der Text enthält Zeichen, die die Auftragsdatei nicht speichern kann: %1"}), text);
}

}  // namespace kestedit
