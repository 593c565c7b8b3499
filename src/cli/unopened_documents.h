#pragma once

#include "ports/document_opener.h"

namespace lanterra {

/// Opens nothing and says that it worked: a command prints the path of a document instead.
class UnopenedDocuments final : public DocumentOpener {
public:
    OpenResult OpenWithDefault(const QString &) override { return OpenResult::Opened; }
    OpenResult Start(const QString &, const QStringList &) override { return OpenResult::Opened; }
};

} // namespace lanterra
