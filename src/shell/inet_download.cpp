#include "shell/inet_download.h"

#include "support/socket_errors.h"

#include <utility>

using namespace Qt::StringLiterals;

namespace lanterra {

InetDownload::InetDownload(StatusForm &statusForm, Dialogs &boxes, EventQueue &eventQueue,
                           std::unique_ptr<HttpClient> httpClient)
    : frmStatus(statusForm), dialogs(boxes), analysis(eventQueue), client(std::move(httpClient)) {
    connect(client.get(), &HttpClient::Connected, this, &InetDownload::client_Connected);
    connect(client.get(), &HttpClient::Data, this, &InetDownload::client_Data);
    connect(client.get(), &HttpClient::Done, this, &InetDownload::client_Done);
    connect(client.get(), &HttpClient::Error, this, &InetDownload::client_Error);
}

void InetDownload::client_Connected() { client->SendGet(); }

void InetDownload::client_Data(const QByteArray &block) {
    if (!accepted) {
        const QString verdict = analysis.AnalyseResponseHeader(QString::fromLatin1(block));
        if (verdict.contains("error"_L1, Qt::CaseInsensitive) ||
            verdict.contains("redirect"_L1, Qt::CaseInsensitive)) {
            client->Abort();
            Tell(verdict);
            return;
        }
        accepted = true;
        frmStatus.Show(u"Download progress ..."_s, analysis.contentLength.toInt());
    }
    frmStatus.Advance(frmStatus.Value() + static_cast<int>(block.size()));
}

void InetDownload::client_Done() {
    if (std::exchange(accepted, false))
        frmStatus.Finish();
}

void InetDownload::client_Error(int code) {
    client_Done();
    Tell(SocketErrorText(code));
}

void InetDownload::Tell(const QString &text) { dialogs.Show({text, u"Error"_s, BoxIcon::Critical}); }

} // namespace lanterra
