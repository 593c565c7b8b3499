#pragma once

#include "ports/dialogs.h"
#include "ports/http_client.h"
#include "settings/document_viewer.h"
#include "settings/hosts.h"
#include "settings/proxy_settings.h"
#include "shell/version_file.h"
#include "submission/run_extensions.h"

#include <QTimer>
#include <chrono>
#include <memory>

namespace lanterra {

/// UpgradeIt1: looks at the maker's version file and tells whether there is a newer version. It fetches
/// nothing else and runs nothing: a newer version is named, and its page is opened if the user wants it.
///
/// The address of the file is Address in section [Upgrade] of hosts.ini, else the one that stands enciphered
/// in the program. Without either no check is made.
class UpgradeIt : public QObject, public UpgradeCheck {
    Q_OBJECT

public:
    struct Parts {
        const Hosts &hosts;
        ProxySettings &proxy;
        DocumentViewer &viewer;
        Dialogs &dialogs;
        std::chrono::milliseconds patience{30'000}; ///< after which a check has failed
    };

    /// All parts must outlive this; the client is its own.
    UpgradeIt(const Parts &theParts, std::unique_ptr<HttpClient> httpClient);

    /// Looks for a newer version and returns at once. A find is held for ShowResult; what fails is told only
    /// if `showErrors` is set. Goes on with a check that is under way.
    void StartBackgroundCheck(bool showErrors);

    /// The same for a user who waits for it: whatever comes of it is told, as soon as it is known. Yields if
    /// that is at once.
    void CheckNow();

    /// Tells of the newer version that was found, once, and offers its page. Yields.
    void ShowResult();

    void HoldUpgrade() override;
    void ReleaseUpgrade() override;

    /// A background check was begun and hasn't failed. It stays so once it is through, so that one is made in
    /// the life of the program; after a failure the next run may try again.
    bool CheckStarted = false;
    /// A newer version was found and not yet told.
    bool ResultHeld = false;

signals:
    /// The user has gone to the page of the newer version, for which the program should end.
    void ExitForUpgrade();

private:
    void client_Data();
    void client_Done();
    void Fail(const QString &reason);
    void End();
    void Tell(const QString &text, BoxIcon icon, const QString &detail = {});

    Parts parts;
    std::unique_ptr<HttpClient> client;
    QTimer patienceTimer; ///< runs while a check is under way
    VersionFile found;
    bool showsErrors = false;
    bool userWaits = false;
};

} // namespace lanterra
