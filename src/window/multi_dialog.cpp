#include "window/multi_dialog.h"

#include "ui_multi_dialog.h"
#include "window/form_binder.h"

#include <QAbstractItemDelegate>
#include <QKeyEvent>

namespace lanterra {

MultiDialog::MultiDialog(MultiForm &multiForm, QWidget *parent)
    : FormDialog(parent, [&multiForm] { multiForm.cmdCancel_Click(); }), form(multiForm),
      ui(std::make_unique<Ui::MultiDialog>()) {
    ui->setupUi(this);
    FormBinder(*this).Bind(form);
    Follow(form);
    ui->ListedURLs->installEventFilter(this);
    connect(ui->ListedURLs->selectionModel(), &QItemSelectionModel::currentChanged, this,
            [this](const QModelIndex &current) { form.ListedURLs.SetListIndex(current.row()); });
    // A line that Return ends leads to the next one. Nobody else closes an editor in this way.
    connect(
        ui->ListedURLs->itemDelegate(), &QAbstractItemDelegate::closeEditor, this,
        [this](const QWidget *, QAbstractItemDelegate::EndEditHint hint) {
            if (hint == QAbstractItemDelegate::SubmitModelCache)
                EditLine(ui->ListedURLs->currentIndex().row() + 1);
        },
        Qt::QueuedConnection);
    connect(ui->cmdOK, &QPushButton::clicked, this, [this] {
        ui->cmdOK->setFocus(); // its key leaves the focus where it is, and a line still being typed would go
        form.cmdOK_Click();
    });
    connect(ui->cmdCancel, &QPushButton::clicked, this, [this] { form.cmdCancel_Click(); });
}

MultiDialog::~MultiDialog() = default;

// Behind the last line, which is empty, there is none.
void MultiDialog::EditLine(int row) {
    if (row < form.ListedURLs.rowCount())
        ui->ListedURLs->setCurrentIndex(form.ListedURLs.index(row)); // which opens its editor
}

bool MultiDialog::eventFilter(QObject *watched, QEvent *event) {
    if (event->type() != QEvent::KeyPress)
        return FormDialog::eventFilter(watched, event);
    const int key = static_cast<QKeyEvent *>(event)->key();
    const int row = ui->ListedURLs->currentIndex().row();
    if (key == Qt::Key_Delete) {
        form.ListedURLs.RemoveItem(row);
        return true;
    }
    if (key == Qt::Key_Return || key == Qt::Key_Enter) {
        if (ui->ListedURLs->hasFocus()) // and not its editor, which hands its own Return on
            ui->ListedURLs->edit(ui->ListedURLs->currentIndex());
        return true;
    }
    return FormDialog::eventFilter(watched, event);
}

} // namespace lanterra
