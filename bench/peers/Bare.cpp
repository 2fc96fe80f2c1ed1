// The floor: only what the work itself asks for, for files of exactly the form that the benchmark writes. Names in
// other spelling, blanks, quotes, comments, a second section of the same name: it knows none of them.
#include <array>
#include <fcntl.h>
#include <stdexcept>
#include <sys/stat.h>
#include <sys/uio.h>
#include <unistd.h>
#include <unordered_map>
#include <vector>

#include "bench/peers/Peer.h"

namespace bench {

namespace {

void require(bool good, const std::filesystem::path& file) {
    if (!good) throw std::runtime_error("cannot work on " + file.string());
}

std::string readFile(const std::filesystem::path& file) {
    const int number = ::open(file.c_str(), O_RDONLY | O_CLOEXEC);
    struct stat status {};
    require(number >= 0 && ::fstat(number, &status) == 0, file);
    std::string bytes(static_cast<std::size_t>(status.st_size), '\0');
    require(::read(number, bytes.data(), bytes.size()) == status.st_size, file);
    ::close(number);
    return bytes;
}

void replaceByPieces(const std::filesystem::path& file, std::span<iovec> pieces, bool sync) {
    const std::filesystem::path temporary = file.string() + ".tmp";
    const int number = ::open(temporary.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0644);
    require(number >= 0, temporary);
    std::size_t size = 0;
    for (const iovec& piece : pieces)
        size += piece.iov_len;
    require(::writev(number, pieces.data(), static_cast<int>(pieces.size())) == static_cast<ssize_t>(size), temporary);
    if (sync) ::fsync(number);
    ::close(number);
    require(::rename(temporary.c_str(), file.c_str()) == 0, file);
    if (!sync) return;
    const int folder = ::open(file.parent_path().c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    ::fsync(folder);
    ::close(folder);
}

iovec piece(std::string_view bytes) {
    return {const_cast<char*>(bytes.data()), bytes.size()};
}

/// Finds the line of each name by looking for its text from the place of the one before.
class Search {
  public:
    explicit Search(std::string_view bytes) : bytes_(bytes) {}

    /// The value of `name`, up to its line's end.
    std::string_view find(const Name& name) {
        if (section_ != name.section) {
            place_ = bytes_.find(std::string("[").append(name.section).append("]"), place_);
            section_ = name.section;
        }
        place_ = bytes_.find(std::string("\n").append(name.key).append("="), place_) + name.key.size() + 2;
        return bytes_.substr(place_, bytes_.find('\n', place_) - place_);
    }

  private:
    std::string_view bytes_;
    std::string_view section_;
    std::size_t place_ = 0;
};

std::size_t read(const std::filesystem::path& file, std::span<const Name> names) {
    const std::string bytes = readFile(file);
    Search search(bytes);
    std::size_t sum = 0;
    for (const Name& name : names)
        sum += std::string(search.find(name)).size();
    return sum;
}

void change(const std::filesystem::path& file, std::span<const Name> names, const std::string& value, bool sync) {
    const std::string bytes = readFile(file);
    Search search(bytes);
    std::vector<iovec> pieces;
    const char* copied = bytes.data();
    for (const Name& name : names) {
        const std::string_view old = search.find(name);
        pieces.push_back(piece({copied, static_cast<std::size_t>(old.data() - copied)}));
        pieces.push_back(piece(value));
        copied = old.data() + old.size();
    }
    pieces.push_back(piece({copied, static_cast<std::size_t>(bytes.data() + bytes.size() - copied)}));
    replaceByPieces(file, pieces, sync);
}

}  // namespace

void replaceFile(const std::filesystem::path& file, std::string_view bytes, bool sync) {
    std::array pieces{piece(bytes)};
    replaceByPieces(file, pieces, sync);
}

const Peer bare{"bare program", read, change};

}  // namespace bench
