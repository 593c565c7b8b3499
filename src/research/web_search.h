#pragma once

#include "controls/check_box.h"
#include "controls/combo_box.h"
#include "controls/label.h"
#include "ports/dialogs.h"
#include "ports/http_client.h"
#include "project/main_frame.h"
#include "project/project.h"
#include "research/file_list.h"
#include "research/search_engines.h"
#include "settings/document_viewer.h"
#include "settings/hosts.h"
#include "settings/proxy_settings.h"

#include <memory>

namespace lanterra {

/// The pane fraSearch: puts a query to a search engine, or asks one who links to an address, and keeps the
/// answer as a page in the folder "search" beside the program, one a kind of question. It has a client of its
/// own, one transfer at a time, and works during a run as well.
///
/// The engines' hosts stand in hosts.ini, with scheme and without a path:
///
///     [Search]
///     AltaVista=http://www.altavista.example
///     HotBot=http://search.hotbot.example
///     HotBotMain=http://www.hotbot.example
///
/// HotBotMain is where the engine's own redirecting links lead, which are relative in its answers.
class WebSearch : public QObject {
    Q_OBJECT

public:
    struct Parts {
        const Project &project;
        MainFrame &frame;
        const Hosts &hosts;
        ProxySettings &proxy;
        DocumentViewer &viewer;
        Dialogs &dialogs;
    };

    /// All parts must outlive this.
    WebSearch(const Parts &theParts, std::unique_ptr<HttpClient> httpClient);

    void Command5_Click() { OpenSearchPane(); } ///< "Search": makes the folder and shows the pane
    void Command15_Click();                     ///< "Use project keywords"

    /// "Search". An engine that isn't in the table starts nothing; an engine without a host ends in "Error"
    /// at once. While a transfer is under way the new request is dropped.
    void cmdFind_Click() { StartSearch(); }
    /// "Search" of the frame "Who Links You?", in the same way.
    void cmdlink_Click() { StartLinkLookup(); }
    void Command17_Click() { CancelSearch(); } ///< "Cancel"; the pane is free again at once

    // These yield while a document is opened or the question is up.
    void File1_DblClick() { OpenSearchResult(); }
    void Command21_Click() { ClearSearchFiles(); } ///< "Clear": asks first
    void Command24_Click(); ///< "More options"; nothing without an address in hosts.ini

    /// Return in one of the two boxes presses its button. False for any other box.
    bool ReturnPressed(const TextBox &box);

    bool SearchBusy() const { return searchBusy; }

    /// The page of the last transfer, there or not; and why that transfer ended in "Error", one sentence
    /// without a full stop, empty if it didn't.
    QString AnswerFile() const { return client->SaveFile(); }
    const QString &Failure() const { return failure; }

private:
    SearchEngines engines; ///< made before cobEngine, which offers them

public:
    ComboBox cobEngine;
    TextBox txtKeywords;
    CheckBox Search_ShowInWebBrowser; ///< show an answer as soon as it is saved
    Label Label27;                    ///< state of the transfer, one word
    FileList File1;                   ///< the saved answers
    TextBox txtlink;                  ///< the address to look up
    TextBox txtdata2;                 ///< hidden: the answer that was opened last

private:
    void OpenSearchPane();
    void StartSearch();
    void StartLinkLookup();
    void SetRequest(const EngineQuery &query, const QString &text);
    void FetchToSearchFolder();
    void Connected();
    void Done();
    void Fail(const QString &reason);
    void CancelSearch();
    void OpenSearchResult();
    void ClearSearchFiles();

    QString SearchFolder() const;
    QString Host(const QString &key) const;
    QString WithAbsoluteLinks(QString answer) const;

    Parts parts;
    std::unique_ptr<HttpClient> client; ///< Inet20
    bool searchBusy = false;
    QString searchUrl;      ///< empty if the engine has no host
    QString searchFileName; ///< without folder and ending
    QString failure;
};

} // namespace lanterra
