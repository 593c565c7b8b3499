#pragma once

#include <QSslSocket>

namespace lanterra {

/// A TLS socket that closes without the closing alert, so that its peer can't tell the end from a cut.
class AlertlessSocket final : public QSslSocket {
    Q_OBJECT

public:
    AlertlessSocket();

    /// Closes once the system has taken what was written.
    void disconnectFromHost() override;

private:
    void CloseIfAllIsSent();

    bool leaving = false;
};

} // namespace lanterra
