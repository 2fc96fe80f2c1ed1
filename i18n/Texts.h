// The texts that the editor asks for while it runs: messages, findings, titles of its dialogs, words of its window.
#pragma once

#include <cstdint>
#include <initializer_list>
#include <span>
#include <string>
#include <string_view>

#include "persistence/modIniHandler.h"
#include "platform/Export.h"

namespace kestedit {

/// In the order of the table in Texts.cpp, which gives section and key of each.
enum class TextId : std::uint8_t {
    // saving
    nameMissing,
    nameMissingEdited,
    nameIsFileName,
    nameWanted,
    useLastName,
    nameTitle,
    jobExists,
    overwriteNew,
    overwriteEdited,
    saveTitle,
    // titles of the folder choosers
    chooseSource,
    chooseDestination,
    chooseMonitored,
    // dates of another format
    dateFormatChanged,
    keepDates,
    datesReset,
    checkDates,
    dateTitle,
    // the dialog for a new folder
    newFolder,
    createButton,
    cancelButton,
    folderExists,
    newMonitoredFolder,
    newFolderIn,
    // findings about paths
    sourceMissing,
    sourceUnreadable,
    destinationMissing,
    destinationNotWritable,
    monitoredMissing,
    monitoredUnreadable,
    sameFolder,
    destinationInSource,
    sourceInDestination,
    noSource,
    noDestination,
    noMonitored,
    folderSilent,
    sourceNotWritable,
    // findings about the schedule
    datePassed,
    intervalZero,
    // findings about a field
    unstorable,
    badRegEx,
    unreadValue,
    notesRoom,
    notesTooLong,
    notesCut,
    sizeMissing,
    datesReversed,
    ageZero,
    timeMissing,
    monthDayMissing,
    programMissing,
    outOfRange,
    freeSpaceRaised,
    dateMissing,
    relativePath,
    droppedFromExtensions,
    droppedFromRenamer,
    droppedFromFileName,
    droppedFromFolderMatch,
    textMissing,
    nameInvalid,
    noDestinationToMonitor,
    actionNotInView,
    scheduleNotInView,
    nameMissingHere,
    numberRange,
    noDateKept,
    noDate,
    noTimeKept,
    noTime,
    storedNoTime,
    // characters outside the code page
    unstorablePassword,
    storeAsUtf8,
    olderRunners,
    readAsOthers,
    unconvertible,
    askedWhenLeft,
    notesRoomUtf8,
    notesTooLongUtf8,
    regExNeedsParenthesis,
    regExSpareParenthesis,
    regExNeedsBracket,
    regExNothingToRepeat,
    regExOpenBackslash,
    regExTooLong,
    regExTooDeep,
    jobUnreadable,
    passwordReadable,
    nameHidden,
    nameControl,
    // a job that another program has changed as well
    changedByOther,
    keepOwnValues,
    // the window
    browseButton,
    newFolderButton,
    showPassword,
    hidePassword,
    noHelp,
    helpMissing,
    helpNotOpened,
    manualFile,
    // what a node's sign means
    jobActive,
    jobInactive,
    pageApplies,
    pageDoesNotApply,
    // captions that the first language files had no text for
    allFiles,
    count
};

/// A text of the language file and what stands in for it.
struct KeyedText {
    std::string_view section;
    std::string_view key;
    std::string_view german;
    std::string_view english = {};  ///< empty: every language file has had the text from the start
};
[[nodiscard]] std::string textOf(const modIniHandler& language, const KeyedText& text);

/// The text as the language file has it. One that the file lacks comes in German when the file is German or missing,
/// otherwise in English (those that came with the first language files have a German form only).
[[nodiscard]] KESTEDIT_EXPORT std::string textOf(const modIniHandler& language, TextId id);

/// The same with `values` in the places of "%1", "%2" and so on.
[[nodiscard]] KESTEDIT_EXPORT std::string textOf(const modIniHandler& language, TextId id,
                                                 std::initializer_list<std::string_view> values);
[[nodiscard]] KESTEDIT_EXPORT std::string textOf(const modIniHandler& language, TextId id,
                                                 std::span<const std::string> values);

}  // namespace kestedit
