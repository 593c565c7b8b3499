#pragma once

#include "tests/behaviours/fetch.h"

#include <QProcess>

namespace lanterra {

/// One case fetched with the curl program.
class CurlFetch final : public FetchJob {
    Q_OBJECT

public:
    /// `authorityPath` is the file with the certificate to trust.
    CurlFetch(const FetchCase &row, const QString &path, const QString &authorityPath);

private:
    void TakeEnd(int exitCode);

    QProcess program;
};

} // namespace lanterra
