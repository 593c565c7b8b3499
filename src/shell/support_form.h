#pragma once

#include "controls/button.h"
#include "controls/label.h"
#include "controls/text_box.h"
#include "ports/dialogs.h"
#include "ports/forms.h"
#include "ports/http_client.h"
#include "project/main_frame.h"
#include "settings/document_viewer.h"
#include "settings/hosts.h"
#include "settings/proxy_settings.h"

#include <array>
#include <memory>

namespace lanterra {

/// frmTechSupp: a message to the technical support, posted to the maker's form mail script. What the script
/// answers is not looked at; any exchange that ends well counts as sent.
class SupportForm : public Control {
    Q_OBJECT

public:
    struct Parts {
        const Hosts &hosts; ///< [Maker] FormMail and SupportMail; nothing is sent without the first
        ProxySettings &proxy;
        MainFrame &frame;
        const Label &version; ///< is quoted in the message
        DocumentViewer &viewer;
        Dialogs &dialogs;
        Forms &forms;
        QString programFolder; ///< with a separator at its end; takes the scratch file
    };

    /// All parts must outlive the form. The client is its own. It keeps a proxy that was given once, also
    /// when that is switched off.
    SupportForm(const Parts &theParts, std::unique_ptr<HttpClient> httpClient);

    /// Loads the form with its first values, shows it as a blocking dialog and unloads it, which gives up a
    /// message that is still under way. Yields.
    void Show();

    /// "Submit": sends the message and returns; or tells what is missing. That it was sent comes as a box
    /// later, but a server that can't be reached is told only if that is known at once. Yields while a box is
    /// up.
    void Command1_Click() { SendSupportMessage(); }
    void SendSupportMessage();

    /// "Visit web site". Yields.
    void Command2_Click();

    TextBox usName; ///< the user's name
    TextBox Email;
    TextBox Problem; ///< and how it can be reproduced
    TextBox OS;
    TextBox Computer;
    TextBox Other;   ///< any other information; the only one that may stay empty
    Button Command1; ///< disabled while a message is under way
    Button Command2;

private:
    void Load();
    bool FieldsAreFilled();
    void Send();
    QString SupportBody() const;
    void Inet1_Connected();
    void Inet1_Done();
    void Inet1_Error();
    void Tell(const QString &text, BoxIcon icon);

    struct Field {
        TextBox &box;
        QString name;
        QString firstText;
    };
    std::array<Field, 6> Fields();

    Parts parts;
    std::unique_ptr<HttpClient> inet1;
    QString supportBody;
    bool supportFailed = false;
};

} // namespace lanterra
