#include "tests/fakes/program_fixture.h"

using namespace lanterra;
using namespace Qt::StringLiterals;

namespace {

class InetDownloadTest : public ProgramFixture {
protected:
    InetDownloadTest() { GivenSites({u"Alta"_s}); }

    HttpClient &Client() { return program->inetDownload.Client(); }
    void Receive(const QByteArray &block) { emit Client().Data(block); }
};

TEST_F(InetDownloadTest, ShowsHowFarTheFileIs) {
    const QByteArray header = "HTTP/1.1 200 OK\r\nContent-Length: 1000\r\n\r\n";
    for (const int error : {0, 61}) {
        emit Client().Connected();
        Receive(header);
        EXPECT_EQ(program->frmStatus.Label1.Caption(), u"Download progress ..."_s);
        EXPECT_EQ(program->frmStatus.Maximum(), 1000);
        Receive(QByteArray(300, 'x'));
        EXPECT_EQ(program->frmStatus.Value(), header.size() + 300);
        if (error == 0)
            emit Client().Done();
        else
            emit Client().Error(error);
        EXPECT_FALSE(program->frmStatus.Visible());
        EXPECT_EQ(dialogs.Told(), error == 0 ? QString() : u"Error: Connection refused"_s);
    }
}

TEST_F(InetDownloadTest, GivesUpWhatItsHeaderDoesNotPromise) {
    const std::pair<QByteArray, QString> answers[] = {
        {"HTTP/1.1 404 Not Found\r\n", u"Error: Error: 404 Not Found"_s},
        {"no status", u"Error: Error: unknown"_s},
        {"HTTP/1.1 302 Found Location: /a\rb", u"Error: Redirection"_s}};
    for (const auto &[header, told] : answers) {
        Receive(header);
        EXPECT_EQ(dialogs.Told(), told);
        EXPECT_FALSE(program->frmStatus.Visible());
    }
}

} // namespace
