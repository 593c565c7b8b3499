#include "park/park_options.h"
#include "tests/qt_printing.h"

#include <gtest/gtest.h>

using namespace lanterra;
using namespace Qt::StringLiterals;

namespace {

ParkOptions Read(const QString &line) {
    return ReadParkOptions((u"lanterra-park "_s + line).simplified().split(u' '));
}

TEST(ParkOptions, TakeValuesAndNameWhatIsWrong) {
    const ParkOptions options = Read(u"--latency=250 --proxy-port 8600 --certificates here"_s);
    EXPECT_EQ(options.task, ParkOptions::Task::Serve);
    EXPECT_EQ(options.port, 8571);
    EXPECT_EQ(options.latency, 250);
    EXPECT_FALSE(options.tlsPort);
    EXPECT_EQ(options.proxyPort, 8600);
    EXPECT_EQ(Read(u"--port 65536"_s).text, u"--port takes a number from 0 to 65535, not \"65536\""_s);
    for (const QString &line : {u"--port"_s, u"--colour"_s, u"front"_s, u"--port 80x"_s, u"--tls-port -1"_s})
        EXPECT_EQ(Read(line).task, ParkOptions::Task::WrongUse) << line.toStdString();
}

} // namespace
