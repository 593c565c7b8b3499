#pragma once

#include "project/entry_handlers.h"

#include <QHash>
#include <QObject>

class QWidget;

namespace lanterra {

/// Brings the focus and the Return key of a project's boxes to their handlers.
class EntryEvents : public QObject {
    Q_OBJECT

public:
    /// Watches the widgets of the pane that bear the names of the record's text boxes. All must outlive this;
    /// the pane owns it.
    EntryEvents(ProjectRecord &projectRecord, EntryHandlers &entryHandlers, QWidget &pane);

    /// Watches one more box, of another form. Both must outlive this.
    void Watch(QWidget &widget, TextBox &box);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void GotFocus(TextBox &box);
    void LostFocus(const TextBox &box);

    ProjectRecord &record;
    EntryHandlers &entry;
    QHash<QObject *, TextBox *> boxes;
};

} // namespace lanterra
