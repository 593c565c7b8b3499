#include "window/top_engines_dialog.h"

#include "ui_top_engines_dialog.h"
#include "window/form_binder.h"

#include <QApplication>
#include <QEvent>
#include <QVBoxLayout>
#include <QWindow>

namespace lanterra {

TopEnginesDialog::TopEnginesDialog(TopEnginesForm &topEnginesForm, QWidget *parent)
    : QDialog(parent), form(topEnginesForm), ui(std::make_unique<Ui::TopEnginesDialog>()) {
    ui->setupUi(this);
    AddPanels();
    FormBinder(*this).Bind(form);
    connect(&form, &TopEnginesForm::VisibleChanged, this, &TopEnginesDialog::Follow);
    connect(ui->cmdSubmit, &QPushButton::clicked, this, [this] { form.cmdSubmit_Click(); });
    connect(ui->cmdStop, &QPushButton::clicked, this, [this] { form.cmdStop_Click(); });
    connect(ui->SSCommand1, &QPushButton::clicked, this, [this] { form.SSCommand1_Click(); });
}

TopEnginesDialog::~TopEnginesDialog() = default;

// The main window owns it, which the desktop is told when it is shown, so that it stays in front. Qt would
// block an owned window together with its owner, though, and one box of the main window comes back until an
// engine is selected here.
void TopEnginesDialog::Follow(bool visible) {
    if (windowHandle()) // there is none before the first showing, which finds the owner by itself
        windowHandle()->setTransientParent(parentWidget()->windowHandle());
    setVisible(visible);
    if (visible)
        windowHandle()->setTransientParent(nullptr);
}

// Whoever works here while a box is up would not find it again below this.
void TopEnginesDialog::changeEvent(QEvent *event) {
    QDialog::changeEvent(event);
    QWidget *const box = QApplication::activeModalWidget();
    if (event->type() == QEvent::ActivationChange && isActiveWindow() && box)
        box->raise();
}

// One line a panel of the form's status bar.
void TopEnginesDialog::AddPanels() {
    auto *const lines = new QVBoxLayout(ui->StatusBar1);
    lines->setContentsMargins({});
    QList<QLabel *> labels;
    for (int panel = 0; panel < form.StatusBar1.PanelCount(); ++panel) {
        auto *const label = new QLabel(form.StatusBar1.PanelText(panel));
        label->setTextFormat(Qt::PlainText);
        label->setWordWrap(true); // the address in front can be long, and how it went stands at the end
        lines->addWidget(label);
        labels << label;
    }
    connect(&form.StatusBar1, &StatusBar::PanelTextChanged, ui->StatusBar1,
            [labels](int panel, const QString &text) { labels.at(panel)->setText(text); });
    connect(&form.StatusBar1, &StatusBar::PanelTextChanged, ui->statusHint, &QLabel::hide);
}

} // namespace lanterra
