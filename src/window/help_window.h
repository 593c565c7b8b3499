#pragma once

#include "ports/help_viewer.h"

#include <QDialog>
#include <QStandardItemModel>
#include <memory>

namespace Ui {
class HelpWindow;
}

namespace lanterra {

/// The help in a window of its own: the contents on the left, the page on the right. A help file names its
/// index page, a Markdown file, by a path relative to itself; the contents are the links of that page.
class HelpWindow : public QDialog, public HelpViewer {
    Q_OBJECT

public:
    explicit HelpWindow(QWidget *parent);
    ~HelpWindow() override;
    Q_DISABLE_COPY_MOVE(HelpWindow)

    QString ShowIndex(const QString &helpFile) override;

private:
    void ListPages(const QString &indexPage);
    void ShowPage(const QString &file);
    void MarkPage(const QUrl &shown);

    QStandardItemModel pages;
    std::unique_ptr<Ui::HelpWindow> ui;
};

} // namespace lanterra
