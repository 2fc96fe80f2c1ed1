// Any file opened as a job: the form loads, and what it saves comes back from the file unchanged, in its page and as
// UTF-8.
#include "editor/frmEdit.h"
#include "persistence/modSaveValues.h"
#include "tests/fuzz/Fuzzing.h"

namespace {

using namespace kestedit;
using test::require;

class NoUser final : public Prompts {
  public:
    Answer showMessage(const MessageBox&) override { return Answer::ok; }
    std::optional<std::string> chooseFolder(const FolderRequest&) override { return std::nullopt; }
    std::optional<std::string> chooseFile(const FileRequest&) override { return std::nullopt; }
    void runNewFolder(dlgNewFolder&) override {}
};

constexpr LocalTime noon{Date{std::chrono::year{2026}, std::chrono::month{11}, std::chrono::day{21}},
                         std::chrono::hours{12}};

/// The job that the form saves right after it has loaded `bytes`.
std::string savedAfterLoading(const std::string& bytes, bool asUtf8 = false) {
    static LocalFileSystem files;
    static const DateFormat dates("dd.MM.yyyy");
    static NoUser user;
    static UserSettingsFile settings("/proc/no-such-file");
    IniStore ini;
    FixedClock clock(noon);
    Platform platform{ini, files, clock, dates, user, settings};
    ComponentValues values;
    values.Mode = "Edit";
    values.ViewLevel = "4";
    values.JobFile = test::fileOf(bytes);
    values.JobDir = "/proc/self/fd";
    values.UseBuiltInTexts = true;
    frmEdit form(values, platform);
    form.Load();

    FileContent content = FileContent::read(values.JobFile);
    const std::string_view whole = content.bytes();
    IniText file(CodePage{}.recognise({&whole, 1}), std::move(content));
    if (std::optional<IniText> converted = asUtf8 ? file.inUtf8() : std::nullopt) file = std::move(*converted);
    IniEdit job(std::make_shared<const IniText>(std::move(file)));
    for (const JobLine& line : SaveValues(form, dates, noon))
        job.set(line.section, line.key, line.value);
    if (!job.readsBack(CodePage{})) return bytes;  // a save would refuse it
    return test::bytesOf(job);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    // Loading fills dates that are empty, so it takes one round until a job has settled.
    const std::string settled = savedAfterLoading(savedAfterLoading({reinterpret_cast<const char*>(data), size}));
    require(savedAfterLoading(settled) == settled, "a saved job comes back unchanged");
    const std::string converted = savedAfterLoading(settled, true);
    require(savedAfterLoading(converted) == converted, "a job that became UTF-8 stays so");
    return 0;
}
