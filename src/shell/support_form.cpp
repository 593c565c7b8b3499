#include "shell/support_form.h"

#include "shell/form_post.h"
#include "support/numbers.h"
#include "support/product_values.h"
#include "support/url_encode.h"

#include <QFile>

using namespace Qt::StringLiterals;

namespace lanterra {

SupportForm::SupportForm(const Parts &theParts, std::unique_ptr<HttpClient> httpClient)
    : parts(theParts), inet1(std::move(httpClient)) {
    SetVisible(false);
    for (const Field &field : Fields())
        AddToForm(*this, field.box, field.name);
    AddToForm(*this, Command1, u"Command1"_s);
    AddToForm(*this, Command2, u"Command2"_s);
    connect(&parts.proxy, &ProxySettings::ProxyGiven, this, [this](const QString &server, int port) {
        inet1->SetProxyPort(port);
        inet1->SetProxyServer(server);
    });
    connect(inet1.get(), &HttpClient::Connected, this, &SupportForm::Inet1_Connected);
    connect(inet1.get(), &HttpClient::Done, this, &SupportForm::Inet1_Done);
    connect(inet1.get(), &HttpClient::Closing, this, [this] { Command1.SetEnabled(true); });
    connect(inet1.get(), &HttpClient::Error, this, &SupportForm::Inet1_Error);
}

std::array<SupportForm::Field, 6> SupportForm::Fields() {
    return {{{usName, u"usName"_s, QString()},
             {Email, u"Email"_s, QString()},
             {Problem, u"Problem"_s, QString()},
             {OS, u"OS"_s, QString()},
             {Computer, u"Computer"_s, QString()},
             {Other, u"Other"_s, u"No comments"_s}}};
}

void SupportForm::Show() {
    Load();
    parts.forms.ShowModal(ModalForm::TechSupp);
    SetVisible(false);
    inet1->Abort();
}

void SupportForm::Load() {
    for (const Field &field : Fields())
        field.box.SetText(field.firstText);
    Command1.SetEnabled(true);
    SetVisible(true);
}

void SupportForm::SendSupportMessage() {
    supportFailed = false;
    if (!FieldsAreFilled())
        return;
    parts.frame.SetPointer(MousePointer::Busy);
    Command1.SetEnabled(false);
    parts.proxy.ApplyProxySettings();
    supportBody = SupportBody();
    Send();
    if (std::exchange(supportFailed, false))
        Tell(u"Server is unreachable!  "_s, BoxIcon::Critical);
    parts.frame.SetPointer(MousePointer::Default);
}

bool SupportForm::FieldsAreFilled() {
    for (const Field &field : Fields()) {
        if (&field.box == &Other || !IsBlank(field.box.Text()))
            continue;
        Tell(u"Please fill all text fields ! "_s, BoxIcon::Critical);
        return false;
    }
    if (Email.Text().contains(u'@'))
        return true;
    Tell(u"Please enter your full e-mail address! "_s, BoxIcon::Exclamation);
    return false;
}

void SupportForm::Send() {
    const QString endpoint = parts.hosts.Address(u"Maker"_s, u"FormMail"_s);
    if (endpoint.isEmpty()) {
        Inet1_Error();
        return;
    }
    inet1->SetRequestSwitchA(true);
    inet1->SetTarget(endpoint);
    inet1->SetSaveFile(parts.programFolder + u"tmp.mth"_s);
    inet1->ConnectToHost();
}

// The script files messages by their subject, in which the version stands unencoded, with its blank.
QString SupportForm::SupportBody() const {
    return u"recipient="_s + parts.hosts.Address(u"Maker"_s, u"SupportMail"_s) +
           u"&subject=LT+Technical+Support+"_s + parts.version.Caption() + u"&redirect=&realname="_s +
           UrlEncode(usName.Text()) + u"&email="_s + UrlEncode(Email.Text()) + u"&Problem="_s +
           UrlEncode(Problem.Text()) + u"&OS="_s + UrlEncode(OS.Text()) + u"&Computer="_s +
           UrlEncode(Computer.Text()) + u"&Other="_s + UrlEncode(Other.Text()) + u"&UserName="_s +
           UrlEncode(usName.Text());
}

void SupportForm::Inet1_Connected() {
    inet1->SetRequestHeaders(FormPost(supportBody));
    inet1->SendPost();
}

// The answer lies in tmp.mth, not in the file that is deleted here; the end of the program removes it.
void SupportForm::Inet1_Done() {
    Tell(u"Thank you for your message! "_s, BoxIcon::Information);
    QFile::remove(parts.programFolder + u"tmp.htm"_s);
    Command1.SetEnabled(true);
}

void SupportForm::Inet1_Error() {
    supportFailed = true;
    Command1.SetEnabled(true);
}

void SupportForm::Tell(const QString &text, BoxIcon icon) {
    const bool thanks = icon == BoxIcon::Information;
    parts.dialogs.Show({text, thanks ? u"Zephyrine Lanterra"_s : u"Error"_s, icon});
}

void SupportForm::Command2_Click() {
    const QString page = ProductValue(u"support_page"_s);
    if (!page.isEmpty())
        parts.viewer.OpenDocument(page);
}

} // namespace lanterra
