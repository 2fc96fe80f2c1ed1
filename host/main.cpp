#include <csignal>
#include <iostream>

#include "host/Program.h"

int main(int argc, char** argv) {
    // A reader that goes away and a limit of file sizes are failed writes and not the end: a save that is under way
    // must come to its own end.
    std::signal(SIGPIPE, SIG_IGN);
    std::signal(SIGXFSZ, SIG_IGN);
    return static_cast<int>(kestedit::runProgram(argc, argv, std::cout, std::cerr));
}
