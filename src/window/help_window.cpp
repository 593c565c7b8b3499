#include "window/help_window.h"

#include "ui_help_window.h"
#include "window/screen_room.h"

#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>
#include <QTextCursor>
#include <QTextTable>

using namespace Qt::StringLiterals;

namespace lanterra {

namespace {

constexpr int fileRole = Qt::UserRole;
// In pixels of 96 dpi.
constexpr int indexWidth = 230;
constexpr int pageMargin = 20;
constexpr int cellPadding = 6;
constexpr int lineHeight = 125; ///< percent

QString ReadText(const QString &fileName) {
    QFile file(fileName);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

/// Markdown knows no room around a text, between its lines or in the cells of a table.
void GiveRoom(QTextDocument &page, const QBrush &line) {
    page.setDocumentMargin(pageMargin);
    QTextBlockFormat spaced;
    spaced.setLineHeight(lineHeight, QTextBlockFormat::ProportionalHeight);
    QTextCursor whole(&page);
    whole.select(QTextCursor::Document);
    whole.mergeBlockFormat(spaced);
    for (QTextFrame *const frame : page.rootFrame()->childFrames()) {
        auto *const table = qobject_cast<QTextTable *>(frame);
        if (!table)
            continue;
        QTextTableFormat format = table->format();
        format.setCellPadding(cellPadding);
        format.setCellSpacing(0);
        format.setBorderCollapse(true);
        format.setBorderStyle(QTextFrameFormat::BorderStyle_Solid);
        format.setBorderBrush(line);
        format.setTopMargin(cellPadding);
        format.setBottomMargin(cellPadding);
        table->setFormat(format);
    }
}

} // namespace

HelpWindow::HelpWindow(QWidget *parent) : QDialog(parent), ui(std::make_unique<Ui::HelpWindow>()) {
    ui->setupUi(this);
    setWindowFlag(Qt::WindowMaximizeButtonHint);
    resize(size().boundedTo(RoomOnScreen(*this)));
    ui->index->setModel(&pages);
    ui->splitter->setSizes({indexWidth, width() - indexWidth});
    ui->splitter->setStretchFactor(1, 1);
    connect(ui->index->selectionModel(), &QItemSelectionModel::currentChanged, this,
            [this](const QModelIndex &current) { ShowPage(current.data(fileRole).toString()); });
    connect(ui->page, &QTextBrowser::sourceChanged, this, &HelpWindow::MarkPage);
    connect(ui->back, &QPushButton::clicked, ui->page, &QTextBrowser::backward);
    connect(ui->forward, &QPushButton::clicked, ui->page, &QTextBrowser::forward);
    connect(ui->page, &QTextBrowser::backwardAvailable, ui->back, &QPushButton::setEnabled);
    connect(ui->page, &QTextBrowser::forwardAvailable, ui->forward, &QPushButton::setEnabled);
    connect(ui->close, &QPushButton::clicked, this, &QDialog::close);
}

HelpWindow::~HelpWindow() = default;

QString HelpWindow::ShowIndex(const QString &helpFile) {
    const QString indexName = ReadText(helpFile).trimmed();
    const QString indexPage = QFileInfo(helpFile).dir().filePath(indexName);
    if (indexName.isEmpty() || !QFileInfo::exists(indexPage))
        return tr("The help file %1 can't be read.").arg(QDir::toNativeSeparators(helpFile));
    ListPages(indexPage);
    ShowPage(indexPage);
    ui->page->setFocus(); // the list would make its first page current, which leaves the index
    show();
    raise();
    activateWindow();
    return {};
}

void HelpWindow::ListPages(const QString &indexPage) {
    static const QRegularExpression link(u"\\[([^\\]]+)\\]\\(([^)#:]+\\.md)\\)"_s);
    pages.clear();
    QRegularExpressionMatchIterator found = link.globalMatch(ReadText(indexPage));
    while (found.hasNext()) {
        const QRegularExpressionMatch match = found.next();
        auto *const item = new QStandardItem(match.captured(1));
        item->setData(QFileInfo(indexPage).dir().filePath(match.captured(2)), fileRole);
        item->setEditable(false);
        pages.appendRow(item);
    }
}

void HelpWindow::ShowPage(const QString &file) {
    if (!file.isEmpty() && file != ui->page->source().toLocalFile())
        ui->page->setSource(QUrl::fromLocalFile(file), QTextDocument::MarkdownResource);
}

void HelpWindow::MarkPage(const QUrl &shown) {
    GiveRoom(*ui->page->document(), palette().mid());
    const QModelIndexList found =
        pages.match(pages.index(0, 0), fileRole, shown.toLocalFile(), 1, Qt::MatchExactly);
    ui->index->setCurrentIndex(found.value(0));
}

} // namespace lanterra
