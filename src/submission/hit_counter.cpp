#include "submission/hit_counter.h"

#include <QFile>

using namespace Qt::StringLiterals;

namespace lanterra {

HitCounter::HitCounter(std::unique_ptr<HttpClient> httpClient, const Hosts &outsideHosts,
                       Options &userOptions, const QString &scratchPath)
    : client(std::move(httpClient)), hosts(outsideHosts), options(userOptions), scratchFile(scratchPath) {
    connect(client.get(), &HttpClient::Connected, this, [this] { client->SendGet(); });
    connect(client.get(), &HttpClient::Closing, this, [this] {
        options.Set(option::counterAnswered, u"1"_s);
        if (runEnded)
            RemoveScratchFile();
    });
    connect(client.get(), &HttpClient::Error, this, [this] {
        if (runEnded)
            RemoveScratchFile();
    });
}

void HitCounter::Fire() {
    client->Abort();
    runEnded = false;
    const bool firstRun = options.Text(option::counterAnswered).isEmpty();
    const QString address = hosts.Address(u"Counter"_s, firstRun ? u"First"_s : u"Later"_s);
    if (address.isEmpty())
        return;
    client->SetTarget(address);
    client->SetSaveFile(scratchFile);
    client->SetRequestSwitchA(true);
    client->SetRequestSwitchB(true);
    client->ConnectToHost();
}

void HitCounter::RemoveScratchFile() {
    runEnded = true;
    QFile::remove(scratchFile);
}

} // namespace lanterra
