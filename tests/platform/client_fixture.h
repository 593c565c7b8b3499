#pragma once

#include "platform/qt_event_queue.h"
#include "platform/socket_http_client.h"
#include "tests/file_bytes.h"
#include "tests/platform/raw_server.h"
#include "tests/qt_printing.h"
#include "tests/wait_until.h"

#include <QFile>
#include <QTemporaryDir>
#include <functional>
#include <gtest/gtest.h>

namespace lanterra {

/// A client, its server, and a page file that holds "old page" before each exchange. The client's events are
/// logged, several Data as one, and `during` runs inside each with its name. Connected sends `headers`.
class ClientFixture : public testing::Test {
protected:
    using Then = RawServer::Then;

    ClientFixture() { Renew(); }

    void Renew() {
        client = std::make_unique<SocketHttpClient>();
        client->SetSaveFile(page);
        client->SetTarget(Address(QStringLiteral("http")));
        SocketHttpClient *const made = client.get();
        QObject::connect(made, &HttpClient::Connected, made, [this, made] {
            made->SetRequestHeaders(headers);
            posts ? made->SendPost() : made->SendGet();
            Log(QStringLiteral("Connected"));
        });
        QObject::connect(made, &HttpClient::Data, made, [this](const QByteArray &block) {
            data += block;
            Log(QStringLiteral("Data"));
        });
        QObject::connect(made, &HttpClient::Done, made, [this] { Log(QStringLiteral("Done")); });
        QObject::connect(made, &HttpClient::Closing, made, [this] { Log(QStringLiteral("Closing")); });
        QObject::connect(made, &HttpClient::Error, made,
                         [this](int code) { Log(QStringLiteral("Error %1").arg(code)); });
    }

    void UseProxy(quint16 port) {
        client->SetProxyServer(QStringLiteral(" 127.0.0.1 "));
        client->SetProxyPort(port);
    }

    QString Address(const QString &scheme) const {
        return QStringLiteral("%1://127.0.0.1:%2/").arg(scheme).arg(server.serverPort());
    }

    void Begin() {
        if (QFile file(page); file.open(QIODevice::WriteOnly))
            file.write("old page");
        events.clear();
        data.clear();
        client->ConnectToHost();
    }

    /// Runs one exchange and tells its events.
    QString Exchange(const QByteArray &answer, Then then = Then::Hold) {
        server.answer = answer;
        server.then = then;
        return Exchange();
    }
    QString Exchange() {
        Begin();
        WaitUntil([this] { return events.contains(u"Closing") || events.contains(u"Error"); });
        return events;
    }

    QByteArray Page() const { return BytesOf(page); }

    void Log(const QString &event) {
        if (event != u"Data" || !events.endsWith(event))
            events += events.isEmpty() ? event : u' ' + event;
        if (during)
            during(event);
    }

    const QString done = QStringLiteral("Connected Data Done Closing");
    const QByteArray good = "HTTP/1.1 200 OK\r\nContent-Length: 11\r\n\r\nhello body\n";

    QTemporaryDir folder;
    QString page = folder.filePath(QStringLiteral("page.htm"));
    QtEventQueue queue;
    RawServer server;
    QByteArray headers = "HOST: z\r\n";
    bool posts = false;
    std::function<void(const QString &)> during;
    QString events;
    QByteArray data;
    std::unique_ptr<SocketHttpClient> client;
};

} // namespace lanterra
