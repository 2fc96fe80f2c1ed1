// How code behind the C interface says why a call failed.
#pragma once

#include <stdexcept>
#include <string>

#include "component/kestEdit.h"

namespace kestedit {

/// Becomes the call's result and the text of kestEdit_lastError.
class CallFailed : public std::runtime_error {
  public:
    CallFailed(kestEdit_Result result, const std::string& text) : std::runtime_error(text), result_(result) {}
    [[nodiscard]] kestEdit_Result result() const { return result_; }

  private:
    kestEdit_Result result_;
};

}  // namespace kestedit
