#include "platform/http_exchange.h"

#include <QPointer>
#include <utility>

namespace lanterra {

HttpExchange::HttpExchange(const QString &path) : savePath(path) {
    connect(this, &HttpExchange::TurnAsked, this, &HttpExchange::Turn, Qt::QueuedConnection);
}

void HttpExchange::Start(std::unique_ptr<Connection> newConnection) {
    connection = std::move(newConnection);
    connect(connection.get(), &Connection::Changed, this, &HttpExchange::AskForTurn);
    connection->Open();
}

void HttpExchange::Send(const QByteArray &request) {
    if (sendingAllowed && connection)
        connection->Write(request);
    sendingAllowed = false;
}

void HttpExchange::Fail(const Failure &newFailure) {
    failure = newFailure;
    End(Stage::Failed);
}

bool HttpExchange::IsUnderWay() const { return stage != Stage::Closing && stage != Stage::Over; }

void HttpExchange::AskForTurn() {
    if (turnAsked)
        return;
    turnAsked = true;
    emit TurnAsked();
}

void HttpExchange::Turn() {
    if (handlerRuns)
        return; // turnAsked stays: the turn comes when the handler has returned
    turnAsked = false;
    handlerRuns = true;
    const QPointer<HttpExchange> self(this);
    Advance();
    if (!self)
        return;
    handlerRuns = false;
    if (std::exchange(turnAsked, false))
        AskForTurn();
}

void HttpExchange::Advance() {
    switch (stage) {
    case Stage::Connecting:
        AwaitConnection();
        break;
    case Stage::Answering:
        Receive();
        break;
    case Stage::Done:
        stage = Stage::Closing;
        AskForTurn();
        emit Done();
        break;
    case Stage::Closing:
        stage = Stage::Over;
        emit Closing();
        break;
    case Stage::Failed:
        stage = Stage::Over;
        emit Failed(failure);
        break;
    case Stage::Over:
        break;
    }
}

void HttpExchange::AwaitConnection() {
    if (connection->Stands()) {
        const QPointer<HttpExchange> self(this);
        stage = Stage::Answering;
        sendingAllowed = true;
        AskForTurn(); // the server may have spoken or gone already
        emit Connected();
        if (self)
            sendingAllowed = false;
    } else if (connection->HasEnded()) {
        Fail(connection->Reason());
    }
}

void HttpExchange::Receive() {
    const QByteArray block = connection->Read();
    if (!block.isEmpty())
        ReceiveBlock(block);
    else if (connection->HasEnded())
        TakeEnd();
}

void HttpExchange::ReceiveBlock(const QByteArray &block) {
    AskForTurn(); // for what is left to read
    QByteArrayView rest(block);
    QByteArray headerText;
    qsizetype dataStart = 0;
    AnswerReader::Step step = reader.Read(rest);
    if (step == AnswerReader::Step::Header) {
        headerSeen = true;
        headerText = reader.HeaderText();
        dataStart = block.size() - rest.size();
        page.Open(savePath);
        step = reader.Read(rest);
    }
    for (; step == AnswerReader::Step::Body; step = reader.Read(rest)) {
        page.Write(reader.Piece());
        emit BodyArrived(reader.Piece());
    }
    if (step == AnswerReader::Step::Complete)
        End(Stage::Done);
    else if (step == AnswerReader::Step::Failed)
        Fail(BadAnswer(reader.Problem()));
    if (headerSeen)
        emit Data(headerText + block.sliced(dataStart, block.size() - rest.size() - dataStart));
}

void HttpExchange::TakeEnd() {
    const AnswerReader::End end =
        connection->EndedInOrder() ? AnswerReader::End::Orderly : AnswerReader::End::Broken;
    if (reader.Finish(end) == AnswerReader::Step::Complete)
        End(Stage::Done);
    else
        Fail({connection->Reason().code, reader.Problem()});
}

void HttpExchange::End(Stage next) {
    stage = next;
    connection.reset();
    page.Close();
    AskForTurn();
}

} // namespace lanterra
