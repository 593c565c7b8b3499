#include "support/text_file.h"

#include "support/code_page.h"
#include "support/whole_file.h"

#include <QFile>

namespace lanterra {

QString ReadFileText(const QString &path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    return CodePage::Decode(file.readAll());
}

bool WriteFileText(const QString &path, const QString &text) {
    return WriteWholeFile(path, CodePage::Encode(text));
}

} // namespace lanterra
