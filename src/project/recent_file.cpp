#include "project/recent_file.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace lanterra {

namespace {

const QString section = u"RecentFiles"_s;

QString Key(int index) { return u"File%1"_s.arg(index); }

} // namespace

void RecentFile::Load() {
    files.clear();
    for (int index = 1; index <= limit; ++index)
        files.append(store.Get(section, Key(index)));
    files.removeAll(QString());
    Announce();
}

void RecentFile::Add(const QString &fileName) {
    if (File(1) == fileName)
        return;
    files.removeAll(fileName);
    files.prepend(fileName);
    files.resize(std::min<qsizetype>(files.size(), limit));
    // At once: a list that is stored by halves would have lost a name.
    QList<StoredSetting> texts;
    for (int index = 1; index <= limit; ++index)
        texts.append({section, Key(index), File(index)});
    store.SetAll(texts);
    Announce();
}

void RecentFile::Announce() {
    QStringList five = files;
    five.resize(limit);
    emit Changed(five);
}

} // namespace lanterra
