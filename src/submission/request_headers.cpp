#include "submission/request_headers.h"

#include "support/code_page.h"
#include "support/percent_encode.h"

using namespace Qt::StringLiterals;

namespace lanterra {

QByteArray HeaderValue(const QString &text) { return PercentEncode(CodePage::Encode(text), IsControl); }

bool IsPost(const QString &method) { return method.compare("post"_L1, Qt::CaseInsensitive) == 0; }

QString RequestTarget(const SiteRequest &request) {
    const bool isGet = request.method.compare("get"_L1, Qt::CaseInsensitive) == 0;
    return isGet ? request.action + u'?' + request.query : request.action;
}

QByteArray SubmissionHeaders(const SiteRequest &request, const QString &hostName) {
    QByteArray headers = "HOST: " + HeaderValue(hostName) +
                         "\r\n"
                         "USER_AGENT: Mozilla/4.0 (compatible; MSIE 4.01; Windows 98)\r\n"
                         "PRAGMA: no-cache\r\n"
                         "ACCEPT_CHARSET: iso-8859-1,*,utf-8\r\n"
                         "ACCEPT: */*\r\n"
                         "ACCEPT_LANGUAGE: en\r\n"
                         "CONNECTION: Keep-Alive\r\n"
                         "REFERER: " +
                         HeaderValue(RequestTarget(request)) + "\r\n";
    if (!IsPost(request.method))
        return headers;
    const QByteArray body = CodePage::Encode(request.query);
    headers += "CONTENT-TYPE: application/x-www-form-urlencoded\r\n"
               "CONTENT-LENGTH: " +
               QByteArray::number(body.size()) + "\r\n\r\n";
    return headers + body;
}

} // namespace lanterra
