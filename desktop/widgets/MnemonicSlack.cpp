#include "desktop/widgets/MnemonicSlack.h"

#include <algorithm>

namespace kestedit {

int mnemonicSlack(const QFontMetrics& metrics, const QString& caption) {
    const qsizetype mark = caption.indexOf(u'&');
    if (mark < 0 || mark + 1 >= caption.size() || caption[mark + 1] == u'&') return 0;
    const QString before = caption.left(mark);
    const QString letter = caption.mid(mark + 1, 1);
    const QString behind = caption.mid(mark + 2);
    const int pieces =
        metrics.horizontalAdvance(before) + metrics.horizontalAdvance(letter) + metrics.horizontalAdvance(behind);
    return std::max(0, pieces - metrics.horizontalAdvance(before + letter + behind)) + 1;
}

}  // namespace kestedit
