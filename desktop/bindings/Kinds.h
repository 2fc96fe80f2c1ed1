// The bindings by the kind of control; each throws std::logic_error for a widget of another kind.
#pragma once

#include <memory>
#include <stdexcept>

#include "desktop/bindings/Binding.h"

namespace kestedit {

using MakeBinding = std::unique_ptr<Binding>(EditorControl& control, QWidget& widget, EventGate& gate);

MakeBinding bindFrame;
MakeBinding bindLabel;
MakeBinding bindCommand;
MakeBinding bindPicture;
MakeBinding bindNodeList;
MakeBinding bindCheck;
MakeBinding bindOption;
MakeBinding bindText;
MakeBinding bindPassword;
MakeBinding bindMemo;
MakeBinding bindPath;
MakeBinding bindPick;
MakeBinding bindNumber;
MakeBinding bindSpin;
MakeBinding bindDate;
MakeBinding bindTime;

/// `widget` as the kind that its control needs.
template <typename Widget>
Widget& widgetAs(QWidget& widget) {
    if (auto* const right = qobject_cast<Widget*>(&widget)) return *right;
    throw std::logic_error(widget.objectName().toStdString() + " is a widget of the wrong kind");
}

}  // namespace kestedit
