#include "persistence/JobMerge.h"

#include <algorithm>
#include <array>
#include <set>
#include <string_view>
#include <utility>

namespace kestedit {

namespace {

/// A key that no control of its own stands for.
struct Follower {
    std::string_view key;
    std::string_view source;  ///< the key that it is made from; empty: only runners change it
};

constexpr std::array followers{
    Follower{"ZipDelDeCompBin", "ZipDelDeComp"},
    Follower{"RunState", ""},
    Follower{"FileAgeDays", ""},
    Follower{"NodeIcon", "Action"},
    Follower{"Counter", "Interval"},
    Follower{"IntState", "IntervalTime"},
};

std::optional<std::string_view> sourceOf(std::string_view key) {
    const auto* const row = std::ranges::find(followers, key, &Follower::key);
    return row == followers.end() ? std::nullopt : std::optional{row->source};
}

/// What a reader of the file gets: a save puts quotes round what would lose its blanks or quotes otherwise.
std::string_view asRead(std::string_view written) {
    const bool quoted = written.size() > 1 && written.front() == written.back() && written.front() == '"';
    return quoted ? written.substr(1, written.size() - 2) : written;
}

class Merge {
  public:
    Merge(const OpenedJob& opened, const JobRecord& present, Winner winner)
        : opened_(opened), present_(present), winner_(winner) {}

    JobMerge of(std::vector<JobLine> mine) {
        for (const JobLine& line : mine)
            if (line.section == jobSection && !sourceOf(line.key)) decide(line);
        for (const JobLine& line : mine) {
            const auto source = sourceOf(line.key);
            if (source && theyChanged(line.key) && !edited_.contains(*source)) theirs_.insert(line.key);
        }
        std::erase_if(mine,
                      [&](const JobLine& line) { return line.section == jobSection && theirs_.contains(line.key); });
        return {std::move(mine), std::move(conflicts_)};
    }

  private:
    void decide(const JobLine& line) {
        const bool edited = iChanged(line);
        // A new name is the file's name as well, which no answer to a question about options may take away.
        if (edited && line.key == "Name") return void(edited_.insert(line.key));
        if (theyChanged(line.key) && !(edited && stands(line))) {
            theirs_.insert(line.key);
        } else if (edited) {
            edited_.insert(line.key);
        }
    }

    /// Whether the user's value stands where both have changed it.
    bool stands(const JobLine& line) {
        const std::optional<std::string> theirs = present_.field(line.key);
        if (theirs == asRead(line.value)) return true;
        conflicts_.push_back({&*std::ranges::find(jobFormat(), line.key, &JobRow::key), theirs});
        return winner_ == Winner::mine;
    }

    [[nodiscard]] bool theyChanged(std::string_view key) const {
        return present_.field(key) != opened_.stored.field(key);
    }

    [[nodiscard]] bool iChanged(const JobLine& line) const {
        const auto before = std::ranges::find(opened_.untouched, line.key, &JobLine::key);
        return before == opened_.untouched.end() || before->value != line.value;
    }

    const OpenedJob& opened_;
    const JobRecord& present_;
    Winner winner_;
    std::vector<BothChanged> conflicts_;
    std::set<std::string_view> edited_;  // keys whose new value is the user's
    std::set<std::string_view> theirs_;  // keys that keep what the file holds now
};

}  // namespace

JobMerge MergeJob(std::vector<JobLine> mine, const OpenedJob& opened, const JobRecord& present, Winner winner) {
    if (!present.isJob()) return {std::move(mine), {}};
    return Merge(opened, present, winner).of(std::move(mine));
}

}  // namespace kestedit
