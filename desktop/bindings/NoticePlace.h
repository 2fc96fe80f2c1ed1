// Where on a page the notice of a field stands.
#pragma once

#include <QLatin1String>
#include <QWidget>

#include "desktop/widgets/NoticeLabel.h"

namespace kestedit {

/// The name of a notice is that of the widget it belongs to, and this behind it.
inline constexpr QLatin1String noticeSuffix{"_notice"};

/// Set on a widget of a page: the sibling below which its notice stands, when what else changes the notice stands
/// between them. What the user clicks must not move from under the pointer.
inline constexpr const char* noticeBelowProperty = "noticeBelow";

/// Puts `notice` into the page, over the whole width, below the row or grid row that `widget` stands in, so that it
/// moves nothing but what is below. False when `widget` stands in no layout.
bool placeNoticeBelow(const QWidget& widget, NoticeLabel& notice);

/// The same inside of `frame`, below its heading.
bool placeNoticeInside(const QWidget& frame, NoticeLabel& notice);

}  // namespace kestedit
