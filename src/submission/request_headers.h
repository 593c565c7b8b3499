#pragma once

#include <QByteArray>
#include <QString>

namespace lanterra {

/// One request of a run: what the template of a site made of the project.
struct SiteRequest {
    QString name;
    QString action; ///< address of the form's handler
    QString query;  ///< the expanded template
    QString method; ///< as stored; only "get" and "post", in any case, have a meaning
};

/// Whether the method sends the query as the body of a POST.
bool IsPost(const QString &method);

/// The address that the request goes to: with "get" the query stands behind a "?", with any other method the
/// address stands alone. A method that is neither "get" nor "post" thus drops the query.
QString RequestTarget(const SiteRequest &request);

/// A text as the value of a header line: in the code page, with control characters percent-encoded, so that a
/// value can't begin a line of its own.
QByteArray HeaderValue(const QString &text);

/// The header lines of a submission in their fixed order and spelling, underscores included, and with POST
/// the body behind them, as it is: what the client sends below the request line.
QByteArray SubmissionHeaders(const SiteRequest &request, const QString &hostName);

} // namespace lanterra
