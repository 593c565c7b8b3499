#include "submission/http_header.h"
#include "fuzz/promise.h"
#include "platform/header_reader.h"
#include "support/code_page.h"

#include <QStringList>

using namespace lanterra;
using namespace Qt::StringLiterals;

namespace {

HttpHeader Parsed(QByteArrayView bytes) {
    HttpHeader header;
    header.SetRawHeader(CodePage::Decode(bytes));
    header.Parse();
    return header;
}

void KeepItsPromises(const HttpHeader &header) {
    const QStringList classes{
        u""_s, u"Informational"_s, u"Success"_s, u"Redirection"_s, u"Client Error"_s, u"Server Error"_s};
    const int number = header.StatusCode().value_or(0);
    const bool known = number >= 100 && number < 600;
    Promise(header.StatusClass() == classes[known ? number / 100 : 0], "the class is that of the number");
    Promise(!header.LocationValue().contains(u'\n'), "a value stays within its lines");
    Promise(!header.StatusText().contains(u'\n'), "the status stays within its line");
}

/// The verdict on a site must not differ from what the reader saw on the wire.
void AgreeWithTheReader(QByteArrayView bytes) {
    HeaderReader reader;
    QByteArrayView rest(bytes);
    if (reader.Read(rest) == HeaderReader::State::Complete)
        Promise(Parsed(reader.Text()).StatusCode() == reader.Header().status, "both read the same status");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    const QByteArrayView bytes(data, static_cast<qsizetype>(size));
    KeepItsPromises(Parsed(bytes));
    AgreeWithTheReader(bytes);
    return 0;
}
