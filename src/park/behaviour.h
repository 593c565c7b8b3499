#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

class QJsonObject;

namespace lanterra {

/// One step of a scripted behaviour: bytes to send, and the time to let pass.
struct BehaviourStep {
    QByteArray block;      ///< what is written at once; empty for a mere pause
    qint64 total = 0;      ///< bytes to write in all, the block over and over
    int pause = 0;         ///< milliseconds to wait behind each block
    bool oneByOne = false; ///< write the block byte by byte
};

/// What becomes of the connection behind the last step.
enum class BehaviourEnd { Close, Reset, Hold };

/// A server's conduct down to the byte, for which HTTP is no excuse.
struct Behaviour {
    QString name;
    QString what;    ///< one line on what it does
    QString outcome; ///< what a client makes of it: "ok", "failed", "time limit"
    QString disk;    ///< what the client's file holds then
    QList<BehaviourStep> steps;
    BehaviourEnd end = BehaviourEnd::Close;
    bool early = false; ///< begins as soon as the request line is there
};

/// Makes a behaviour of a row of a table; behaviour.cpp tells its form.
Behaviour MakeBehaviour(const QJsonObject &source);

/// The behaviours of the table that is built into the program, in its order.
class BehaviourTable {
public:
    BehaviourTable();

    const QList<Behaviour> &Rows() const { return rows; }

    /// nullptr if there is none of this name.
    const Behaviour *Find(QStringView name) const;

private:
    QList<Behaviour> rows;
};

} // namespace lanterra
