#include "editor/Findings.h"

#include "i18n/Texts.h"

namespace kestedit {

namespace {

TextId idOf(PathFinding finding) {
    switch (finding) {
        case PathFinding::noSource:
            return TextId::noSource;
        case PathFinding::sourceMissing:
            return TextId::sourceMissing;
        case PathFinding::sourceUnreadable:
            return TextId::sourceUnreadable;
        case PathFinding::noDestination:
            return TextId::noDestination;
        case PathFinding::destinationMissing:
            return TextId::destinationMissing;
        case PathFinding::destinationNotWritable:
            return TextId::destinationNotWritable;
        case PathFinding::sameFolder:
            return TextId::sameFolder;
        case PathFinding::destinationInSource:
            return TextId::destinationInSource;
        case PathFinding::sourceInDestination:
            return TextId::sourceInDestination;
        case PathFinding::noMonitored:
            return TextId::noMonitored;
        case PathFinding::monitoredMissing:
            return TextId::monitoredMissing;
        case PathFinding::monitoredUnreadable:
            return TextId::monitoredUnreadable;
        case PathFinding::sourceNotWritable:
            return TextId::sourceNotWritable;
        case PathFinding::sourceNoAnswer:
        case PathFinding::destinationNoAnswer:
        case PathFinding::monitoredNoAnswer:
            return TextId::folderSilent;
    }
    return TextId::count;
}

TextId idOf(ScheduleFinding finding) {
    switch (finding) {
        case ScheduleFinding::datePassed:
            return TextId::datePassed;
        case ScheduleFinding::intervalZero:
            return TextId::intervalZero;
    }
    return TextId::count;
}

// The folder that a finding about a missing answer names.
std::string silentFolder(const FormModel& form, PathFinding finding) {
    if (finding == PathFinding::sourceNoAnswer) return form.dxSource.text();
    if (finding == PathFinding::destinationNoAnswer) return form.dxDest.text();
    return form.dxMonitorPath.text();
}

}  // namespace

std::string FindingText(const modIniHandler& texts, PathFinding finding, const FormModel& form) {
    return textOf(texts, idOf(finding), {silentFolder(form, finding)});
}

std::string FindingText(const modIniHandler& texts, ScheduleFinding finding) {
    return textOf(texts, idOf(finding));
}

}  // namespace kestedit
