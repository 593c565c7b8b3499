#include "park/slot_text.h"

namespace lanterra {

QString FillSlots(QStringView text, const std::function<QString(QStringView)> &valueOf) {
    QString filled;
    filled.reserve(text.size() * 2);
    qsizetype done = 0;
    for (;;) {
        const qsizetype open = text.indexOf(u"{{", done);
        const qsizetype close = open < 0 ? -1 : text.indexOf(u"}}", open);
        if (close < 0)
            break;
        filled += text.mid(done, open - done);
        filled += valueOf(text.mid(open + 2, close - open - 2));
        done = close + 2;
    }
    filled += text.mid(done);
    return filled;
}

} // namespace lanterra
