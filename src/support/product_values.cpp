#include "support/product_values.h"

#include "support/code_page.h"
#include "support/sifrant.h"
#include "support/text_file.h"

#include <QStringList>

using namespace Qt::StringLiterals;

namespace lanterra {

QString ProductValue(const QString &role) {
    for (const QString &line : ReadFileText(u":/support/product_values.dat"_s).split(u'\n')) {
        if (line.startsWith(role + u'='))
            return CodePage::Decode(Sifrant().DeSifriraj(CodePage::Encode(line.mid(role.size() + 1))));
    }
    return {};
}

} // namespace lanterra
