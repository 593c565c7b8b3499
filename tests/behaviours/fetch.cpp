#include "tests/behaviours/fetch.h"

#include "platform/qt_event_queue.h"
#include "support/whole_file.h"

#include <QCryptographicHash>
#include <QFile>
#include <QRegularExpression>
#include <QTemporaryDir>

#include <map>

using namespace Qt::StringLiterals;

namespace lanterra {

namespace {

QString PathFor(const QTemporaryDir &folder, qsizetype index) {
    return folder.filePath(QString::number(index));
}

} // namespace

SavedPage SavedPage::In(const QString &path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    SavedPage page;
    page.size = file.size();
    page.start = file.peek(100);
    QCryptographicHash hash(QCryptographicHash::Sha1);
    hash.addData(&file);
    page.digest = hash.result();
    return page;
}

bool SavedPage::Is(const QString &disk) const {
    const bool isOld = start == "old page";
    if (disk == u"old page" || isOld)
        return isOld && disk == u"old page";
    if (disk == u"empty page")
        return size == 0;
    // A run writes its substitute page later, in place of what the client has saved.
    if (disk == u"the answer" || disk == u"substitute page")
        return start == "hello body\n" || start == "proxy page\n";
    const QRegularExpressionMatch number = QRegularExpression(u"\\d+"_s).match(disk);
    if (number.hasMatch() && size != number.captured().toLongLong())
        return false;
    return size > 11 || QByteArray("hello body\n").startsWith(start) || start.count('.') == start.size();
}

void FetchJob::End(const QString &outcome, int status, const QString &reason) {
    if (HasEnded())
        return;
    const bool refused = outcome == u"ok" && status >= 400;
    result.outcome = refused ? u"failed"_s : outcome;
    result.reason = refused ? u"status %1"_s.arg(status) : reason;
    result.milliseconds = sinceStart.elapsed();
}

QList<FetchResult> RunAll(const QList<FetchCase> &cases, int parallel, const FetchStarter &start) {
    const QTemporaryDir folder;
    QtEventQueue queue;
    QList<FetchResult> results(cases.size());
    std::map<qsizetype, std::unique_ptr<FetchJob>> running;
    qsizetype next = 0;
    while (next < cases.size() || !running.empty()) {
        for (; next < cases.size() && std::ssize(running) < parallel; ++next) {
            WriteWholeFile(PathFor(folder, next), "old page");
            running.emplace(next, start(cases[next], PathFor(folder, next)));
        }
        queue.Wait(std::chrono::seconds(1));
        std::erase_if(running, [&](const auto &entry) {
            if (!entry.second->HasEnded())
                return false;
            results[entry.first] = entry.second->Result();
            results[entry.first].page = SavedPage::In(PathFor(folder, entry.first));
            QFile::remove(PathFor(folder, entry.first));
            return true;
        });
    }
    return results;
}

} // namespace lanterra
