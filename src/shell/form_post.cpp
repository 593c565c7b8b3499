#include "shell/form_post.h"

#include "support/code_page.h"

namespace lanterra {

QByteArray FormPost(const QString &body) {
    const QByteArray bytes = CodePage::Encode(body);
    return "Content-Type: application/x-www-form-urlencoded\r\n"
           "Content-Length: " +
           QByteArray::number(bytes.size()) + "\r\n\r\n" + bytes;
}

} // namespace lanterra
