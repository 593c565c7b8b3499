#include "park/park.h"

#include "park/slot_text.h"
#include "park/submission_verdict.h"

using namespace Qt::StringLiterals;

namespace lanterra {

namespace {

HttpAnswer PageAnswer(const QByteArray &page) {
    HttpAnswer answer;
    answer.body = page;
    return answer;
}

/// A page that holds these words, with their status.
HttpAnswer PageAnswer(const QByteArray &page, const AnswerText &words) {
    HttpAnswer answer = PageAnswer(page);
    answer.status = words.status;
    answer.reason = words.reason;
    return answer;
}

HttpAnswer PlainAnswer(const QByteArray &text) {
    HttpAnswer answer = PageAnswer(text);
    answer.contentType = "text/plain; charset=utf-8";
    return answer;
}

QByteArray LocationLine(const QString &address) { return "Location: " + address.toLatin1() + "\r\n"; }

bool OnlyReads(const HttpRequest &request) { return request.method == "GET" || request.method == "HEAD"; }

} // namespace

Park::Park(QString ownOrigin)
    : origin(std::move(ownOrigin)), frontPage(parkPages.FrontPage(sites, answers, behaviours.Rows().size())) {
}

HttpAnswer Park::Answer(const HttpRequest &request) {
    if (const Behaviour *behaviour = BehaviourAt(request.path)) {
        HttpAnswer answer;
        answer.behaviour = behaviour->name;
        return answer;
    }
    if (const PracticeSite *site = sites.FindByPath(request.path))
        return AnswerSite(*site, request);
    if (const MakerPage *page = makerPages.Find(request.path))
        return AnswerMaker(*page, request);
    if (!OnlyReads(request))
        return Message(u"wrong-method"_s);
    if (const PracticeSearch *search = searchPages.Find(request.path))
        return AnswerSearch(*search, request);
    if (request.path == "/director.asp")
        return Direct(request);
    if (request.path == "/")
        return PageAnswer(frontPage);
    if (request.path == "/received")
        return PageAnswer(
            parkPages.ReceivedPage(received, ValueOf(ParseFormFields(request.query), u"page"_s).toInt()));
    if (request.path == "/behave/")
        return PageAnswer(parkPages.BehaviourPage(behaviours, gates, openGates));
    if (request.path == "/counter/first" || request.path == "/counter/later")
        return Count(request);
    return Message(u"no-such-page"_s);
}

HttpAnswer Park::Refuse(int status) const {
    HttpAnswer answer = Message(u"refused-%1"_s.arg(status));
    answer.mayKeepAlive = false;
    return answer;
}

const Behaviour *Park::BehaviourAt(const QByteArray &path) const {
    static const QByteArray folder = "/behave/";
    return path.startsWith(folder) ? behaviours.Find(QString::fromLatin1(path.mid(folder.size()))) : nullptr;
}

HttpAnswer Park::AnswerSite(const PracticeSite &site, const HttpRequest &request) {
    const QByteArray home = site.Home().toLatin1();
    // A script that is the home page itself shows its form to whoever sends nothing.
    const bool asksForForm = request.path == home && request.query.isEmpty() && OnlyReads(request);
    if (request.path == site.path && !asksForForm) {
        const bool fits = site.takesEither || request.method == (site.post ? "POST" : "GET");
        return fits ? Submit(site, request) : Message(u"wrong-method"_s);
    }
    if (!OnlyReads(request))
        return Message(u"wrong-method"_s);
    if (request.path == home)
        return PageAnswer(sitePages.FormPage(site));
    if (request.path == home + "thanks.html")
        return PageAnswer(sitePages.AnswerPage(site, answers.Find(u"welcome"_s), {{u"site"_s, site.name}}));
    return Message(u"no-such-page"_s);
}

HttpAnswer Park::Submit(const PracticeSite &site, const HttpRequest &request) {
    const QList<FormField> fields = ParseFormFields(request.method == "POST" ? request.body : request.query);
    QString faultyField;
    const AnswerText text = answers.Find(Judge(site, fields, faultyField));
    const QString outcome = site.behaviour.isEmpty() ? text.Outcome() : site.behaviour;
    const qint64 number = received.Add(site.name, outcome, request, fields);
    const auto valueFor = [&](QStringView word) {
        const SiteField *field = site.FieldFor(word);
        return field == nullptr ? QString() : ValueOf(fields, field->name);
    };
    return SiteAnswer(site, text,
                      {{u"site"_s, site.name},
                       {u"slug"_s, site.slug},
                       {u"home"_s, site.Home()},
                       {u"origin"_s, origin},
                       {u"number"_s, QString::number(number)},
                       {u"field"_s, faultyField},
                       {u"url"_s, valueFor(u"txtUrlText")},
                       {u"title"_s, valueFor(u"txtTitleText")},
                       {u"email"_s, valueFor(u"txtEmailText")}});
}

// The key of the answer that the site gives to these fields.
QString Park::Judge(const PracticeSite &site, const QList<FormField> &fields, QString &faultyField) const {
    if (answers.Find(site.answer).status >= 400)
        return site.answer;
    const Objection objection = FindObjection(site, fields);
    faultyField = objection.field;
    if (!objection.answer.isEmpty())
        return objection.answer;
    const SiteField *address = site.FieldFor(u"txtUrlText");
    const bool known = site.remembers && address != nullptr &&
                       received.Holds(site.name, {address->name, ValueOf(fields, address->name)});
    return known ? u"listed-already"_s : site.answer;
}

HttpAnswer Park::SiteAnswer(const PracticeSite &site, const AnswerText &text,
                            const QHash<QString, QString> &values) {
    HttpAnswer answer = PageAnswer(sitePages.AnswerPage(site, text, values), text);
    answer.framing = site.framing;
    answer.mayKeepAlive = site.keepsAlive;
    answer.delay = site.delay;
    answer.behaviour = site.behaviour;
    if (!text.location.isEmpty()) {
        const QString location =
            FillSlots(text.location, [&values](QStringView name) { return values.value(name.toString()); });
        answer.extraHeaders = LocationLine(location);
    }
    return answer;
}

HttpAnswer Park::AnswerMaker(const MakerPage &page, const HttpRequest &request) {
    if (page.IsScript() ? request.method != "POST" : !OnlyReads(request))
        return Message(u"wrong-method"_s);
    if (page.IsScript()) {
        const QList<FormField> fields = ParseFormFields(request.body);
        const QString key = page.Judge(fields, received);
        received.Add(page.receives, answers.Find(key).Outcome(), request, fields);
        return Message(key);
    }
    if (page.text.isEmpty())
        return Message(page.answer);
    return PlainAnswer(QByteArray(page.text).replace("{{origin}}", origin.toLatin1()));
}

HttpAnswer Park::AnswerSearch(const PracticeSearch &search, const HttpRequest &request) {
    const QList<FormField> fields = ParseFormFields(request.query);
    received.Add(search.frame.name, u"searched"_s, request, fields);
    return PageAnswer(searchPages.ResultPage(search, ValueOf(fields, search.field), sites, origin));
}

// Leads to the practice sites only, so that nobody is sent elsewhere from here.
HttpAnswer Park::Direct(const HttpRequest &request) const {
    const QString target = ValueOf(ParseFormFields(request.query), u"target"_s);
    const PracticeSite *site =
        target.startsWith(origin) ? sites.FindByPath(target.mid(origin.size()).toLatin1()) : nullptr;
    if (site == nullptr)
        return Message(u"no-such-page"_s);
    HttpAnswer answer;
    answer.status = 302;
    answer.reason = "Found";
    answer.extraHeaders = LocationLine(origin + site->Home());
    return answer;
}

HttpAnswer Park::Count(const HttpRequest &request) {
    received.Add(u"Hit counter"_s, u"counted"_s, request, ParseFormFields(request.query));
    return PlainAnswer(request.path == "/counter/first" ? "first run counted\n" : "run counted\n");
}

HttpAnswer Park::Message(const QString &answerKey) const {
    const AnswerText text = answers.Find(answerKey);
    return PageAnswer(parkPages.MessagePage(text), text);
}

} // namespace lanterra
