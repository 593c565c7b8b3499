#pragma once

#include "ports/http_client.h"
#include "settings/settings_form.h"

#include <QPointer>
#include <vector>

namespace lanterra {

/// Hands the proxy of the settings form to the clients of the program, whenever the form is confirmed and
/// before each use that asks for it.
class ProxySettings : public QObject {
    Q_OBJECT

public:
    /// The form must outlive this.
    explicit ProxySettings(SettingsForm &form);

    /// A client that always has the proxy of the form, and none while the proxy is switched off. It may be
    /// deleted at any time.
    void AddClient(HttpClient &client);

    /// Takes effect from a client's next ConnectToHost on. A port that is no number from 1 to 65535 leaves
    /// the clients' old one.
    void ApplyProxySettings();

signals:
    /// The proxy that is in force, at each ApplyProxySettings while it is switched on. For those who keep the
    /// proxy that they once had: the client of the support form and the spider are not told when it is
    /// switched off.
    void ProxyGiven(const QString &server, int port);

private:
    void GiveToClients(const QString &server, int port);

    const SettingsForm &frmSettings;
    std::vector<QPointer<HttpClient>> clients;
};

} // namespace lanterra
