#pragma once

#include "controls/button.h"
#include "controls/check_box.h"
#include "controls/text_box.h"
#include "ports/dialogs.h"
#include "ports/forms.h"
#include "ports/http_client.h"
#include "settings/document_viewer.h"
#include "settings/hosts.h"
#include "settings/options.h"

#include <memory>

namespace lanterra {

/// frmWelcome: greets a new user and takes a subscription to the newsletter. The form stays closed from the
/// first start on unless its box is checked.
class WelcomeForm : public Control {
    Q_OBJECT

public:
    struct Parts {
        const Hosts &hosts;
        Options &options;
        DocumentViewer &viewer;
        Dialogs &dialogs;
        Forms &forms;
        QString scratchFile; ///< takes the answer to a subscription; nothing reads it
    };

    /// All parts must outlive the form. The client is its own and gets no proxy.
    WelcomeForm(const Parts &theParts, std::unique_ptr<HttpClient> httpClient);

    /// Loads the form, shows it as a blocking dialog and unloads it, however it was closed. Yields.
    void Show();

    /// "Continue": closes the form.
    void Command1_Click();

    /// "Subscribe": sends the address to the mailing list and returns. The answer comes as a box, as does a
    /// refusal. Yields while that is up.
    void SSCommand1_Click() { SubscribeNewsletter(); }
    void SubscribeNewsletter();

    /// The logo: opens the product's page, if there is an address. Yields.
    void Picture1_Click();

    /// Whether the form was continued without its box, so that it needn't come up at the next start.
    bool WelcomeHide = false;

    TextBox Text2;   ///< e-mail address
    CheckBox Check1; ///< "Always show this window when starting"; unchecked at each load
    Button SSCommand1;
    Button Command1;

private:
    void Load();
    void Unload();
    void inet2_Connected();
    void inet2_Done();
    void inet2_Error();
    void Tell(const QString &text, const QString &title);

    Parts parts;
    std::unique_ptr<HttpClient> inet2;
    QString subscribeBody;
    bool subscribeErrorShown = false;
};

} // namespace lanterra
