#pragma once

#include <QByteArray>
#include <QHash>
#include <QSslConfiguration>
#include <QString>

namespace lanterra {

/// The certificates of the practice web, made by the openssl program: "good", "expired", "other-host",
/// "self-made" and "stranger", of an authority that nobody trusts. They belong to one server key.
class PracticeCertificates {
public:
    /// Takes the certificates in `folder`, and makes all of them anew if one is missing there;
    /// `authority.pem` is for clients to trust. An empty name stands for a temporary folder, which is gone
    /// behind this call. It runs programs and waits for them, a second at most on a usual computer. What
    /// fails is in ErrorText.
    explicit PracticeCertificates(const QString &folder);

    /// Empty unless something failed.
    const QString &ErrorText() const { return errorText; }

    /// What a server with this certificate needs.
    QSslConfiguration ConfigurationOf(const QString &certificate) const;

private:
    bool AreThere() const;
    void ReadAll();
    void MakeAll();
    bool RunOpenSsl(const QString &arguments);
    QString PathOf(const QString &name) const;

    QString path;
    QHash<QString, QByteArray> certificates; ///< by name
    QByteArray serverKey;
    QString errorText;
};

} // namespace lanterra
