// Room that the toolkit forgets when it measures a caption with an underlined letter.
#pragma once

#include <QFontMetrics>
#include <QString>

namespace kestedit {

/// A caption is measured as one text, kerning and all, but drawn in three pieces when one of its letters is underlined:
/// "&Text" comes out wider than measured, and its end would be cut off. Pixels that are missing.
[[nodiscard]] int mnemonicSlack(const QFontMetrics& metrics, const QString& caption);

}  // namespace kestedit
