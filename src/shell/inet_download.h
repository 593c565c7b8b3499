#pragma once

#include "ports/dialogs.h"
#include "ports/http_client.h"
#include "project/status_form.h"
#include "submission/response_analysis.h"

#include <memory>

namespace lanterra {

/// InetDownload: judges the download of a file by its header and shows how far it is. Nothing starts it: the
/// program fetches no new version of itself, it tells of one (see UpgradeIt). Who would start a download sets
/// Target and SaveFile of the client and calls its ConnectToHost.
class InetDownload : public QObject {
    Q_OBJECT

public:
    /// The first three must outlive this.
    InetDownload(StatusForm &statusForm, Dialogs &boxes, EventQueue &eventQueue,
                 std::unique_ptr<HttpClient> httpClient);

    HttpClient &Client() { return *client; }

private:
    void client_Connected();
    void client_Data(const QByteArray &block);
    void client_Done();
    void client_Error(int code);
    void Tell(const QString &text);

    StatusForm &frmStatus;
    Dialogs &dialogs;
    ResponseAnalysis analysis;
    std::unique_ptr<HttpClient> client;
    bool accepted = false; ///< the header was taken as good, and the progress is on show
};

} // namespace lanterra
