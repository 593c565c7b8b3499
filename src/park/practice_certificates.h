#pragma once

#include <QSslConfiguration>
#include <QTemporaryDir>

#include <optional>

namespace lanterra {

/// The certificates of the practice web, made by the openssl program: "good", "expired", "other-host",
/// "self-made" and "stranger", of an authority that nobody trusts. They belong to one server key.
class PracticeCertificates {
public:
    /// Takes the certificates in `folder`, and makes all of them anew if one is missing there. An empty name
    /// stands for a temporary folder, which goes with this object. It runs programs and waits for them, a
    /// second at most on a usual computer. What fails is in ErrorText.
    explicit PracticeCertificates(const QString &folder);

    /// Empty unless something failed.
    const QString &ErrorText() const { return errorText; }

    /// The file with the certificate of the authority that signed the good one, for clients to trust.
    QString AuthorityPath() const { return PathOf(QStringLiteral("authority.pem")); }

    /// What a server with this certificate needs.
    QSslConfiguration ConfigurationOf(const QString &certificate) const;

private:
    bool AreThere() const;
    void MakeAll();
    bool RunOpenSsl(const QString &arguments);
    QString PathOf(const QString &name) const;

    std::optional<QTemporaryDir> temporary;
    QString path;
    QString errorText;
};

} // namespace lanterra
