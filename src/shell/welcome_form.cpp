#include "shell/welcome_form.h"

#include "shell/form_post.h"

using namespace Qt::StringLiterals;

namespace lanterra {

WelcomeForm::WelcomeForm(const Parts &theParts, std::unique_ptr<HttpClient> httpClient)
    : parts(theParts), inet2(std::move(httpClient)) {
    SetVisible(false);
    AddToForm(*this, Text2, u"Text2"_s);
    AddToForm(*this, Check1, u"Check1"_s);
    AddToForm(*this, SSCommand1, u"SSCommand1"_s);
    AddToForm(*this, Command1, u"Command1"_s);
    inet2->SetKeepResponseText(true);
    connect(inet2.get(), &HttpClient::Connected, this, &WelcomeForm::inet2_Connected);
    connect(inet2.get(), &HttpClient::Done, this, &WelcomeForm::inet2_Done);
    connect(inet2.get(), &HttpClient::Error, this, &WelcomeForm::inet2_Error);
}

void WelcomeForm::Show() {
    Load();
    parts.forms.ShowModal(ModalForm::Welcome);
    Unload();
}

void WelcomeForm::Load() {
    WelcomeHide = false;
    Check1.SetValue(0);
    Text2.SetText(QString());
    SetVisible(true);
}

void WelcomeForm::Command1_Click() {
    if (!Check1.Checked())
        WelcomeHide = true;
    SetVisible(false);
}

void WelcomeForm::Unload() {
    SetVisible(false);
    inet2->Abort();
    if (Check1.Checked())
        parts.options.Set(option::welcomeSeen, QString());
}

void WelcomeForm::SubscribeNewsletter() {
    const QString address = Text2.Text();
    if (!address.contains(u'@')) {
        parts.dialogs.Show({u"Please enter your full e-mail address! "_s, u"Error"_s, BoxIcon::Exclamation});
        return;
    }
    // The list's script takes the address as it is typed and decodes nothing.
    subscribeBody = u"name=name&email="_s + address + u"&list=newsletter&what=add"_s;
    subscribeErrorShown = false;
    const QString script = parts.hosts.Address(u"Maker"_s, u"MailingList"_s);
    if (script.isEmpty()) {
        inet2_Error();
        return;
    }
    inet2->SetRequestSwitchA(true);
    inet2->SetTarget(script);
    inet2->SetRequestSwitchB(true);
    inet2->SetSaveFile(parts.scratchFile);
    inet2->SetResponseText(QString());
    inet2->ConnectToHost();
}

void WelcomeForm::inet2_Connected() {
    inet2->SetRequestHeaders(FormPost(subscribeBody));
    inet2->SendPost();
}

void WelcomeForm::inet2_Done() {
    const QString answer = inet2->ResponseText();
    if (answer.contains("You have been added to the mailing list"_L1, Qt::CaseInsensitive))
        Tell(u"Thank you! You have been added to the mailing list "_s, u"Zephyrine Lanterra"_s);
    else if (answer.contains("is already on the list"_L1, Qt::CaseInsensitive))
        Tell(u"Error! Your email is already on the list "_s, u"Error"_s);
    else
        Tell(u"Error! "_s, u"Error"_s);
}

// Once for each press, however many errors follow.
void WelcomeForm::inet2_Error() {
    if (!std::exchange(subscribeErrorShown, true))
        Tell(u"Error! "_s, u"Error"_s);
}

void WelcomeForm::Tell(const QString &text, const QString &title) {
    parts.dialogs.Show({text, title, BoxIcon::Information});
}

void WelcomeForm::Picture1_Click() {
    const QString page = parts.hosts.Address(u"Maker"_s, u"ProductPage"_s);
    if (!page.isEmpty())
        parts.viewer.OpenDocument(page);
}

} // namespace lanterra
