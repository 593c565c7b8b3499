#include "window/empty_hint.h"

#include <QEvent>

namespace lanterra {

namespace {
constexpr int gap = 16; ///< around the text, in pixels of 96 dpi
}

EmptyHint::EmptyHint(QAbstractItemView &itemView, const QString &text)
    : QLabel(text, itemView.viewport()), view(itemView) {
    setTextFormat(Qt::PlainText);
    setAlignment(Qt::AlignCenter);
    setWordWrap(true);
    setProperty("hint", true);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    view.viewport()->installEventFilter(this);
    connect(view.model(), &QAbstractItemModel::modelReset, this, &EmptyHint::Follow);
    connect(view.model(), &QAbstractItemModel::rowsInserted, this, &EmptyHint::Follow);
    connect(view.model(), &QAbstractItemModel::rowsRemoved, this, &EmptyHint::Follow);
    Follow();
}

bool EmptyHint::eventFilter(QObject *watched, QEvent *event) {
    if (event->type() == QEvent::Resize)
        setGeometry(view.viewport()->rect().adjusted(gap, gap, -gap, -gap));
    return QLabel::eventFilter(watched, event);
}

void EmptyHint::Follow() { setVisible(view.model()->rowCount() == 0); }

} // namespace lanterra
