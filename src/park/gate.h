#pragma once

#include "park/behaviour.h"

#include <QList>
#include <QString>

namespace lanterra {

/// One address that a gate is tried with, and what a client makes of it.
struct GateCase {
    QString scheme;  ///< "http" or "https"
    QString page;    ///< the behaviour that is asked for
    QString outcome; ///< as in Behaviour
    QString disk;    ///< as in Behaviour
};

/// A port with its own way to the practice web, or into its place.
struct Gate {
    enum class Group { Tls, Proxy };
    enum class Kind {
        Tls,          ///< the practice web over TLS
        Proxy,        ///< forwards to the practice web
        Script,       ///< plays a behaviour whatever it is asked
        Closed,       ///< nobody listens
        NotAccepting, ///< connections are begun and never accepted
    };

    QString name;
    QString what; ///< one line on what it does
    Group group = Group::Tls;
    Kind kind = Kind::Script;
    QString certificate;      ///< Tls: its name in PracticeCertificates
    bool closingAlert = true; ///< Tls: closes with TLS's closing alert
    Behaviour script;         ///< Script
    QList<GateCase> cases;
};

/// The gates of the table that is built into the program, in its order, group by group.
class GateTable {
public:
    GateTable();

    const QList<Gate> &Rows() const { return rows; }

    /// The rows of one group in their order.
    QList<Gate> RowsOf(Gate::Group group) const;

private:
    QList<Gate> rows;
};

/// A gate that stands open.
struct OpenGate {
    Gate gate;
    quint16 port = 0;

    /// Of the group Tls: where the case is found.
    QString AddressOf(const GateCase &row) const;
};

} // namespace lanterra
