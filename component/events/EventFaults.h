// What is wrong with an event or a question that a driver was given in words.
#pragma once

#include <stdexcept>

namespace kestedit {

/// No event, control or property has this name.
class UnknownName : public std::invalid_argument {
  public:
    using std::invalid_argument::invalid_argument;
};

/// A word that is missing, too many, or not of the kind that stands in its place.
class WrongWord : public std::invalid_argument {
  public:
    using std::invalid_argument::invalid_argument;
};

}  // namespace kestedit
