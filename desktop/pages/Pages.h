// The pages of the form, each made from its .ui file.
#pragma once

#include <QWidget>
#include <memory>
#include <span>
#include <string_view>

namespace kestedit {

struct PageForm {
    std::string_view frame;  ///< name of the page's frame, and of its .ui file
    std::unique_ptr<QWidget> (*build)();
};

/// In page order.
[[nodiscard]] std::span<const PageForm> pageForms();

}  // namespace kestedit
