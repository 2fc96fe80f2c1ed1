#include <boost/property_tree/ini_parser.hpp>
#include <sstream>

#include "bench/peers/Peer.h"

namespace bench {

namespace {

using Tree = boost::property_tree::ptree;

Tree::path_type path(const Name& name) {
    return {name.section + '\n' + name.key, '\n'};  // a separator that no name holds
}

std::size_t read(const std::filesystem::path& file, std::span<const Name> names) {
    Tree tree;
    boost::property_tree::read_ini(file.string(), tree);
    std::size_t sum = 0;
    for (const Name& name : names)
        sum += tree.get<std::string>(path(name)).size();
    return sum;
}

void change(const std::filesystem::path& file, std::span<const Name> names, const std::string& value, bool sync) {
    Tree tree;
    boost::property_tree::read_ini(file.string(), tree);
    for (const Name& name : names)
        tree.put(path(name), value);
    std::ostringstream bytes;
    boost::property_tree::write_ini(bytes, tree);
    replaceFile(file, bytes.view(), sync);
}

}  // namespace

const Peer boostTree{"Boost", read, change};

}  // namespace bench
