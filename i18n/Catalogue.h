// The entries of the form's text catalogue that the code asks for by name.
#pragma once

#include <cstddef>

namespace kestedit::catalogue {

// Where an entry stands is an agreement with language files and with the built-in texts: never change a number.
//
// Language files bring more entries than are asked for. Not shown, and why:
//   2, 3            opening and closing an extended configuration: the editor shows all it has
//   4, 5            folder structure and empty folders: their boxes have the same text as caption
//   13, 14, 15, 17  ways with existing files: the options and their heading have the same texts as captions
//   18, 19, 20      further ways with existing files, which a job cannot store
//   50, 51, 63      what a summary of the job would say: there is none
//   64, 65, 66, 78  the heading, action, label and option of these texts have them as captions
//   81, 82          a check of the paths that is under way or has found nothing: findings alone are told
enum Entry : std::size_t {
    newJob = 0,
    editJob = 1,
    firstLevel = 6,          ///< four compression levels
    firstRenameScheme = 10,  ///< three schemes
    replaceIf = 16,
    invalidName = 21,
    filteredOut = 22,
    pleaseCheck = 23,
    invalidRenamer = 24,
    invalidFileName = 25,
    invalidExt = 26,
    minutes = 27,
    hours = 28,
    days = 29,
    day = 30,
    hour = 31,
    minute = 32,
    fileWildcards = 33,
    folderWildcards = 34,
    fileRegEx = 35,
    folderRegEx = 36,
    invalidFolderMatch = 37,
    nameAndNotes = 38,
    mode = 39,
    monitoring = 40,
    findFolders = 41,
    findFiles = 42,
    extensions = 43,
    fileSize = 44,
    fileDate = 45,
    attributes = 46,
    compression = 47,
    destinationPage = 48,
    comments = 49,
    firstReplaceIf = 52,  ///< eight conditions
    execution = 60,
    weekDay = 61,
    monthDay = 62,
    noOptions = 67,
    synchroniseOneWay = 68,
    synchroniseBothWays = 69,
    source = 70,
    destination = 71,
    keepExisting = 72,
    keepWhileComparing = 73,
    synchronisation = 74,
    destinationNode = 75,
    onlyCompareSynchronised = 76,
    onlyCompare = 77,
    validationTitle = 79,
    paths = 80,
    programTitle = 83,
    programFilter = 84
};

}  // namespace kestedit::catalogue
