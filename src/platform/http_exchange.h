#pragma once

#include "platform/answer_reader.h"
#include "platform/connection.h"
#include "support/page_file.h"

namespace lanterra {

/// One exchange from the first byte to the last. What happens on the connection only asks for a turn of the
/// event queue; each turn raises one signal at most, and none while a handler of an earlier one is on the
/// stack. So it may be deleted in any of its signals, which ends it silently with all that is still due.
class HttpExchange final : public QObject {
    Q_OBJECT

public:
    /// `path` is the file that takes the body, empty for none.
    explicit HttpExchange(const QString &path);

    void Start(std::unique_ptr<Connection> newConnection);

    /// Sends the request. Without effect unless called inside Connected.
    void Send(const QByteArray &request);

    /// Ends it at once; Failed comes at a later turn.
    void Fail(const Failure &failure);

    /// False once Done or Failed was raised.
    bool IsUnderWay() const;

signals:
    void Connected();
    void Data(const QByteArray &block);
    /// The next bytes of the decoded body, before the Data that they came in. For counting and keeping them:
    /// the handler must neither delete the exchange nor let events run.
    void BodyArrived(QByteArrayView piece);
    void Done();
    void Closing();
    void Failed(const Failure &failure);
    /// For its own use: comes back as Turn.
    void TurnAsked();

private:
    /// What the next turn is for.
    enum class Stage { Connecting, Answering, Done, Closing, Failed, Over };

    void AskForTurn();
    void Turn();
    void Advance();
    void AwaitConnection();
    void Receive();
    void ReceiveBlock(const QByteArray &block);
    void TakeEnd();
    void End(Stage next);

    const QString savePath;
    std::unique_ptr<Connection> connection; ///< none once the exchange has ended
    AnswerReader reader;
    PageFile page;
    Failure failure;
    Stage stage = Stage::Connecting;
    bool headerSeen = false;
    bool sendingAllowed = false; ///< inside Connected
    bool turnAsked = false;
    bool handlerRuns = false;
};

} // namespace lanterra
