#include "project/recent_file.h"

using namespace Qt::StringLiterals;

namespace lanterra {

namespace {

const QString section = u"RecentFiles"_s;

QString Key(int index) {
    return u"File%1"_s.arg(index);
}

} // namespace

void RecentFile::Load() {
    files.clear();
    for (int index = 1; index <= limit; ++index)
        files.append(store.Get(section, Key(index)));
    files.removeAll(QString());
    Announce();
}

void RecentFile::Add(const QString &fileName) {
    files.removeAll(fileName);
    files.prepend(fileName);
    files.resize(std::min<qsizetype>(files.size(), limit));
    for (int index = 1; index <= limit; ++index)
        store.Set(section, Key(index), File(index));
    Announce();
}

void RecentFile::Announce() {
    QStringList five = files;
    five.resize(limit);
    emit Changed(five);
}

} // namespace lanterra
