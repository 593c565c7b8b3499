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

/// The header lines of a submission in their fixed order and spelling, underscores included, and with POST
/// the body behind them: what the client sends below the request line. Control characters in the host and in
/// the referring page are percent-encoded, so that a value can't begin a line of its own; the body goes as it
/// is.
QByteArray SubmissionHeaders(const SiteRequest &request, const QString &hostName);

} // namespace lanterra
