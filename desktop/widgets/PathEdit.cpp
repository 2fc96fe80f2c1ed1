#include "desktop/widgets/PathEdit.h"

namespace kestedit {

PathEdit::PathEdit(QWidget* parent)
    : ButtonedEdit(parent), browse_(addButton("field-browse")), newFolder_(addButton("field-new-folder")) {
    connect(&browse_, &QToolButton::clicked, this, [this] { emit buttonPressed(0); });
    connect(&newFolder_, &QToolButton::clicked, this, [this] { emit buttonPressed(1); });
}

void PathEdit::setButtonTexts(const QString& browse, const QString& newFolder) {
    browse_.setToolTip(browse);
    newFolder_.setToolTip(newFolder);
}

}  // namespace kestedit
