// A script line that could not be understood or carried out.
#pragma once

#include <stdexcept>
#include <string>

namespace kestedit {

class ScriptFailure : public std::runtime_error {
  public:
    /// `line` counts from 1. The text is the reason alone; whoever reports it names script and line.
    ScriptFailure(int line, const std::string& reason) : std::runtime_error(reason), line_(line) {}

    [[nodiscard]] int line() const { return line_; }

  private:
    int line_;
};

}  // namespace kestedit
