#include "settings/proxy_settings.h"

#include "support/numbers.h"

namespace lanterra {

namespace {

constexpr int portWithoutProxy = 80;

/// 0, which no client takes, for a text that is no port.
int PortOf(const QString &text) {
    const double number = IsNumeric(text) ? LeadingNumber(text) : 0;
    return number >= 1 && number <= 65535 ? RoundHalfEven(static_cast<float>(number)) : 0;
}

} // namespace

ProxySettings::ProxySettings(SettingsForm &form) : frmSettings(form) {
    connect(&form, &SettingsForm::ProxyConfirmed, this, &ProxySettings::ApplyProxySettings);
}

void ProxySettings::AddClient(HttpClient &client) { clients.emplace_back(&client); }

void ProxySettings::ApplyProxySettings() {
    if (!frmSettings.chkProxy.Checked()) {
        GiveToClients(QString(), portWithoutProxy);
        return;
    }
    const QString &server = frmSettings.Text1.Text();
    const int port = PortOf(frmSettings.Text2.Text());
    GiveToClients(server, port);
    emit ProxyGiven(server, port);
}

void ProxySettings::GiveToClients(const QString &server, int port) {
    for (const QPointer<HttpClient> &client : clients) {
        if (!client)
            continue;
        client->SetProxyPort(port);
        client->SetProxyServer(server);
    }
}

} // namespace lanterra
