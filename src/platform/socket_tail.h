#pragma once

#include <QByteArray>

namespace lanterra {

/// A second descriptor of a connected TCP socket. Qt closes its own one at the first error, with bytes that
/// have arrived still unread in the system, and reports a reset like an orderly close. An answer can be whole
/// in those bytes, and a body that ends with the connection is whole only after an orderly close, so this one
/// stays open until both are known. Needs POSIX sockets.
class SocketTail {
    Q_DISABLE_COPY_MOVE(SocketTail)

public:
    SocketTail() = default;
    ~SocketTail() { Release(); }

    /// Keeps a duplicate of the descriptor. False if the process can't have one more.
    bool Hold(qintptr descriptor);

    /// Up to `atMost` bytes that nobody has read; empty at the end and when nothing waits.
    QByteArray Read(qsizetype atMost);

    /// Whether the peer ended its side by a close. Meaningful once Qt has reported the end and Read gave
    /// nothing.
    bool WasClosedInOrder() const;

    /// The duplicate; -1 if there is none.
    int Descriptor() const { return duplicate; }

    void Release();

private:
    static constexpr int none = -1;
    int duplicate = none;
    bool sawError = false;
};

} // namespace lanterra
