#include "support/percent_encode.h"

namespace lanterra {

bool IsControl(char byte) {
    const auto code = static_cast<unsigned char>(byte);
    return code < 0x20 || code == 0x7F;
}

QByteArray PercentEncode(QByteArrayView bytes, bool (*mustEncode)(char)) {
    QByteArray encoded;
    encoded.reserve(bytes.size());
    for (const char byte : bytes) {
        if (mustEncode(byte))
            encoded += '%' + QByteArray(1, byte).toHex().toUpper();
        else
            encoded += byte;
    }
    return encoded;
}

} // namespace lanterra
