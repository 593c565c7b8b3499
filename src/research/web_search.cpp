#include "research/web_search.h"

#include "support/folder_files.h"
#include "support/text_file.h"
#include "support/url_encode.h"

#include <QDir>

using namespace Qt::StringLiterals;

namespace lanterra {

WebSearch::WebSearch(const Parts &theParts, std::unique_ptr<HttpClient> httpClient)
    : cobEngine(engines.Names()), parts(theParts), client(std::move(httpClient)) {
    AddToForm(*this, cobEngine, u"cobEngine"_s);
    AddToForm(*this, txtKeywords, u"txtKeywords"_s);
    AddToForm(*this, Search_ShowInWebBrowser, u"Search_ShowInWebBrowser"_s);
    AddToForm(*this, Label27, u"Label27"_s);
    AddToForm(*this, File1, u"File1"_s);
    AddToForm(*this, txtlink, u"txtlink"_s);
    AddToForm(*this, txtdata2, u"txtdata2"_s);
    cobEngine.SetText(u"AltaVista"_s);
    txtKeywords.SetText(u"enter keywords here"_s);
    txtlink.SetText(u"http://"_s);
    txtdata2.SetVisible(false);
    client->SetKeepResponseText(true);
    parts.proxy.AddClient(*client);
    connect(client.get(), &HttpClient::Connected, this, &WebSearch::Connected);
    connect(client.get(), &HttpClient::Done, this, &WebSearch::Done);
    connect(client.get(), &HttpClient::Error, this, [this] { Fail(client->FailureReason()); });
}

void WebSearch::OpenSearchPane() {
    QDir().mkpath(SearchFolder());
    File1.SetPath(SearchFolder());
    parts.frame.ShowPane(Pane::fraSearch);
}

QString WebSearch::SearchFolder() const {
    return parts.project.path.AppPath() + u"search"_s + QDir::separator();
}

void WebSearch::Command15_Click() {
    QStringList keywords;
    for (const TextBox &box : parts.project.record.txtKey)
        keywords << box.Text();
    txtKeywords.SetText(keywords.join(u' '));
}

void WebSearch::StartSearch() {
    parts.proxy.ApplyProxySettings();
    const EngineQuery *query = engines.Find(cobEngine.Text());
    if (!query)
        return;
    SetRequest(*query, txtKeywords.Text());
    FetchToSearchFolder();
}

void WebSearch::StartLinkLookup() {
    if (searchBusy)
        return;
    SetRequest(engines.Links(), txtlink.Text());
    parts.proxy.ApplyProxySettings();
    FetchToSearchFolder();
}

void WebSearch::SetRequest(const EngineQuery &query, const QString &text) {
    const QString host = Host(query.engine);
    searchUrl = host.isEmpty() ? QString() : host + query.start + UrlEncode(text) + query.end;
    searchFileName = query.file;
}

QString WebSearch::Host(const QString &key) const {
    QString address = parts.hosts.Address(u"Search"_s, key);
    while (address.endsWith(u'/'))
        address.chop(1);
    return address;
}

void WebSearch::FetchToSearchFolder() {
    if (searchBusy)
        return;
    client->Abort();
    failure.clear();
    if (searchUrl.isEmpty()) {
        Fail(u"hosts.ini has no address for this search engine"_s);
        return;
    }
    Label27.SetCaption(u"finding..."_s);
    QDir().mkpath(SearchFolder());
    client->SetRequestSwitchA(true);
    client->SetTarget(searchUrl);
    client->SetSaveFile(SearchFolder() + searchFileName + u".htm"_s);
    client->SetResponseText(QString());
    searchBusy = true;
    client->ConnectToHost();
    File1.Refresh();
}

void WebSearch::Connected() {
    Label27.SetCaption(u"Connected"_s);
    client->SendGet();
}

void WebSearch::Done() {
    const QString answer = WithAbsoluteLinks(client->ResponseText());
    const QString file = client->SaveFile();
    client->Abort();
    client->SetResponseText(QString());
    if (!WriteFileText(file, answer)) {
        Fail(u"The answer could not be written: "_s + file);
        return;
    }
    searchBusy = false;
    Label27.SetCaption(u"Done!"_s);
    File1.Refresh();
    if (Search_ShowInWebBrowser.Checked())
        parts.viewer.OpenDocument(file);
}

// The engine's pages link through a redirector of its own, by an address that leads nowhere from a local
// file.
QString WebSearch::WithAbsoluteLinks(QString answer) const {
    const QString redirector = u"/director.asp?target="_s;
    return answer.replace(redirector, Host(u"HotBotMain"_s) + redirector, Qt::CaseInsensitive);
}

void WebSearch::Fail(const QString &reason) {
    searchBusy = false;
    failure = reason;
    Label27.SetCaption(u"Error"_s);
}

// The client raises nothing after an abort, so the pane is freed here.
void WebSearch::CancelSearch() {
    client->Abort();
    if (searchBusy)
        Label27.SetCaption(u"Canceled"_s);
    searchBusy = false;
}

// Without a chosen answer the folder itself is opened.
void WebSearch::OpenSearchResult() {
    txtdata2.SetText(SearchFolder() + File1.Text());
    parts.viewer.OpenDocument(txtdata2.Text());
}

void WebSearch::ClearSearchFiles() {
    const MessageBox question{u"Delete search files ?"_s, u"Zephyrine Lanterra"_s, BoxIcon::Exclamation,
                              BoxButtons::YesNo, BoxAnswer::No};
    if (parts.dialogs.Show(question) == BoxAnswer::Yes)
        DeleteFilesIn(SearchFolder());
    File1.Refresh();
}

void WebSearch::Command24_Click() {
    const QString address = parts.hosts.Address(u"Maker"_s, u"Farseek"_s);
    if (!address.isEmpty())
        parts.viewer.OpenDocument(address);
}

bool WebSearch::ReturnPressed(const TextBox &box) {
    if (&box == &txtKeywords)
        cmdFind_Click();
    else if (&box == &txtlink)
        cmdlink_Click();
    else
        return false;
    return true;
}

} // namespace lanterra
