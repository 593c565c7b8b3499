#pragma once

#include "park/answer_table.h"
#include "park/behaviour.h"
#include "park/gate.h"
#include "park/http_message.h"
#include "park/maker_pages.h"
#include "park/park_pages.h"
#include "park/received_log.h"
#include "park/search_pages.h"
#include "park/site_pages.h"
#include "park/site_table.h"

namespace lanterra {

/// The practice web without its sockets: gives the answer to each request and keeps what the sites received.
class Park {
public:
    /// `ownOrigin` is "http://" with the server's host and port. It stands in absolute redirections; nothing
    /// that a peer says does.
    explicit Park(QString ownOrigin);

    HttpAnswer Answer(const HttpRequest &request);

    /// The answer to bytes that are no request.
    HttpAnswer Refuse(int status) const;

    /// The behaviour at this path, nullptr if the path is none's.
    const Behaviour *BehaviourAt(const QByteArray &path) const;
    const Behaviour *BehaviourNamed(const QString &name) const { return behaviours.Find(name); }

    /// Has the page of the behaviours show the ports of these gates.
    void SetOpenGates(const QList<OpenGate> &nowOpen) { openGates = nowOpen; }

    const ReceivedLog &Received() const { return received; }

private:
    HttpAnswer AnswerSite(const PracticeSite &site, const HttpRequest &request);
    HttpAnswer Submit(const PracticeSite &site, const HttpRequest &request);
    HttpAnswer SiteAnswer(const PracticeSite &site, const AnswerText &text,
                          const QHash<QString, QString> &values);
    QString Judge(const PracticeSite &site, const QList<FormField> &fields, QString &faultyField) const;
    HttpAnswer AnswerMaker(const MakerPage &page, const HttpRequest &request);
    HttpAnswer AnswerSearch(const PracticeSearch &search, const HttpRequest &request);
    HttpAnswer Direct(const HttpRequest &request) const;
    HttpAnswer Count(const HttpRequest &request);
    HttpAnswer Message(const QString &answerKey) const;

    QString origin;
    SiteTable sites;
    AnswerTable answers;
    BehaviourTable behaviours;
    MakerPages makerPages;
    GateTable gates;
    QList<OpenGate> openGates;
    SitePages sitePages;
    SearchPages searchPages;
    ParkPages parkPages;
    ReceivedLog received;
    QByteArray frontPage; ///< never changes, so it is made once
};

} // namespace lanterra
