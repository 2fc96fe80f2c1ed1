// What a screen reader calls an input.
#pragma once

#include <QString>
#include <QWidget>

namespace kestedit {

/// The caption of `input` in the page `root`: its own, that of the label whose buddy it is, or that of the first
/// visible widget that its property "labelledBy" names; in front of it the caption that "groupedBy" names.
[[nodiscard]] QString accessibleNameOf(const QWidget& input, const QWidget& root);

}  // namespace kestedit
