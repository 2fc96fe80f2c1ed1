#include <gtest/gtest.h>
#include <map>
#include <random>
#include <string>
#include <sys/stat.h>
#include <utility>
#include <vector>

#include "platform/IniStore.h"
#include "tests/platform/TemporaryFolder.h"

namespace kestedit::test {
namespace {

using namespace std::string_literals;

class IniWrite : public testing::Test {
  protected:
    /// The bytes of a file that held `before` once `key` of section "S" has been written.
    std::string written(std::string_view before, std::string_view key, std::string_view value,
                        std::string_view section = "S") {
        const auto file = folder_.file("write.ini", before);
        const std::error_code error = store_.write(file, section, key, value);
        return error ? error.message() : bytesOf(file);
    }

    TemporaryFolder folder_;
    IniStore store_;
};

TEST_F(IniWrite, anExistingKeyKeepsItsPlaceAndSpelling) {
    EXPECT_EQ(written("; c\r\n[s] x\r\n a\r\nKey = old \t\r\n;Key=0\r\nz=1", "KEY", "new"),
              "; c\r\n[s] x\r\n a\r\nKey = new\r\n;Key=0\r\nz=1");
    EXPECT_EQ(written("[S]\nk=1\nk=2\n[S]\nk=3\n", "k", "new"), "[S]\nk=new\nk=2\n[S]\nk=3\n");
    EXPECT_EQ(written("[S]\nk=\n", "k", "new"), "[S]\nk=new\n");
    EXPECT_EQ(written("[S]\nk=\"old\"", "k", ""), "[S]\nk=\n");
    EXPECT_EQ(written("[S]\nk=1\r\r\n", "k", "2"), "[S]\nk=2\r\n");
    EXPECT_EQ(written("[S]\nk=same\n", "k", "same"), "[S]\nk=same\n");
}

TEST_F(IniWrite, aNewKeyGoesBehindItsSectionsLastKey) {
    EXPECT_EQ(written("[S]\r\na=1\r\n\r\n; comment\r\n[T]\r\n", "b", "2"),
              "[S]\r\na=1\r\nb=2\r\n\r\n; comment\r\n[T]\r\n");
    EXPECT_EQ(written("[S]\n; comment\n\n[T]\n", "b", "2"), "[S]\nb=2\n; comment\n\n[T]\n");
    EXPECT_EQ(written("[S]\na=1\nword\n=0\n", "b", "2"), "[S]\na=1\nb=2\nword\n=0\n");
    EXPECT_EQ(written("[S]\n[S]\nk=1\n", "b", "2"), "[S]\nb=2\n[S]\nk=1\n");
}

TEST_F(IniWrite, aNewSectionGoesToTheEnd) {
    EXPECT_EQ(written("[T]\r\na=1\r\n\r\n", "k", "1"), "[T]\r\na=1\r\n\r\n[S]\r\nk=1\r\n");
    EXPECT_EQ(written("", "k", "1"), "[S]\r\nk=1\r\n");
    EXPECT_EQ(written("\xEF\xBB\xBF", "k", "1"), "\xEF\xBB\xBF[S]\r\nk=1\r\n");
    EXPECT_EQ(written("x=1", "x", "2", ""), "x=1\r\n[]\r\nx=2\r\n");
}

TEST_F(IniWrite, lineEndsFollowTheFile) {
    EXPECT_EQ(written("[S]", "k", "1"), "[S]\r\nk=1\r\n") << "a file without any line end";
    EXPECT_EQ(written("[S]\na=1", "k", "1"), "[S]\na=1\nk=1\n");
    EXPECT_EQ(written("[T]\n[S]\r\na=1", "k", "1"), "[T]\n[S]\r\na=1\r\nk=1\r\n");
    EXPECT_EQ(written("[T]\na=1\r", "k", "1"), "[T]\na=1\r\n[S]\nk=1\n");
}

TEST_F(IniWrite, noTextForgesALine) {
    EXPECT_EQ(written("[S]\nk=1\n", "k", "a\r\n[T]\nb=\0c"s), "[S]\nk=a  [T] b= c\n");
    const std::string before = "[S]\nk=1\n";
    for (const std::string key : {"", " ", "a=b", ";a", "[a", "a\nb", "a\rb", "a\r"}) {
        EXPECT_EQ(written(before, key, "x"), "Invalid argument") << key;
    }
    EXPECT_EQ(written(before, "a\0b"s, "x"), "Invalid argument");
    for (const std::string section : {"a]", "a\n[b", "a\r"}) {
        EXPECT_EQ(written(before, "k", "x", section), "Invalid argument") << section;
        EXPECT_THROW(store_.edit(folder_.path() / "write.ini", false).set(section, "k", "x"), std::invalid_argument);
    }
    EXPECT_EQ(store_.lastError(), std::errc::invalid_argument);
    EXPECT_EQ(bytesOf(folder_.path() / "write.ini"), before);
    EXPECT_EQ(written(before, " a ", "x", "\tS "), "[S]\nk=1\na=x\n");
}

TEST_F(IniWrite, textsAreWrittenInTheCodePage) {
    EXPECT_EQ(written("[S]\n\xC4=1\nraw=\x81\n", "\u00E4", "\u20AC\u00FC"), "[S]\n\xC4=\x80\xFC\nraw=\x81\n");
    EXPECT_EQ(written("[S]\n", "k", "\u0436"), "Invalid or incomplete multibyte or wide character");
    EXPECT_EQ(written("[S]\nk=1\n", "k", "\U0010FE81"), "[S]\nk=\x81\n") << "an undefined byte goes back as it came";
    try {
        store_.edit(folder_.path() / "new.ini", true).set("S", "k", "a\u0436");
        FAIL();
    } catch (const std::invalid_argument& error) {
        EXPECT_STREQ(error.what(), "key \"k\" of section \"S\": code page 1252 cannot hold \"a\u0436\"");
    }
}

TEST_F(IniWrite, anEditAppliesManyKeysAtOnce) {
    const auto file = folder_.file("edit.ini", "[A]\na=1\nb=2\n\n[B]\nx=1");
    auto edit = store_.edit(file, false);
    edit.set("B", "x", "first");
    edit.set("C", "New", "1");
    edit.set("B", "y", "2");
    edit.set("a", "c", "3");
    edit.set("A", "a", "one");
    edit.set("c", "NEW", "2");
    edit.set("C", "other", "");
    edit.set("B", "x", "last");
    edit.stage(StagedFile::Permissions::keep).commit();
    EXPECT_EQ(bytesOf(file), "[A]\na=one\nb=2\nc=3\n\n[B]\nx=last\ny=2\n[C]\nNew=2\nother=\n");

    auto empty = store_.edit(file, true);
    empty.set("Job", "k", "v");
    empty.stage(StagedFile::Permissions::keep).commit();
    EXPECT_EQ(bytesOf(file), "[Job]\r\nk=v\r\n");
}

TEST_F(IniWrite, anEmptyValueBeforeANewKeyAtTheEndOfTheFile) {
    auto edit = store_.edit(folder_.file("edit.ini", "[S]\nk="), false);
    edit.set("S", "new", "2");
    edit.set("S", "k", "1");
    edit.stage(StagedFile::Permissions::keep).commit();
    EXPECT_EQ(bytesOf(folder_.path() / "edit.ini"), "[S]\nk=1\nnew=2\n");
}

TEST_F(IniWrite, aLostWriteIsRecordedAndLeavesNothing) {
    const auto file = folder_.file("readonly.ini", "[S]\nk=1\n");
    std::filesystem::permissions(file, std::filesystem::perms{0444});
    EXPECT_EQ(store_.write(file, "S", "k", "2"), std::errc::permission_denied);
    EXPECT_EQ(store_.lastError(), std::errc::permission_denied);
    EXPECT_EQ(bytesOf(file), "[S]\nk=1\n");
    EXPECT_EQ(store_.write(folder_.path() / "none" / "a.ini", "S", "k", "2"), std::errc::no_such_file_or_directory);
    EXPECT_EQ(store_.write(folder_.path(), "S", "k", "2"), std::errc::is_a_directory);
    EXPECT_EQ(folder_.names(), std::vector<std::string>{"readonly.ini"});
    EXPECT_FALSE(store_.write(folder_.path() / "new.ini", "S", "k", "2"));
    EXPECT_FALSE(store_.lastError());
}

/// The rules once more, as slow and as plain as can be: a list of lines.
class LineModel {
  public:
    explicit LineModel(const std::string& text) {
        std::size_t begin = 0;
        for (std::size_t end = text.find('\n'); end != std::string::npos; end = text.find('\n', begin)) {
            lines_.push_back(text.substr(begin, end + 1 - begin));
            begin = end + 1;
        }
    }

    void set(const std::string& section, const std::string& key, const std::string& value) {
        const std::string keyLine = key + '=' + value + '\n';
        std::size_t line = 0;
        while (line < lines_.size() && lines_[line] != '[' + section + "]\n")
            ++line;
        if (line == lines_.size()) lines_.push_back('[' + section + "]\n");
        std::size_t insertion = ++line;
        for (; line < lines_.size() && lines_[line].front() != '['; ++line) {
            if (lines_[line].front() == ';' || lines_[line].find('=') == std::string::npos) continue;
            if (lines_[line].starts_with(key + '=')) {
                lines_[line] = keyLine;
                return;
            }
            insertion = line + 1;
        }
        lines_.insert(lines_.begin() + static_cast<std::ptrdiff_t>(insertion), keyLine);
    }

    [[nodiscard]] std::string text() const {
        std::string text;
        for (const std::string& line : lines_)
            text += line;
        return text;
    }

  private:
    std::vector<std::string> lines_;
};

TEST_F(IniWrite, randomEditsMatchAPlainModelOfLines) {
    std::mt19937 random(20261121);
    const auto upTo = [&](unsigned limit) { return static_cast<unsigned>(random() % limit); };
    for (int round = 0; round < 200; ++round) {
        std::string text;
        for (unsigned lines = upTo(40); lines > 0; --lines) {
            const std::string number = std::to_string(upTo(4));
            const std::string kinds[] = {"[S" + number + "]",   "; k" + number + "=0",      "", "word",
                                         "k" + number + "=old", "x" + number + "=\x81 kept"};
            text += kinds[upTo(6)] + '\n';
        }
        text = text.empty() ? "\n" : text;
        const auto file = folder_.file("random.ini", text);
        // The model has no blank lines' trimming, no quotes and no case: lines are made so that none of it matters.
        LineModel model(text);
        auto edit = store_.edit(file, false);
        std::map<std::pair<std::string, std::string>, std::string> last;
        for (unsigned sets = upTo(12); sets > 0; --sets) {
            const std::string section = "S" + std::to_string(upTo(6));
            const std::string key = "k" + std::to_string(upTo(6));
            const std::string value = std::string(upTo(5), 'v');
            edit.set(section, key, value);
            model.set(section, key, value);
            last[{section, key}] = value;
        }
        edit.stage(StagedFile::Permissions::keep).commit();
        ASSERT_EQ(bytesOf(file), model.text()) << "round " << round << ", before:\n" << text;
        const auto snapshot = store_.open(file);
        for (const auto& [names, value] : last)
            ASSERT_EQ(snapshot.value(names.first, names.second), value);
    }
}

}  // namespace
}  // namespace kestedit::test
