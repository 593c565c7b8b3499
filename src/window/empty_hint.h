#pragma once

#include <QAbstractItemView>
#include <QLabel>

namespace lanterra {

/// Says in the middle of an empty list or table what to do next. The view owns it.
class EmptyHint : public QLabel {
    Q_OBJECT

public:
    /// The view must have its model.
    EmptyHint(QAbstractItemView &itemView, const QString &text);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void Follow();

    QAbstractItemView &view;
};

} // namespace lanterra
