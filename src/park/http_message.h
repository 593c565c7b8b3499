#pragma once

#include <QByteArray>
#include <QList>
#include <QString>
#include <utility>

namespace lanterra {

struct HttpRequest {
    QByteArray method;
    QByteArray target; ///< as it came
    QByteArray path;   ///< of the target, without scheme and host
    QByteArray query;  ///< of the target, without the question mark
    int minorVersion = 1;
    QList<std::pair<QByteArray, QByteArray>> headers; ///< in their order and spelling
    QByteArray body;

    /// The first header of this name, in any letter case; empty if there is none.
    QByteArray Header(QByteArrayView name) const;
    /// Whether the peer will take a further answer on this connection.
    bool WantsKeepAlive() const;
};

/// How an answer tells where its body ends.
enum class BodyFraming { Length, Chunks, Close };

struct HttpAnswer {
    int status = 200;
    QByteArray reason = "OK";
    QByteArray contentType = "text/html; charset=utf-8";
    QByteArray extraHeaders; ///< whole lines, each with its CR LF
    QByteArray body;
    BodyFraming framing = BodyFraming::Length;
    bool mayKeepAlive = true;
    int delay = 0;     ///< milliseconds before the first byte
    QString behaviour; ///< if not empty, this scripted behaviour is played in place of the answer
};

/// Whether the connection stays open behind this answer to this request.
bool KeepsAlive(const HttpRequest &request, const HttpAnswer &answer);

/// The bytes of the answer to this request. A peer of HTTP/1.0 gets no chunks, and HEAD no body.
QByteArray AnswerBytes(const HttpRequest &request, const HttpAnswer &answer);

} // namespace lanterra
