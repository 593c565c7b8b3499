#include "tools/compare_with_curl/curl_fetch.h"

using namespace Qt::StringLiterals;

namespace lanterra {

namespace {

constexpr int couldNotStart = -1;
constexpr int timedOut = 28; // curl's exit code

// The least TLS version is given because curl's own differs from build to build.
QStringList ArgumentsFor(const FetchCase &row, const QString &path, const QString &authorityPath) {
    QStringList arguments{u"--disable"_s,
                          u"--silent"_s,
                          u"--show-error"_s,
                          u"--http1.1"_s,
                          u"--tlsv1.2"_s,
                          u"--output"_s,
                          path,
                          u"--cacert"_s,
                          authorityPath,
                          u"--write-out"_s,
                          u"%{http_code} %{time_total}"_s,
                          u"--max-time"_s,
                          QString::number(row.Limit() / 1000.0)};
    if (row.proxyPort == 0)
        return arguments + QStringList{u"--noproxy"_s, u"*"_s, row.address};
    const QString proxy = u"http://127.0.0.1:%1"_s.arg(row.proxyPort);
    return arguments + QStringList{u"--noproxy"_s, u""_s, u"--proxy"_s, proxy, row.address};
}

} // namespace

CurlFetch::CurlFetch(const FetchCase &row, const QString &path, const QString &authorityPath) {
    connect(&program, &QProcess::finished, this, &CurlFetch::TakeEnd);
    connect(&program, &QProcess::errorOccurred, this, [this](QProcess::ProcessError error) {
        if (error == QProcess::FailedToStart)
            TakeEnd(couldNotStart);
    });
    program.start(u"curl"_s, ArgumentsFor(row, path, authorityPath));
}

void CurlFetch::TakeEnd(int exitCode) {
    const QString reason = QString::fromUtf8(program.readAllStandardError()).section(u'\n', 0, 0);
    const QByteArrayList told = program.readAllStandardOutput().split(' ');
    const int status = told.front().toInt();
    if (exitCode == 0)
        End(u"ok"_s, status, reason);
    else
        End(exitCode == timedOut ? u"time limit"_s : u"failed"_s, status,
            exitCode == couldNotStart ? u"curl can't be started"_s : reason);
    TakeTime(static_cast<qint64>(told.back().toDouble() * 1000)); // without the start of the program
}

} // namespace lanterra
