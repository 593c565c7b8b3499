#include "support/socket_errors.h"
#include "tests/qt_printing.h"

#include <gtest/gtest.h>

using namespace lanterra;
using namespace Qt::StringLiterals;

TEST(SocketErrorsTest, GivesTheStandardsWords) {
    QString name;
    EXPECT_EQ(SocketErrorText(69), u"Disc Quota Exceeded"_s);
    EXPECT_EQ(SocketErrorText(1004, &name),
              u"Valid name, no data record of requested type *OR* No address, look for MX record"_s);
    EXPECT_EQ(name, u"WSANO_DATA or WSANO_ADDRESS"_s);
    EXPECT_EQ(SocketErrorText(9999, &name), u"Unknown Error"_s);
    EXPECT_EQ(name, QString());
    EXPECT_EQ(SocketErrorText(SocketErrorCode(QAbstractSocket::HostNotFoundError)), u"Host not found"_s);
    EXPECT_EQ(SocketErrorText(SocketErrorCode(QAbstractSocket::NetworkError)), u"No Route to Host"_s);
    EXPECT_EQ(SocketErrorText(SocketErrorCode(QAbstractSocket::SslHandshakeFailedError)), u"Unknown Error"_s);
}
