#include "park/practice_certificates.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QSslCertificate>
#include <QSslKey>
#include <QTemporaryDir>
#include <algorithm>
#include <optional>

using namespace Qt::StringLiterals;

namespace lanterra {

namespace {

constexpr int patience = 30'000; // milliseconds

constexpr QStringView names[] = {u"authority", u"good", u"expired", u"other-host", u"self-made", u"stranger"};

// In the order in which they need each other.
constexpr QStringView steps[] = {
    u"req -x509 -extensions authority -days 3650 -keyout authority.key -out authority.pem",
    u"req -x509 -extensions authority -days 3650 -keyout stranger.key -out stranger-authority.pem",
    u"req -new -keyout server.key -out server.request",
    u"x509 -req -extensions here -days 3650 -CA authority.pem -CAkey authority.key -out good.pem",
    u"x509 -req -extensions here -days -1 -CA authority.pem -CAkey authority.key -out expired.pem",
    u"x509 -req -extensions elsewhere -days 3650 -CA authority.pem -CAkey authority.key -out other-host.pem",
    u"x509 -req -extensions here -days 3650 -signkey server.key -out self-made.pem",
    u"x509 -req -extensions here -days 3650 -CA stranger-authority.pem -CAkey stranger.key -out stranger.pem",
};

constexpr QStringView forEachRequest =
    u" -config certificates.cnf -newkey ec -pkeyopt ec_paramgen_curve:prime256v1 -nodes";
constexpr QStringView forEachSignature = u" -in server.request -extfile certificates.cnf";

QByteArray ContentOf(const QString &path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

PracticeCertificates::PracticeCertificates(const QString &folder) : path(folder) {
    std::optional<QTemporaryDir> temporary;
    if (folder.isEmpty())
        path = temporary.emplace().path();
    if (!AreThere())
        MakeAll();
    ReadAll();
}

bool PracticeCertificates::AreThere() const {
    const bool noneIsMissing = std::all_of(std::begin(names), std::end(names), [this](QStringView name) {
        return QFile::exists(PathOf(name.toString() + u".pem"_s));
    });
    return noneIsMissing && QFile::exists(PathOf(u"server.key"_s));
}

void PracticeCertificates::ReadAll() {
    for (const QStringView name : names)
        certificates.insert(name.toString(), ContentOf(PathOf(name.toString() + u".pem"_s)));
    serverKey = ContentOf(PathOf(u"server.key"_s));
}

void PracticeCertificates::MakeAll() {
    const QString configuration = PathOf(u"certificates.cnf"_s);
    QFile::remove(configuration);
    if (!QDir().mkpath(path) || !QFile::copy(u":/park/certificates.cnf"_s, configuration)) {
        errorText = u"can't write certificates to %1"_s.arg(QDir::toNativeSeparators(path));
        return;
    }
    for (const QStringView step : steps)
        if (!RunOpenSsl(step.toString() +
                        (step.startsWith(u"req") ? forEachRequest : forEachSignature).toString()))
            return;
}

bool PracticeCertificates::RunOpenSsl(const QString &arguments) {
    QProcess program;
    program.setWorkingDirectory(path);
    program.start(u"openssl"_s, arguments.split(u' '));
    const bool ended = program.waitForFinished(patience);
    if (program.error() == QProcess::FailedToStart)
        errorText = u"certificates need the program openssl, which can't be started"_s;
    else if (!ended || program.exitStatus() != QProcess::NormalExit || program.exitCode() != 0)
        errorText = u"openssl can't make the certificates: "_s +
                    QString::fromLocal8Bit(program.readAllStandardError()).simplified();
    return errorText.isEmpty();
}

QSslConfiguration PracticeCertificates::ConfigurationOf(const QString &certificate) const {
    QSslConfiguration configuration = QSslConfiguration::defaultConfiguration();
    configuration.setLocalCertificate(QSslCertificate(certificates.value(certificate)));
    configuration.setPrivateKey(QSslKey(serverKey, QSsl::Ec));
    return configuration;
}

QString PracticeCertificates::PathOf(const QString &name) const { return QDir(path).filePath(name); }

} // namespace lanterra
