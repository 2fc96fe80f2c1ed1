#include <chrono>
#include <gtest/gtest.h>
#include <map>
#include <vector>

#include "editor/rules/paths.h"
#include "tests/editor/rules/RuleForm.h"
#include "tests/platform/TemporaryFolder.h"

namespace kestedit {

namespace {

namespace fs = std::filesystem;
using std::chrono::milliseconds;
using test::RuleForm;
using Finding = std::optional<PathFinding>;

/// The machine's own file system, with folders that have rights or delays which a test cannot give to a real one.
class OddFolders : public FileSystem {
  public:
    std::map<fs::path, FolderStatus> odd;
    milliseconds delay{0};
    mutable std::vector<milliseconds> granted;

    bool FileExists(const fs::path& file) const override { return local_.FileExists(file); }
    bool FolderExists(const fs::path& folder) const override { return local_.FolderExists(folder); }
    void DeleteFile(const fs::path& file) const override { local_.DeleteFile(file); }
    void CreateFolder(const fs::path& folder) const override { local_.CreateFolder(folder); }
    std::string BuildPath(std::string_view folder, std::string_view name) const override {
        return local_.BuildPath(folder, name);
    }
    std::string GetFileName(std::string_view path) const override { return local_.GetFileName(path); }
    FolderStatus inspectFolder(const fs::path& folder, milliseconds patience) const override {
        pass(patience);
        const auto found = odd.find(folder);
        return found == odd.end() ? local_.inspectFolder(folder, patience) : found->second;
    }
    fs::path resolve(const fs::path& path, milliseconds patience) const override {
        pass(patience);
        return local_.resolve(path, patience);
    }

  private:
    void pass(milliseconds patience) const {
        granted.push_back(patience);
        const auto start = std::chrono::steady_clock::now();
        while (std::chrono::steady_clock::now() - start < delay) {
        }
    }
    LocalFileSystem local_;
};

class PathRules : public testing::Test {
  protected:
    PathRules() {
        for (const char* name : {"data", "data/in", "data/in/deep", "database", "watched"}) {
            fs::create_directory(folder_.path() / name);
        }
        fs::create_directory_symlink(folder_.path() / "data/in", folder_.path() / "link");
    }
    std::string path(const std::string& name) const { return name.empty() ? name : (folder_.path() / name).string(); }
    Finding check(const std::string& source, const std::string& destination) {
        form_.dxSource.EditValue = path(source);
        form_.dxDest.EditValue = path(destination);
        return CheckPaths(form_, files_);
    }

    test::TemporaryFolder folder_;
    OddFolders files_;
    RuleForm form_;
};

TEST_F(PathRules, SourceAndDestinationAreThereAndApart) {
    struct Case {
        const char* source;
        const char* destination;
        Finding finding;
    };
    const Case cases[] = {
        {"data", "database", {}},  // a common beginning of the names is no common folder
        {"", "", PathFinding::noSource},
        {"gone", "", PathFinding::sourceMissing},
        {"data", "", PathFinding::noDestination},
        {"data", "gone", PathFinding::destinationMissing},
        {"data/in", "data/in/deep/..", PathFinding::sameFolder},
        {"data/in", "link", PathFinding::sameFolder},
        {"data", "data/in/deep", PathFinding::destinationInSource},
        {"data/", "link", PathFinding::destinationInSource},
        {"data/in", "data", PathFinding::sourceInDestination},
        {"link/deep", "data/", PathFinding::sourceInDestination},
    };
    for (const Case& one : cases) {
        EXPECT_EQ(check(one.source, one.destination), one.finding) << one.source << " -> " << one.destination;
    }
    EXPECT_EQ(check("data", "data/gone"), PathFinding::destinationMissing);
    form_.dxSource.EditValue = "/";
    EXPECT_EQ(CheckPaths(form_, files_), PathFinding::destinationMissing);
    form_.dxDest.EditValue = path("data");
    EXPECT_EQ(CheckPaths(form_, files_), PathFinding::destinationInSource);
}

TEST_F(PathRules, OnlyFoldersThatTheJobUsesCount) {
    form_.act(Action::remove);
    EXPECT_EQ(check("data", "data"), std::nullopt);
    form_.dxMonitorPath.EditValue = path("gone");
    form_.optMonitorPath.select(2);
    EXPECT_EQ(check("data", ""), std::nullopt);
    form_.optIntervall.select(2);
    EXPECT_EQ(check("data", ""), PathFinding::monitoredMissing);
    form_.dxMonitorPath.EditValue = path("watched");
    EXPECT_EQ(check("data", ""), std::nullopt);
    form_.optMonitorPath.select(0);
    EXPECT_EQ(check("data", ""), std::nullopt);
}

TEST_F(PathRules, RightsAreMissedWhereTheJobNeedsThem) {
    const FolderStatus readOnly{true, true, true, false};
    const FolderStatus writeOnly{true, true, false, true};
    files_.odd = {{path("data"), readOnly}};
    EXPECT_EQ(check("database", "data"), PathFinding::destinationNotWritable);

    struct Case {
        Action action;
        std::string_view option;
        bool writesAtSource;
    };
    const Case cases[] = {
        {Action::copy, "", false},
        {Action::move, "", true},
        {Action::compress, "chkZipDelComp", true},
        {Action::extract, "chkZipDelComp", false},
        {Action::extract, "chkZipDelDeComp", true},
        {Action::synchronise, "chkZipDelDeComp", false},
        {Action::synchronise, "optSyncStart(1)", true},
    };
    for (const Case& one : cases) {
        RuleForm form;
        form.act(one.action);
        if (!one.option.empty()) form.at(one.option).State = 1;
        form.dxSource.EditValue = path("data");
        form.dxDest.EditValue = path("database");
        const Finding expected = one.writesAtSource ? Finding{PathFinding::sourceNotWritable} : std::nullopt;
        EXPECT_EQ(CheckPaths(form, files_), expected) << form.SelectedAction << " " << one.option;
    }
    form_.optExist.select(2);
    form_.chkDelSourceRename.State = 1;
    EXPECT_EQ(check("data", "database"), PathFinding::sourceNotWritable);

    files_.odd = {{path("data"), writeOnly}};
    EXPECT_EQ(check("data", "database"), PathFinding::sourceUnreadable);
}

TEST_F(PathRules, SilentFolderIsReportedUnlessSomethingElseIsWrong) {
    const FolderStatus silent{false, false, false, false};
    files_.odd = {{path("dead"), silent}};
    EXPECT_EQ(check("dead", "data"), PathFinding::sourceNoAnswer);
    EXPECT_EQ(check("data", "dead"), PathFinding::destinationNoAnswer);
    EXPECT_EQ(check("dead", "gone"), PathFinding::destinationMissing);
}

TEST_F(PathRules, WholeCheckSharesTwoSeconds) {
    files_.delay = milliseconds{5};
    form_.optIntervall.select(2);
    form_.optMonitorPath.select(2);
    form_.dxMonitorPath.EditValue = path("watched");
    EXPECT_EQ(check("data", "database"), std::nullopt);
    ASSERT_EQ(files_.granted.size(), 5U);
    for (std::size_t i = 0; i < files_.granted.size(); ++i) {
        EXPECT_LE(files_.granted[i], milliseconds{2000 - 5 * static_cast<int>(i)}) << i;
        EXPECT_GE(files_.granted[i], milliseconds{0}) << i;
    }
}

}  // namespace
}  // namespace kestedit
