// Prints the job file's keys as the table of docs/job-file.md, out of the rows that load and save jobs.
//   jobFormat                   prints the table
//   jobFormat --write FILE      puts it between the two marks of FILE
//   jobFormat --check FILE      fails when it is not what stands there
#include "persistence/JobFormat.h"

#include <algorithm>
#include <array>
#include <exception>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <stdexcept>
#include <string>
#include <string_view>

#include "form/FormModel.h"

namespace {

using namespace kestedit;
using namespace std::string_view_literals;

constexpr std::string_view begins = "<!-- table begins -->\n";
constexpr std::string_view ends = "<!-- table ends -->\n";

struct Note {
    std::string_view key;
    std::string_view text;
};

// What a reader of the format should know beside the form of the value.
// clang-format off
constexpr auto notes = std::to_array<Note>({
    {"Name",              "name of the job, which is also the name of its file"},
    {"From",              "source folder"},
    {"To",                "destination folder"},
    {"SubFolder",         "off also writes `DelEFol=0`"},
    {"FStruct",           "`1` whenever the action is 5 (synchronise)"},
    {"HFiles",            "excluded from the job"},
    {"HFiles1",           "set at the destination"},
    {"HFiles2",           "set at the source"},
    {"AttrSetSource",     "no key when neither is chosen"},
    {"AttrSetDest",       "no key when neither is chosen"},
    {"DestZipFolder",     "key and control differ in name"},
    {"DestZipPwd",        "password for extracting, in plain text"},
    {"ZipDelDeCompBin",   "the same value as `ZipDelDeComp`; not loaded"},
    {"ExecMaxSec",        "seconds"},
    {"NoHidenFolderScan", "spelled with one \"d\""},
    {"RunState",          "a saved job has not run; not loaded"},
    {"ZipPwd",            "password for compressing, in plain text"},
    {"Action",            "copy, move, delete, compress, extract, synchronise"},
    {"FileAgeDays",       "not loaded"},
    {"ExtOpt",            "`0` when `Ext` is empty"},
    {"FileOpt",           "`0` when `FileSize` is empty"},
    {"PickRenamer",       "position in the list of rename schemes"},
    {"Comment",           "255 bytes are loaded"},
    {"NodeIcon",          "picture of the action in the navigation list; not loaded"},
    {"ZipGrade",          "none, low, normal, high"},
    {"FileAgeDiff",       "days, hours and minutes in one"},
    {"EFSelect",          "position in the list of conditions"},
    {"MonDelay",          "seconds"},
    {"MonWatch",          "position in the list of changes"},
    {"Interval",          "days, hours and minutes in one"},
    {"Counter",           "the same value as `Interval`; not loaded"},
    {"IntervalDate",      "today when the editor is empty"},
    {"IntervalTime",      "the text `1` becomes `00:00:00`"},
    {"IntState",          "the day before the save, when the time of day has passed; not loaded"},
    {"IntWeekDay",        "position in the list of week days"},
    {"IntMonthDay",       "day of the month"},
});
// clang-format on

std::string positions(const FormModel& form, const JobRow& row) {
    return "0 to " + std::to_string(form.group(row.control).size() - 1);
}

std::string valueOf(const FormModel& form, const JobRow& row) {
    using enum ValueForm;
    switch (row.form) {
        case state:
        case emptyFolders:
        case folderStructure:
        case writtenOnly:
            return "state";
        case index:
        case actionIndex:
        case extensionIndex:
        case sizeIndex:
            return positions(form, row);
        case optionalIndex:
            return positions(form, row) + ", or no key";
        case text:
        case password:
        case path:
            return "text";
        case jobName:
            return "text without blanks at its ends";
        case comment:
            return "text, `^` for a line break";
        case number:
            return "number";
        case freeSpace:
            return "number, at least 2000";
        case date:
        case startDate:
        case intervalDate:
            return "date";
        case intervalState:
            return "date, or no key";
        case timeOfDay:
            return "time";
        case ageMinutes:
        case interval:
        case intervalCopy:
            return "minutes";
        case listPosition:
            return "position from 0, -1 for none";
        case renameScheme:
            return "1 to 3, or no key";
        case compressionLevel:
            return "1 to 4";
        case weekDay:
            return "1 to 7, 0 for none";
        case nodeIcon:
            return "image number or empty";
        case zero:
            return "always 0";
        case empty:
            return "always empty";
    }
    throw std::logic_error("a value form without words");
}

std::string controlsOf(const JobRow& row) {
    if (row.form == ValueForm::ageMinutes) return "`dxAge`, `dxAgeHours`, `dxAgeMinutes`";
    if (row.form == ValueForm::interval || row.form == ValueForm::intervalCopy)
        return "`dxDays`, `dxHours`, `dxMinutes`";
    return row.control.empty() ? "" : '`' + std::string(row.control) + '`';
}

std::string table() {
    const FormModel form;
    std::string lines = "| key | control | value | note |\n|---|---|---|---|\n";
    for (const JobRow& row : jobFormat()) {
        const auto note = std::ranges::find(notes, row.key, &Note::key);
        for (const std::string& cell : {'`' + std::string(row.key) + '`', controlsOf(row), valueOf(form, row),
                                        std::string(note == notes.end() ? ""sv : note->text)})
            lines.append("| ").append(cell).append(" ");
        lines += "|\n";
    }
    for (const Note& note : notes) {
        if (std::ranges::find(jobFormat(), note.key, &JobRow::key) == jobFormat().end())
            throw std::logic_error("the job file has no key " + std::string(note.key));
    }
    return lines;
}

std::string contentOf(const std::filesystem::path& file) {
    std::ifstream stream(file, std::ios::binary);
    if (!stream) throw std::runtime_error("cannot read " + file.string());
    return {std::istreambuf_iterator<char>(stream), {}};
}

/// `document` with the table between its marks.
std::string filledIn(const std::string& document) {
    const std::size_t head = document.find(begins);
    const std::size_t tail = document.find(ends);
    if (head == std::string::npos || tail == std::string::npos || tail < head)
        throw std::runtime_error("the marks of the table are missing");
    return document.substr(0, head) + std::string(begins) + table() + document.substr(tail);
}

int run(std::string_view verb, const char* file) {
    if (!file) {
        std::cout << table();
        return 0;
    }
    const std::string document = contentOf(file);
    const std::string wanted = filledIn(document);
    if (verb == "--check" && document != wanted) {
        std::cerr << file << " is not what the table of the job format says; --write brings it up to date\n";
        return 1;
    }
    if (verb == "--write") std::ofstream(file, std::ios::binary) << wanted;
    return 0;
}

}  // namespace

int main(int argc, char* argv[]) {
    const std::string_view verb = argc > 1 ? argv[1] : "";
    if (argc != 1 && (argc != 3 || (verb != "--check" && verb != "--write"))) {
        std::cerr << "jobFormat [--check|--write FILE]\n";
        return 2;
    }
    try {
        return run(verb, argc == 3 ? argv[2] : nullptr);
    } catch (const std::exception& failure) {
        std::cerr << "jobFormat: " << failure.what() << '\n';
        return 1;
    }
}
