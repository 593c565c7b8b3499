#include "shell/upgrade_it.h"

#include "support/product_values.h"

using namespace Qt::StringLiterals;

namespace lanterra {

namespace {

const QString runningVersion = u"" LANTERRA_VERSION ""_s;
constexpr qint64 largestFile = 65'536; ///< bytes; what is longer is no version file

QString ProductName() { return ProductValue(u"upgrade_product"_s); }

} // namespace

UpgradeIt::UpgradeIt(const Parts &theParts, std::unique_ptr<HttpClient> httpClient)
    : parts(theParts), client(std::move(httpClient)) {
    client->SetKeepResponseText(true);
    parts.proxy.AddClient(*client);
    patienceTimer.setSingleShot(true);
    patienceTimer.setInterval(parts.patience);
    connect(&patienceTimer, &QTimer::timeout, this, [this] { Fail(u"The server doesn't answer"_s); });
    connect(client.get(), &HttpClient::Connected, this, [this] { client->SendGet(); });
    connect(client.get(), &HttpClient::Data, this, &UpgradeIt::client_Data);
    connect(client.get(), &HttpClient::Done, this, &UpgradeIt::client_Done);
    connect(client.get(), &HttpClient::Error, this, [this] { Fail(client->FailureReason()); });
}

void UpgradeIt::StartBackgroundCheck(bool showErrors) {
    showsErrors = showErrors || userWaits;
    if (patienceTimer.isActive())
        return;
    const QString address = parts.hosts.Address(u"Upgrade"_s, u"Address"_s);
    client->SetTarget(address.isEmpty() ? ProductValue(u"upgrade_address"_s) : address);
    if (client->Target().isEmpty()) {
        Fail(u"No address is known where newer versions are announced"_s);
        return;
    }
    CheckStarted = true;
    parts.proxy.ApplyProxySettings();
    client->SetResponseText(QString());
    client->SetRequestSwitchA(true);
    client->SetRequestSwitchB(true);
    patienceTimer.start();
    client->ConnectToHost();
}

void UpgradeIt::CheckNow() {
    userWaits = true;
    StartBackgroundCheck(true);
}

void UpgradeIt::HoldUpgrade() {
    if (CheckStarted)
        return;
    ResultHeld = false;
    StartBackgroundCheck(false);
}

void UpgradeIt::ReleaseUpgrade() {
    if (ResultHeld)
        ShowResult();
}

void UpgradeIt::client_Data() {
    if (client->BodyBytes() > largestFile)
        Fail(u"The answer is no list of versions"_s);
}

void UpgradeIt::client_Done() {
    const std::optional<VersionFile> file = ReadVersionFile(client->ResponseText(), ProductName());
    if (!file) {
        Fail(u"The answer is no list of versions"_s);
        return;
    }
    found = *file;
    ResultHeld = found.IsNewerThan(runningVersion);
    const bool tellsNow = userWaits;
    End();
    if (!tellsNow)
        return;
    if (ResultHeld)
        ShowResult();
    else
        Tell(u"Version %1 of %2 is the newest one."_s.arg(runningVersion, ProductName()),
             BoxIcon::Information);
}

void UpgradeIt::Fail(const QString &reason) {
    client->Abort();
    CheckStarted = false;
    const bool tells = showsErrors;
    End();
    if (tells)
        Tell(u"It can't be found out whether there is a newer version of %1."_s.arg(ProductName()),
             BoxIcon::Exclamation, reason + u'.');
}

void UpgradeIt::End() {
    patienceTimer.stop();
    showsErrors = false;
    userWaits = false;
}

void UpgradeIt::ShowResult() {
    if (!std::exchange(ResultHeld, false))
        return;
    const QString news = u"Version %1 of %2, from %3, is available. This is version %4."_s.arg(
        found.version, ProductName(), ProductValue(u"upgrade_maker"_s), runningVersion);
    if (found.page.isEmpty()) {
        Tell(news, BoxIcon::Information, found.note);
        return;
    }
    const QString page = found.page; // another check can end while the question is up
    const BoxAnswer answer = parts.dialogs.Show(
        {news + u" Do you want to open its page and end the program?"_s, u"Zephyrine Lanterra"_s,
         BoxIcon::Question, BoxButtons::YesNo, BoxAnswer::No, found.note});
    if (answer != BoxAnswer::Yes)
        return;
    parts.viewer.OpenDocument(page);
    emit ExitForUpgrade();
}

void UpgradeIt::Tell(const QString &text, BoxIcon icon, const QString &detail) {
    const bool good = icon == BoxIcon::Information;
    parts.dialogs.Show(
        {text, good ? u"Zephyrine Lanterra"_s : u"Error"_s, icon, BoxButtons::Ok, BoxAnswer::Ok, detail});
}

} // namespace lanterra
